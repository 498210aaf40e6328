// The main window's life: start, the options, opening and saving, and the orderly end.
#include "ui/mainwindow.h"

#include "core/dibsection.h"
#include "core/rescue.h"
#include "core/settings.h"
#include "core/tempfiles.h"
#include "paint/catalogue.h"
#include "ui/grafdialogdock.h"
#include "ui/optionsdialog.h"
#include "ui/pictureview.h"
#include "ui/statusbar.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QSaveFile>
#include <QScreen>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QStandardPaths>

namespace tf::ui {

namespace {
// Loaded pictures larger than this box are brought into it, so that work on screen stays
// quick; Superformat work never passes through the picture.
constexpr int LoadBox = 1600;
} // namespace

void MainWindow::startUp(SettingsStore &store)
{
    m_store = &store;
    m_settings.load(store);
    setLanguage(m_settings.language);

    // The window where it was, kept on the screen.
    const QRect screen = QGuiApplication::primaryScreen()
                             ? QGuiApplication::primaryScreen()->availableGeometry()
                             : QRect(0, 0, 1280, 1024);
    if (store.contains(QString::fromLatin1(SubKey::Settings), QStringLiteral("MainWidth"))) {
        setGeometry(keepOnScreen(m_settings.mainRect(), screen));
    } else {
        // The first start: room for the standard picture, as far as the screen allows.
        const int bar = m_picContainer->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        const int chromeH = menuBar()->sizeHint().height() + statusBar()->sizeHint().height() +
                            m_toolBar->sizeHint().height();
        const int docks = m_grafDialog->isVisible() || !isVisible() ? m_grafDialog->sizeHint().width() : 0;
        const QSize want(712 + bar + 8 + docks + 8, 712 + chromeH + bar + 8);
        setGeometry(keepOnScreen(QRect(screen.topLeft() + QPoint(20, 20), want), screen));
    }
    if (m_settings.MainWState == 2)
        setWindowState(windowState() | Qt::WindowMaximized);

    Workspace &ws = m_session.workspace();
    if (!m_settings.PDirTemp.isEmpty())
        ws.setTempDir(m_settings.PDirTemp);
    fixings().FixNumb = m_settings.FixNumb;
    fixings().FixDelete = m_settings.FixDelete;
    fixings().initFromDisk();

    m_mru.setMaxFileCount(4);
    m_mru.Load(store);
    updateRecentMenu();

    if (const auto f = restoredPicFormat(m_settings.initFormat, m_settings.initFormatW,
                                         m_settings.initFormatH)) {
        m_formatIndex = f->index;
        ws.NewFormatW = f->width;
        ws.NewFormatH = f->height;
        ws.NewFormatMax = f->max();
        ws.New_BildSize(f->width, f->height);
        ws.Bild.Cls();
    }
    const int group = m_session.paint().GrafGroup;
    if (group >= 1 && group <= GroupCount)
        mn_Grafmodes[size_t(group - 1)]->setChecked(true);

    ws.lastaction.clear();
    fixings().Set_Fixstatus(false);
    retranslate();
    CheckRestore_lost_Undopics(ws.TempDir());
}

void MainWindow::shutDown()
{
    if (m_shutDown)
        return;
    m_shutDown = true;
    const Workspace &ws = m_session.workspace();
    if (m_store) {
        m_settings.MainWState = isMaximized() ? 2 : 0;
        if (!isMaximized() && !isMinimized())
            m_settings.setMainRect(geometry());
        m_settings.initFormat = m_formatIndex;
        m_settings.initFormatW = ws.BildW;
        m_settings.initFormatH = ws.BildH;
        m_settings.language = currentLanguage();
        m_settings.save(*m_store);
        m_mru.Save(*m_store);
        m_store->sync();
    }
    removeTempFilesAtEnd(ws.TempDir(), fixings().FixDelete != 0);
    if (m_settings.ClipDelete != 0)
        QGuiApplication::clipboard()->clear();
}

void MainWindow::updateRecentMenu()
{
    for (size_t i = 0; i < mn_File.size(); ++i) {
        const int index = int(i) + 1;
        mn_File[i]->setVisible(index <= m_mru.FileCount());
        mn_File[i]->setText(m_mru.MenuCaption(index));
    }
}

void MainWindow::showOptions()
{
    SystemOptions o;
    o.killClipboard = m_settings.ClipDelete != 0;
    o.killFixings = m_settings.FixDelete != 0;
    o.fixNumber = std::max(1, m_settings.FixNumb);
    o.tempPath = m_session.workspace().TempDir();
    o.language = currentLanguage();
    OptionsDialog dialog(o, [this](const SystemOptions &applied) { applyOptions(applied); }, this);
    dialog.exec();
}

void MainWindow::applyOptions(const SystemOptions &o)
{
    m_settings.ClipDelete = o.killClipboard ? 1 : 0;
    m_settings.FixDelete = o.killFixings ? 1 : 0;
    fixings().FixDelete = m_settings.FixDelete;
    Workspace &ws = m_session.workspace();
    if (QDir::cleanPath(o.tempPath) != ws.TempDir() && !o.tempPath.isEmpty()) {
        m_settings.PDirTemp = QDir::cleanPath(o.tempPath);
        ws.setTempDir(m_settings.PDirTemp);
        fixings().initFromDisk();
    }
    if (o.fixNumber != m_settings.FixNumb) {
        m_settings.FixNumb = o.fixNumber;
        fixings().FixNumb = o.fixNumber;
        fixings().initFromDisk();
    }
    if (o.language != currentLanguage())
        setLanguage(o.language); // widgets retranslate on the language change event
    m_settings.language = o.language;
    if (m_store) {
        m_settings.save(*m_store);
        m_store->sync();
    }
}

bool MainWindow::openPicture(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull()) {
        m_session.ask(tr("Die Datei %1 kann nicht als Bild gelesen werden.").arg(QDir::toNativeSeparators(path)),
                      Buttons::Ok, Icon::Exclamation);
        return false;
    }
    image = image.convertToFormat(QImage::Format_RGB32);
    if (image.width() > LoadBox || image.height() > LoadBox) {
        cDIBSection dib;
        dib.CreateFromPicture(image);
        QSize fit = image.size().scaled(LoadBox, LoadBox, Qt::KeepAspectRatio);
        if (auto small = dib.Resample(std::max(1, fit.width()), std::max(1, fit.height()))) {
            QImage scaled(small->dib_width(), small->dib_height(), QImage::Format_RGB32);
            DeviceContext to(&scaled, false);
            small->PaintPicture(to, 0, 0);
            image = scaled;
        }
    }
    Workspace &ws = m_session.workspace();
    ws.Bild_nachUndo();
    ws.New_BildSize(image.width(), image.height());
    ws.Bild.setPicture(image);
    ws.Bild.markChanged();
    ws.lastaction = QStringLiteral("BILDRESIZED");
    ws.BildChanged = false;
    m_fileName = QFileInfo(path).fileName();
    m_settings.PDirRead = QFileInfo(path).absolutePath();
    m_mru.AddFile(QFileInfo(path).absoluteFilePath());
    updateRecentMenu();
    refreshStatus();
    Set_MDI_Caption();
    return true;
}

