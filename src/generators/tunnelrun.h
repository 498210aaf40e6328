#pragma once
// The tunnel in the work picture, without the window: the panel's two buttons and the tick of
// the window's timer.
//
// "Start Tunnel" (`BtnPlasmaRepaint_Click` 0) takes Bild's undo image, makes the tunnel for
// Bild's size from the plasma panel (tunnel.h), shows its first frame and marks RunState
// animating, so every other command waits. At a transparency of 2 to 98 (the paint dialog's
// "ScrollTransparence") every frame is laid over the picture as it was at the start, with
// the paint's blend. The window then calls `Plasma_TunnelFrame` from
// its timer, `framesPerSecond()` times a second. "Stop" (index 1) asks for the end; the next
// tick ends the run after its frame: Bild keeps the last frame as its picture, one Undo
// brings back the picture before the start, and the tunnel stays in the session for the
// export.

namespace tf {

class Session;

// Index 0 starts the tunnel (false when something runs already or the start failed, which is
// reported under "BtnPlasmaRepaint"); index 1 asks it to stop.
bool BtnPlasmaRepaint_Click(Session &s, int index);
// Draws the next frame into Bild; after a Stop it ends the run instead and answers false.
bool Plasma_TunnelFrame(Session &s);

} // namespace tf
