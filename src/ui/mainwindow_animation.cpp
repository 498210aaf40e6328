// The main window's plasma tunnel (started and stopped on the plasma panel, run by a timer)
// and "Animation speichern...".
#include "ui/mainwindow.h"

#include "files/animationfile.h"
#include "generators/animations.h"
#include "generators/tunnelrun.h"
#include "ui/featdialogdock.h"
#include "ui/grafdialogdock.h"
#include "ui/idleguard.h"
#include "ui/plasmapanel.h"
#include "ui/tunneldriver.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QProgressDialog>
#include <QToolBar>

namespace tf::ui {

void MainWindow::createAnimationActions()
{
    m_tunnel = new TunnelDriver(m_session, this);
    connect(m_tunnel, &TunnelDriver::runningChanged, this, &MainWindow::tunnelRunning);
    if (PlasmaPanelExtras *extras = m_featDialog->plasmaExtras()) {
        connect(extras, &PlasmaPanelExtras::startTunnel, this,
                whenIdle(m_session, [this] { m_tunnel->start(); }));
        // Stop is live while the tunnel runs: it needs no guard.
        connect(extras, &PlasmaPanelExtras::stopTunnel, this, [this] { m_tunnel->stop(); });
    }
    mn_AnimationSpeichern = new QAction(this);
    mn_AnimationSpeichern->setObjectName(QStringLiteral("mn_AnimationSpeichern"));
    connect(mn_AnimationSpeichern, &QAction::triggered, this,
            whenIdle(m_session, [this] { exportAnimation(); }));
}

void MainWindow::tunnelRunning(bool running)
{
    // While the tunnel runs, its Stop, Paint (which stops it) and the picture stay live.
    menuBar()->setEnabled(!running);
    m_toolBar->setEnabled(!running);
    m_grafDialog->setPaintRunning(running);
    if (PlasmaPanelExtras *extras = m_featDialog->plasmaExtras()) extras->refresh();
    if (running)
        QApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QApplication::restoreOverrideCursor();
    if (!running) afterPaint();
}

void MainWindow::exportAnimation()
{
    // The tunnel on show (or the last one) is saved from its present frame; without one, the
    // chosen type's animation is made anew from the panels.
    AnimationState &state = m_session.animation();
    const QSize size = m_session.workspace().Bild.Image().size();
    std::unique_ptr<Animation> animation;
    if (state.current && state.current->frameSize() == size) {
        animation = state.current->clone();
    } else if (const AnimationEntry *entry = findAnimation(m_session.paint().GrafKey)) {
        animation = entry->make(m_session, size.width(), size.height());
    }
    if (!animation) {
        m_session.ask(tr("Es gibt keine Animation zum Speichern: starten Sie zuerst den Tunnel "
                         "des Plasmas."),
                      Buttons::Ok, Icon::Information);
        return;
    }
    AnimationDialog dialog(m_animationChoice, this);
    if (dialog.exec() != QDialog::Accepted) return;
    m_animationChoice = dialog.choice();

    const QString png = tr("Animiertes PNG (*.png)"), gif = tr("Animiertes GIF (*.gif)");
    QFileDialog files(this, tr("Animation speichern"), m_settings.PDirWrite);
    files.setObjectName(QStringLiteral("dlgAnimationFile"));
    files.setAcceptMode(QFileDialog::AcceptSave);
    files.setNameFilters({png, gif});
    if (files.exec() != QDialog::Accepted || files.selectedFiles().isEmpty()) return;
    QString path = files.selectedFiles().constFirst();
    if (!animationKindOf(path))
        path += files.selectedNameFilter() == gif ? QStringLiteral(".gif") : QStringLiteral(".png");

    QProgressDialog progress(tr("Animation wird gespeichert..."), tr("Abbrechen"), 0,
                             m_animationChoice.frames, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(300);
    m_session.runState().setAnimating(true);
    WriteResult result;
    const bool ran = guarded(QStringLiteral("Animation speichern"), [&] {
        result = writeAnimation(path, *animation, m_animationChoice.frames,
                                m_animationChoice.fps, m_animationChoice.loops,
                                [&](int done, int) {
                                    progress.setValue(done);
                                    return !progress.wasCanceled();
                                });
    });
    m_session.runState().setAnimating(false);
    progress.reset();
    if (ran && !result.ok() && !result.message.isEmpty())
        m_session.ask(result.message, Buttons::Ok, Icon::Exclamation);
}

} // namespace tf::ui