bool MainWindow::savePicture(const QString &path)
{
    QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("jpeg"))
        suffix = QStringLiteral("jpg");
    if (suffix != QLatin1String("png") && suffix != QLatin1String("jpg") && suffix != QLatin1String("bmp")) {
        m_session.ask(tr("Bilder werden als BMP, JPEG oder PNG gespeichert: die Endung %1 ist unbekannt.")
                          .arg(suffix),
                      Buttons::Ok, Icon::Exclamation);
        return false;
    }
    // Written whole or not at all: a temporary file beside the target is renamed over it.
    QSaveFile file(path);
    const QImage &image = m_session.workspace().Bild.Image();
    const bool ok = file.open(QIODevice::WriteOnly) &&
                    image.save(&file, suffix.toUpper().toLatin1().constData(), suffix == QLatin1String("jpg") ? 100 : -1) &&
                    file.commit();
    if (!ok) {
        m_session.ask(tr("Die Datei %1 kann nicht geschrieben werden.").arg(QDir::toNativeSeparators(path)),
                      Buttons::Ok, Icon::Exclamation);
        return false;
    }
    Workspace &ws = m_session.workspace();
    ws.BildChanged = false;
    m_fileName = QFileInfo(path).fileName();
    m_settings.PDirWrite = QFileInfo(path).absolutePath();
    m_mru.AddFile(QFileInfo(path).absoluteFilePath());
    updateRecentMenu();
    Set_MDI_Caption();
    return true;
}

void MainWindow::openDialog()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Bild öffnen"), m_settings.PDirRead,
        tr("Bilder (*.bmp *.jpg *.jpeg *.png *.gif);;Alle Dateien (*)"));
    if (!path.isEmpty())
        openPicture(path);
}

void MainWindow::saveAsDialog()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Bild speichern"), m_settings.PDirWrite,
        tr("PNG (*.png);;JPEG (*.jpg *.jpeg);;BMP (*.bmp)"));
    if (!path.isEmpty())
        savePicture(path);
}

} // namespace tf::ui
