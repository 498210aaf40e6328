// The main window's life: start, the options, opening and saving, and the orderly end.
#include "ui/mainwindow.h"

#include "core/dibsection.h"
#include "core/rescue.h"
#include "core/settings.h"
#include "core/tempfiles.h"
#include "paint/catalogue.h"
#include "files/picturefile.h"
#include "files/savename.h"
#include "ui/colourdialogdock.h"
#include "ui/featdialogdock.h"
#include "ui/grafdialogdock.h"
#include "ui/picimportdialog.h"
#include "ui/pselectdialog.h"
#include "ui/optionsdialog.h"
#include "ui/pictureview.h"
#include "ui/statusbar.h"

#include <QClipboard>
#include <algorithm>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScrollBar>
#include <QScreen>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QStandardPaths>
#include <QTimer>

namespace tf::ui {

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
        const int docks = m_grafDialog->isVisible() || !isVisible()
                              ? m_grafDialog->sizeHint().width() + 8 +
                                    std::max(m_featDialog->sizeHint().width(),
                                             m_colourDialog->sizeHint().width())
                              : 0;
        const QSize want(712 + bar + 8 + docks + 8, 712 + chromeH + bar + 8);
        setGeometry(keepOnScreen(QRect(screen.topLeft() + QPoint(20, 20), want), screen));
        // Once laid out, the frame grows by what it still lacks for the whole picture.
        QTimer::singleShot(0, this, [this, screen] {
            const QSize view = m_picContainer->maximumViewportSize();
            const Workspace &w = m_session.workspace();
            const int dw = std::max(0, w.BildW - view.width()), dh = std::max(0, w.BildH - view.height());
            if ((dw > 0 || dh > 0) && !isMaximized())
                setGeometry(keepOnScreen(geometry().adjusted(0, 0, dw, dh), screen));
        });
    }
    if (m_settings.MainWState == 2)
        setWindowState(windowState() | Qt::WindowMaximized);
    // The docks and tool bars where the user left them.
    const QString docks = store.Get_Setting(QString::fromLatin1(SubKey::Settings),
                                            QStringLiteral("DockState"), QString());
    if (!docks.isEmpty())
        restoreState(QByteArray::fromBase64(docks.toLatin1()));

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
    applyDisplayTime();
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
        m_store->Put_Setting(QString::fromLatin1(SubKey::Settings), QStringLiteral("DockState"),
                             QString::fromLatin1(saveState().toBase64()));
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
    return loadPictureFile(path, 1);
}

bool MainWindow::loadPictureFile(const QString &path, int command)
{
    bool loaded = false;
    guarded(QStringLiteral("LoadImage"), [&] {
        const LoadResult r = LoadImage(path);
        if (r.status == LoadResult::Status::Missing)
            return; // a file removed since it was listed ends without a message
        if (!r.loaded()) {
            // The picture stays as it was; the status bar holds the reason.
            m_status->setPanelText(sbrState, r.detail);
            m_session.ask(corruptPictureText(true), Buttons::Ok, Icon::Exclamation);
            return;
        }
        const LoadCommand which = LoadCommand(std::clamp(command, 1, 3));
        const ImportChoice *import = nullptr;
        if (which == LoadCommand::Import) {
            PicImportDialog dialog(r.stored, m_importChoice, this);
            dialog.exec();
            m_importChoice = dialog.choice();
            if (m_importChoice.Cancelled)
                return;
            import = &m_importChoice;
        }
        if (!Bild_Handle_Laden(m_session, r.image, loadDialogTitle(which), import))
            return;
        loaded = true;
        m_paintHistory.clear();
        m_picContainer->horizontalScrollBar()->setValue(0);
        m_picContainer->verticalScrollBar()->setValue(0);
        const QFileInfo file(path);
        if (which == LoadCommand::Open) {
            m_fileName = file.fileName();
            SavePathFile.clear();
            m_settings.PDirRead = file.absolutePath();
            m_mru.AddFile(file.absoluteFilePath());
            updateRecentMenu();
        } else {
            m_settings.PDirImport = file.absolutePath();
        }
        LoadLastDir[size_t(which)] = file.absolutePath();
        if (m_store) {
            m_settings.save(*m_store);
        }
        updateCommands();
        refreshStatus();
        Set_MDI_Caption();
    });
    return loaded;
}

