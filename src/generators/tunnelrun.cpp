#include "generators/tunnelrun.h"

#include "core/fault.h"
#include "core/picturebox.h"
#include "generators/tunnel.h"
#include "paint/session.h"

#include <QCoreApplication>

namespace tf {

namespace {

void endRun(Session &s)
{
    Workspace &ws = s.workspace();
    ws.Bild.setPicture(ws.Bild.Image());
    ws.BildChanged = true;
    CommandState commands = ws.commands;
    commands.save = true;
    commands.print = true;
    ws.setCommands(commands);
    s.runState().setAnimating(false);
    s.animation().stopRequested = false;
    s.status().setPanelText(sbrState, QCoreApplication::translate("Plasma", "Tunnel angehalten"));
}

bool start(Session &s)
{
    if (s.runState().busy()) return false;
    AnimationState &a = s.animation();
    a.stopRequested = false;
    Workspace &ws = s.workspace();
    std::unique_ptr<Tunnel> tunnel;
    const bool made = guarded(QStringLiteral("BtnPlasmaRepaint"), [&] {
        tunnel = makeTunnel(s, ws.Bild.Width(), ws.Bild.Height());
    });
    if (!made || !tunnel) return false;
    ws.Bild_nachUndo();
    a.current = std::move(tunnel);
    a.framesShown = 0;
    s.runState().setAnimating(true);
    s.status().setPanelText(sbrState, QCoreApplication::translate("Plasma", "Tunnel läuft"));
    Plasma_TunnelFrame(s);
    return true;
}

} // namespace

bool BtnPlasmaRepaint_Click(Session &s, int index)
{
    if (index == 0) return start(s);
    if (s.runState().animating()) s.animation().stopRequested = true;
    return true;
}

bool Plasma_TunnelFrame(Session &s)
{
    AnimationState &a = s.animation();
    if (!s.runState().animating()) return false;
    if (a.stopRequested || !a.current) {
        endRun(s);
        return false;
    }
    PictureBox &bild = s.workspace().Bild;
    bool drawn = true;
    try {
        if (a.current->frameSize() != bild.Image().size())
            throw Fault(Fault::InvalidCall);
        if (a.framesShown > 0) a.current->advance(1);
        a.current->render(bild.mutableImage());
        bild.markChanged();
        ++a.framesShown;
    } catch (...) {
        drawn = false;
    }
    if (!drawn) {
        // "Blit Error - Tunnel": the frame could not be shown; the run ends.
        s.ask(QCoreApplication::translate("Plasma", "Blit Error - Tunnel"), Buttons::Ok,
              Icon::Exclamation);
        endRun(s);
        return false;
    }
    return true;
}

} // namespace tf
