#include "ui/mosaikshow.h"

#include "core/fault.h"
#include "core/surfacepreview.h"
#include "files/recipe.h"
#include "files/savename.h"
#include "files/surfacesave.h"
#include "paint/session.h"
#include "paint/superformatpaint.h"
#include "ui/idleguard.h"
#include "ui/printpreview.h"
#include "ui/supercanvas.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <cmath>

namespace tf::ui {

namespace {

// The longer side of the picture handed to the print job: larger than any page needs.
constexpr int PrintSide = 4096;

} // namespace

MosaikShow::MosaikShow(Session &session, int &SaveJPQ, QWidget *parent)
    : QMainWindow(parent), m_session(session), m_SaveJPQ(SaveJPQ)
{
    setObjectName(QStringLiteral("frmMosaikShow"));
    setWindowFlag(Qt::Window);
    picMosaik = new SuperCanvas(this);
    setCentralWidget(picMosaik);

    m_fileMenu = menuBar()->addMenu(QString());
    m_jpegMenu = m_fileMenu->addMenu(QString());
    for (const int quality : MosaikShowQualities)
        connect(m_jpegMenu->addAction(QStringLiteral("%1 %").arg(quality)), &QAction::triggered,
                this, whenIdle(m_session, [this, quality] { Menu_SaveImage(quality); }));
    // While a paint runs the surface is being drawn: saving, printing and Undo wait for it.
    // Zooming only reads, and stays live.
    mn_SaveOther = m_fileMenu->addAction(QString());
    connect(mn_SaveOther, &QAction::triggered, this,
            whenIdle(m_session, [this] { Menu_SaveBMP(); }));
    m_fileMenu->addSeparator();
    mn_Print = m_fileMenu->addAction(QString());
    connect(mn_Print, &QAction::triggered, this, whenIdle(m_session, [this] { mn_Drucken(); }));
    mn_Print->setShortcut(QKeySequence::Print);
    m_fileMenu->addSeparator();
    mn_Close = m_fileMenu->addAction(QString(), this, &QWidget::close);

    m_editMenu = menuBar()->addMenu(QString());
    mn_Undo = m_editMenu->addAction(QString());
    connect(mn_Undo, &QAction::triggered, this, whenIdle(m_session, [this] { Menu_UndoRedo(); }));
    mn_Undo->setShortcut(QKeySequence::Undo);

    m_viewMenu = menuBar()->addMenu(QString());
    mn_Fit = m_viewMenu->addAction(QString(), picMosaik, &SuperCanvas::fit);
    mn_Zoom100 = m_viewMenu->addAction(QString(), picMosaik, [this] { picMosaik->setZoom(1); });
    mn_ZoomIn = m_viewMenu->addAction(QString(), picMosaik, &SuperCanvas::zoomIn);
    mn_ZoomIn->setShortcuts({QKeySequence(Qt::Key_Plus), QKeySequence::ZoomIn});
    mn_ZoomOut = m_viewMenu->addAction(QString(), picMosaik, &SuperCanvas::zoomOut);
    mn_ZoomOut->setShortcuts({QKeySequence(Qt::Key_Minus), QKeySequence::ZoomOut});
    mn_Fit->setShortcut(QKeySequence(Qt::Key_0));
    mn_Zoom100->setShortcut(QKeySequence(Qt::Key_1));

    lblSize = new QLabel(this);
    lblZoom = new QLabel(this);
    statusBar()->addWidget(lblSize, 1);
    statusBar()->addPermanentWidget(lblZoom);
    connect(picMosaik, &SuperCanvas::zoomChanged, this, &MosaikShow::showZoom);

    retranslate();
    resize(1000, 760);
}

void MosaikShow::refresh()
{
    const SuperformatSurfaces &sf = m_session.superformat();
    picMosaik->setSurface(sf.hasPicture() ? &sf.SuperDIB : nullptr);
    mn_Undo->setEnabled(sf.canUndo());
    for (QAction *a : {mn_SaveOther, mn_Print, mn_Fit, mn_Zoom100, mn_ZoomIn, mn_ZoomOut})
        a->setEnabled(sf.hasPicture());
    m_jpegMenu->setEnabled(sf.hasPicture());
    lblZoom->setVisible(sf.hasPicture());
    lblSize->setText(sf.hasPicture() ? tr("%1 x %2 Pixel")
                                           .arg(sf.SuperDIB.dib_width())
                                           .arg(sf.SuperDIB.dib_height())
                                     : tr("Es gibt noch kein Superformat-Bild."));
}

void MosaikShow::showZoom(double zoom)
{
    lblZoom->setText(QStringLiteral("%1 %").arg(zoom * 100, 0, 'f', zoom < 0.1 ? 1 : 0));
}

bool MosaikShow::saveTo(const QString &path, const QString &tag, int quality)
{
    const SuperformatSurfaces &sf = m_session.superformat();
    if (!sf.hasPicture()) return false;
    if (QFileInfo::exists(path)) {
        Prompt p;
        p.text = tr("Soll die Datei %1 überschrieben werden?").arg(QDir::toNativeSeparators(path));
        p.buttons = Buttons::YesNo;
        p.icon = Icon::Question;
        p.defaultButton = 1;
        if (m_session.prompter().ask(p) != Answer::Yes) return false;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const WriteResult r =
        saveSurface(sf.SuperDIB, path, tag, pictureMetaOf(m_session, {}), quality);
    QApplication::restoreOverrideCursor();
    if (!r.ok()) {
        Prompt p;
        p.text = r.message;
        p.icon = Icon::Exclamation;
        m_session.prompter().ask(p);
        return false;
    }
    statusBar()->showMessage(tr("Gespeichert: %1").arg(QDir::toNativeSeparators(path)), 5000);
    return true;
}

void MosaikShow::Menu_SaveImage(int quality)
{
    guarded(QStringLiteral("Menu_SaveImage"), [&] {
        m_SaveJPQ = quality;
        statusBar()->showMessage(tr("Das Bild wird mit %1% JPQ - Qualität gespeichert.").arg(quality));
        QFileDialog dialog(this, tr("Bild speichern"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.setNameFilters(
            {QStringLiteral("JPG - JPEG - JFIF Compliant (*.jpg)"), tr("Alle Dateien (*)")});
        dialog.setDefaultSuffix(QStringLiteral("jpg"));
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
        QString path = dialog.selectedFiles().constFirst();
        if (!path.contains(QLatin1String(".jpg"), Qt::CaseInsensitive) &&
            !path.endsWith(QLatin1String(".jpeg"), Qt::CaseInsensitive))
            path += QLatin1String(".jpg");
        saveTo(path, QStringLiteral("JPG"), quality);
    });
}

void MosaikShow::Menu_SaveBMP()
{
    guarded(QStringLiteral("Menu_SaveBMP"), [&] {
        QFileDialog dialog(this, tr("Bild speichern"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        const QString bmp = QStringLiteral("BMP - OS2 or Windows Bitmap (*.bmp)");
        const QString png = QStringLiteral("PNG - Port. Network Graphic (*.png)");
        dialog.setNameFilters({bmp, png, tr("Alle Dateien (*)")});
        dialog.selectNameFilter(png);
        dialog.setDefaultSuffix(QStringLiteral("png"));
        connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString &f) {
            dialog.setDefaultSuffix(f == bmp ? QStringLiteral("bmp") : QStringLiteral("png"));
        });
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
        QString path = dialog.selectedFiles().constFirst();
        QString tag = saveTypeOfSuffix(path);
        if (tag != QLatin1String("PNG") && tag != QLatin1String("BMP")) {
            tag = dialog.selectedNameFilter() == bmp ? QStringLiteral("BMP") : QStringLiteral("PNG");
            path += tag == QLatin1String("BMP") ? QStringLiteral(".bmp") : QStringLiteral(".png");
        }
        saveTo(path, tag);
    });
}

void MosaikShow::mn_Drucken()
{
    const SuperformatSurfaces &sf = m_session.superformat();
    if (!sf.hasPicture()) return;
    // The print job gets the picture reduced to what a page can show; its resolution is
    // reduced with it, so that it prints at the same size.
    PrintJob job;
    job.picture = surfaceOverview(sf.SuperDIB, PrintSide);
    const double dpi = m_session.controls().number(ControlKey{QStringLiteral("cmbDPI")});
    job.dpi = std::max(1, int(std::lround((dpi >= 1 ? dpi : 300) * job.picture.width() /
                                          sf.SuperDIB.dib_width())));
    job.title = tr("Superformat");
    printWithPreview(this, m_session.prompter(), job);
}

void MosaikShow::Menu_UndoRedo()
{
    SuperformatSurfaces &sf = m_session.superformat();
    if (!sf.canUndo()) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool ok = sf.undo();
    QApplication::restoreOverrideCursor();
    if (!ok && !sf.hasPicture()) {
        Prompt p;
        p.text = superimageMemoryText();
        p.icon = Icon::Critical;
        p.title = QStringLiteral("Tarvelle-Forge");
        m_session.prompter().ask(p);
    }
    refresh();
    emit pictureChanged();
}

void MosaikShow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QMainWindow::changeEvent(event);
}

void MosaikShow::retranslate()
{
    setWindowTitle(tr("Superformat"));
    m_fileMenu->setTitle(tr("&Datei"));
    m_jpegMenu->setTitle(tr("&Speichern als JPEG"));
    mn_SaveOther->setText(tr("Speichern andere For&mate..."));
    mn_Print->setText(tr("&Drucken..."));
    mn_Close->setText(tr("S&chließen"));
    m_editMenu->setTitle(tr("&Bearbeiten"));
    mn_Undo->setText(tr("&Undo / Redo"));
    m_viewMenu->setTitle(tr("&Ansicht"));
    mn_Fit->setText(tr("&Einpassen"));
    mn_Zoom100->setText(tr("&100 %"));
    mn_ZoomIn->setText(tr("Ver&größern"));
    mn_ZoomOut->setText(tr("Ver&kleinern"));
    refresh();
    showZoom(picMosaik->zoom());
}

} // namespace tf::ui