void MainWindow::Menu_LoadImage(int Index)
{
    guarded(QStringLiteral("Menu_LoadImage"), [&] {
        const int command = std::clamp(Index, 1, 3);
        QString &lastDir = LoadLastDir[size_t(command)];
        if (lastDir.isEmpty())
            lastDir = command == 1 ? m_settings.PDirRead : m_settings.PDirImport;
        // A shown selection is taken off first.
        Workspace &ws = m_session.workspace();
        ws.PicSelect.setVisible(false);
        ws.picSelectC.setVisible(false);

        static const char *const captions[] = {"", QT_TR_NOOP("Bild laden"),
                                               QT_TR_NOOP("Bild importieren"),
                                               QT_TR_NOOP("Web-Background-Bild")};
        PSelectDialog dialog(m_session, tr(captions[command]), lastDir, m_settings.Openpreview != 0,
                             this);
        const bool ok = dialog.exec() == QDialog::Accepted;
        m_settings.Openpreview = dialog.previewOn() ? 1 : 0;
        const QString chosen = dialog.answer();
        if (!ok || chosen.isEmpty() || chosen == QLatin1String("DIR"))
            return;
        lastDir = QFileInfo(chosen).absolutePath();
        loadPictureFile(chosen, command);
    });
}

bool MainWindow::savePicture(const QString &path, bool selection)
{
    bool saved = false;
    guarded(QStringLiteral("Menu_SaveImage"), [&] {
        const SaveName name = classSaveName(path);
        Workspace &ws = m_session.workspace();
        PictureBox *source = &ws.Bild;
        if (selection) {
            source = ws.PicSelect.Visible()    ? &ws.PicSelect
                     : ws.picSelectC.Visible() ? &ws.picSelectC
                                               : &ws.Bild;
            m_session.DoEvents();
        }
        // A picture that is what its paints made carries their recipe.
        const QStringList recipe =
            source == &ws.Bild ? m_paintHistory.recipeFor(ws.Bild.Image().cacheKey()) : QStringList();
        // The elliptic selection is saved as the clipboard takes it: the background colour
        // round its ellipse.
        const QImage picture =
            source == &ws.picSelectC ? m_tools->selections().shownImage() : source->Image();
        const WriteResult r = tf::savePicture(picture, name.path, name.SaveTypeTag,
                                              pictureMetaOf(m_session, recipe));
        if (!r.ok()) {
            m_session.ask(r.message, Buttons::Ok, Icon::Exclamation);
            return;
        }
        saved = true;
        const QFileInfo file(name.path);
        m_settings.PDirWrite = file.absolutePath();
        if (m_store)
            m_settings.save(*m_store);
        if (selection)
            return;
        SavePathFile = file.absoluteFilePath();
        ws.BildChanged = false;
        m_fileName = file.fileName();
        m_mru.AddFile(file.absoluteFilePath());
        updateRecentMenu();
        Set_MDI_Caption();
    });
    return saved;
}

void MainWindow::Menu_SaveImage(int Index, bool selection)
{
    guarded(QStringLiteral("Menu_SaveImage"), [&] {
        const Workspace &ws = m_session.workspace();
        const bool selectionShown = ws.PicSelect.Visible() || ws.picSelectC.Visible();
        selection = selection && selectionShown;
        if (Index == 0 && !selection && !SavePathFile.isEmpty()) {
            savePicture(SavePathFile);
            return;
        }
        // The dialog starts in the last folder written to, preset to the present name's type.
        QString folder = m_settings.PDirWrite;
        const QString present = SavePathFile.isEmpty() ? m_fileName : QFileInfo(SavePathFile).fileName();
        const QString preset = presetSaveType(present);
        const QStringList filters{QStringLiteral("BMP - OS2 or Windows Bitmap (*.bmp)"),
                                  QStringLiteral("JPG - JPEG - JFIF Compliant (*.jpg)"),
                                  QStringLiteral("PNG - Portable Network Graphic Format (*.png)"),
                                  QStringLiteral("All Files (*.*)")};
        const QString presetFilter = preset == QLatin1String(".JPG")   ? filters[1]
                                     : preset == QLatin1String(".BMP") ? filters[0]
                                                                       : filters[2];
        QFileDialog dialog(this, selection ? tr("Auswahl speichern") : tr("Bild speichern"), folder);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(presetFilter);
        // The overwrite question is our own, after the name is classed.
        dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
        if (!present.isEmpty())
            dialog.selectFile(QFileInfo(present).completeBaseName() + preset.toLower());
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return;
        const SaveName name = classSaveName(dialog.selectedFiles().constFirst());
        if (Index == 1 && QFileInfo::exists(name.path) &&
            m_session.ask(tr("Soll die Datei %1 überschrieben werden?")
                              .arg(QDir::toNativeSeparators(name.path)),
                          Buttons::YesNo, Icon::Question) != Answer::Yes)
            return;
        savePicture(name.path, selection);
    });
}

void MainWindow::openDialog()
{
    Menu_LoadImage(1);
}

void MainWindow::saveAsDialog()
{
    Menu_SaveImage(1);
}

} // namespace tf::ui
