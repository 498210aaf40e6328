#include "generators/tunnelrun.h"

#include "core/fault.h"
#include "core/picturebox.h"
#include "generators/tunnel.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QCoreApplication>

#include <algorithm>

namespace tf {

namespace {

// The frame on Bild laid over the picture under it, through the table made at the start.
void layOver(QImage &frame, const AnimationState &a)
{
    const int w = std::min(frame.width(), a.ground.width());
    const int h = std::min(frame.height(), a.ground.height());
    for (int y = 0; y < h; ++y) {
        uchar *n = frame.scanLine(y);
        const uchar *o = a.ground.constScanLine(y);
        for (int x = 0; x < w * 4; x += 4)
            for (int c = 0; c < 3; ++c)
                n[x + c] = a.blend[size_t(n[x + c] << 8 | o[x + c])];
    }
}

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
    s.animation().ground = QImage();
    s.animation().blend.clear();
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
    // At a transparency of 2 to 98 the frames lie over the picture as a paint would.
    TransparencyState t;
    t.setPercent(s.controls().value(QStringLiteral("ScrollTransparence")));
    a.ground = QImage();
    a.blend.clear();
    if (t.active()) {
        a.ground = ws.Bild.Image().convertToFormat(QImage::Format_RGB32);
        a.blend.resize(256 * 256);
        for (int n = 0; n < 256; ++n)
            for (int o = 0; o < 256; ++o)
                a.blend[size_t(n << 8 | o)] =
                    uint8_t(std::clamp(blendChannel(n, o, t.TranspFactor), 0, 255));
    }
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
        if (!a.blend.empty()) layOver(bild.mutableImage(), a);
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
