// The main window's commands: new picture, undo, the groups, Paint and its companions, the
// palettes, the clipboard and printing.
#include "ui/mainwindow.h"

#include "core/pictureformats.h"
#include "core/settings.h"
#include "generators/tunnelrun.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/paintrecord.h"
#include "paint/paletteload.h"
#include "ui/colourdialogdock.h"
#include "ui/featdialogdock.h"
#include "ui/grafdialogdock.h"
#include "ui/idleguard.h"
#include "files/passepartoutfile.h"
#include "ui/passepgen.h"
#include "ui/pictureview.h"
#include "ui/printpreview.h"
#include "ui/sizedialog.h"
#include "ui/statusbar.h"
#include "ui/systempalettedialog.h"
#include "ui/tileviewer.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPainter>
#include <QTimer>
#include <QToolBar>

namespace tf::ui {

void MainWindow::newPicture(int formatIndex)
{
    Workspace &ws = m_session.workspace();
    if (ws.BildChanged &&
        m_session.ask(tr("Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert."),
                      Buttons::YesNo, Icon::Question) != Answer::Yes)
        return;
    const NewPictureFormat &f = newPictureFormats()[size_t(formatIndex)];
    int w = f.width, h = f.height;
    if (formatIndex == 0) {
        // The free size is remembered across sessions, proportion and all.
        SizeDialog dialog(m_settings.imgFormat, m_settings.imgFormatW, m_settings.imgFormatH, this);
        if (dialog.exec() != QDialog::Accepted)
            return;
        w = dialog.pictureWidth();
        h = dialog.pictureHeight();
        m_settings.imgFormat = dialog.proportion();
        m_settings.imgFormatW = w;
        m_settings.imgFormatH = h;
        if (m_store) {
            const QString S = QString::fromLatin1(SubKey::Settings);
            m_store->Put_Setting(S, QStringLiteral("imgFormat"), m_settings.imgFormat);
            m_store->Put_Setting(S, QStringLiteral("imgFormatW"), w);
            m_store->Put_Setting(S, QStringLiteral("imgFormatH"), h);
            m_store->sync();
        }
    }
    ws.NewFormatW = w;
    ws.NewFormatH = h;
    ws.NewFormatMax = std::max(w, h);
    ws.New_BildSize(w, h);
    ws.Bild.setPicture(QImage());
    ws.Bild_CLEAR();
    ws.BildUndo.setPicture(QImage());
    ws.lastaction.clear();
    ws.BildChanged = false;
    m_formatIndex = formatIndex;
    CommandState c = ws.commands;
    c.undo = false;
    c.print = false;
    ws.setCommands(c);
    m_fileName.clear();
    Set_MDI_Caption();
}

void MainWindow::mn_ClrPaint()
{
    Workspace &ws = m_session.workspace();
    PictureBox *selection = ws.PicSelect.Visible()    ? &ws.PicSelect
                            : ws.picSelectC.Visible() ? &ws.picSelectC
                                                      : nullptr;
    if (selection) {
        // Cls reaches the persistent image only with AutoRedraw on.
        const bool autoRedraw = selection->AutoRedraw();
        selection->setAutoRedraw(true);
        selection->Cls();
        selection->setAutoRedraw(autoRedraw);
        return;
    }
    m_session.view().Refresh_BrushImage();
    if (!fixings().pictureFixed()) fixings().Set_Fixstatus(false);
}

void MainWindow::mn_ClrPic()
{
    Workspace &ws = m_session.workspace();
    if (ws.BildChanged &&
        m_session.ask(tr("Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. "
                         "Wollen Sie das aktuelle Bild verwerfen?"),
                      Buttons::YesNo, Icon::Question) != Answer::Yes)
        return;
    // One Undo brings the cleared picture back.
    ws.Bild_nachUndo();
    ws.Bild.setPicture(QImage());
    ws.Bild_CLEAR();
    ws.lastaction.clear();
    refreshStatus();
    Set_MDI_Caption();
}

void MainWindow::undoRedo()
{
    m_session.workspace().Menu_UndoRedo();
    // Undo may show, hide, move or resize a selection as well as change the picture.
    m_view->update();
    updateCommands();
    refreshStatus();
    Set_MDI_Caption();
    m_view->setFocus();
}

void MainWindow::chooseGroup(int group)
{
    if (group < 1 || group > GroupCount)
        return;
    tf::mn_Grafmodes(m_session, group);
    mn_Grafmodes[size_t(group - 1)]->setChecked(true);
    m_toolBar->setToolTip(groupLabel(group));
    m_featDialog->Handle_Formobjects();
}

void MainWindow::paint()
{
    // While the tunnel runs, Paint stops it, as it stops a paint.
    if (m_session.runState().animating()) {
        BtnPlasmaRepaint_Click(m_session, 1);
        return;
    }
    const qint64 before = m_session.workspace().Bild.Image().cacheKey();
    const bool painted = BtnPaint_Click(m_session) == PaintOutcome::Painted;
    if (painted && m_session.paint().lastPaint)
        m_paintHistory.notePaint(*m_session.paint().lastPaint, before,
                                 m_session.workspace().Bild.Image().cacheKey(),
                                 !m_session.workspace().PicSelect.Visible() &&
                                     !m_session.workspace().picSelectC.Visible());
    afterPaint();
}

void MainWindow::roll(int index)
{
    // A roll repaints from a former set: its picture is not one command line's.
    BtnPaintRoll_Click(m_session, index);
    m_paintHistory.clear();
    afterPaint();
}

void MainWindow::runPanelAction(const PanelAction &action)
{
    // A repaint keeps frames of a former set: its picture is not one command line's.
    action.run(m_session);
    m_paintHistory.clear();
    afterPaint();
}

void MainWindow::afterPaint()
{
    updateCommands();
    refreshStatus();
    Set_MDI_Caption();
    // The window was closed during the paint: it closes now that the paint has stopped.
    if (m_closeAfterPaint && !isBusy(m_session)) {
        m_closeAfterPaint = false;
        QTimer::singleShot(0, this, &QWidget::close);
    }
}

void MainWindow::paintRunning(bool running)
{
    // While a paint runs, only the Paint button (now Stop) and the roll buttons are live: the
    // paint gives way to input, and a menu command in between would change the picture under it.
    menuBar()->setEnabled(!running);
    m_toolBar->setEnabled(!running);
    m_featDialog->setEnabled(!running);
    m_grafDialog->setPaintRunning(running);
}

void MainWindow::loadPalette()
{
    QString folder = m_settings.PDirPalet;
    const QString path = QFileDialog::getOpenFileName(this, tr("Palette laden"), folder,
                                                      tr("JASC-Palette (*.pal)"));
    const PaletteLoadResult r = Menu_LoadPalette(m_session, path, &m_colourDialog->palStrip());
    if (!r.folder.isEmpty() && r.folder != m_settings.PDirPalet)
        m_settings.PDirPalet = r.folder;
    m_colourDialog->refreshFromState();
}

void MainWindow::systemPalette()
{
    tf::mn_SystemPalette(m_session, SystemPaletteDialog::ShowDialog(this), &m_colourDialog->palStrip());
    m_colourDialog->refreshFromState();
}

void MainWindow::copyPictureToClipboard()
{
    QGuiApplication::clipboard()->setImage(m_session.workspace().Bild.Image());
}

void MainWindow::copyCommandLine()
{
    const auto &last = m_session.paint().lastPaint;
    if (!last) {
        m_status->setPanelText(sbrState, tr("Es wurde noch nichts gemalt."));
        return;
    }
    QGuiApplication::clipboard()->setText(paintCommandLine(*last));
    m_status->setPanelText(sbrState, tr("Befehlszeile in die Zwischenablage kopiert."));
}

void MainWindow::resetDefaults()
{
    m_session.controls().resetToDefaults();
    applyDisplayTime();
}

void MainWindow::printPicture()
{
    PrintJob job;
    job.picture = m_session.workspace().Bild.Image();
    job.dpi = int(m_session.controls().number(ControlKey{QStringLiteral("cmbDPI")}));
    job.title = m_fileName.isEmpty() ? tr("Bild") : QFileInfo(m_fileName).fileName();
    printWithPreview(this, m_prompter, job);
}

void MainWindow::showPassepartouts()
{
    PassepGen generator(m_session, ppDataPath(m_session.workspace().TempDir()), this);
    generator.exec();
}

void MainWindow::showTileViewer()
{
    if (!m_tileViewer) {
        m_tileViewer = new TileViewer(m_session, this);
        connect(m_tileViewer, &TileViewer::loadTileRequested, this, [this] {
            Menu_LoadImage(3);
            m_tileViewer->refresh();
        });
    }
    m_tileViewer->refresh();
    m_tileViewer->show();
    m_tileViewer->raise();
    m_tileViewer->activateWindow();
}

} // namespace tf::ui
