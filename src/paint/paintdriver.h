#pragma once
// The Paint command: what happens between a press of the Paint button (or F5) and the
// finished picture, and the Stop that the same button becomes while a paint runs.
//
// The action string `lastaction` (in the workspace) is kept up to date first: the selection
// kind is tested by its first four letters ("RECT", "CIRC"), the words "$PAINT", "MOVED" and
// "RESIZED" by substring, so that "RECT$PAINT" counts as a paint on the rectangular selection.
//
// A paint runs on the GUI's one thread. Painters call `Session::DoEvents()` in long loops;
// the GUI's yield hook lets pending input run there, so a second click on the button re-enters
// BtnPaint_Click and asks to confirm the Stop while the paint is suspended in DoEvents.

#include <QString>

namespace tf {

class Session;

enum class PaintOutcome {
    Painted,       // a painter ran (to its end, or to a Stop it obeyed)
    StopConfirmed, // the click was a Stop and the user confirmed it
    StopCancelled, // the click was a Stop and the user went on painting
    NoTypeChosen,  // no row of the type list was chosen: the user was told
    NotPaintable,  // a separator, or a type whose painter is not built in: the status bar says
    Busy,          // a paint already runs
    Failed,        // a fault was reported
};

// The Paint button: brings lastaction up to date, then stops the running paint (a caption
// beginning "STO", after confirmation) or paints the type chosen in the list. Faults are
// reported under "DoPaintButton".
PaintOutcome BtnPaint_Click(Session &s);
// The roll buttons, index 0 "<<" and 1 ">>": the previous or next type of the group, round
// the list and past its separators, then a paint. While a paint runs, a Stop without asking.
PaintOutcome BtnPaintRoll_Click(Session &s, int index);

// The repaint buttons of the option panels ("Repaint letztes Set"): paints GrafKey again as
// Paint does (target, undo image, seed, record, the persistent picture), but without reading
// the type list and without erasing the layout of the last Mondrian set, which the painter
// may keep. Faults are reported under "DoPaintButton".
PaintOutcome paintAgain(Session &s);

// A paint after another action: without a visible selection lastaction becomes ""; the
// picture is marked changed; a moved selection turns into a paint on that selection.
void patch_lastactionpaint(Session &s);

// The dispatcher: paints GrafKey on the target chosen by Set_BILD. Refuses while a paint
// runs; takes the undo image and resets the tools first (unless the type needs none), reads
// the option variables, seeds the random generator (PaintState::nextSeed, else from the clock)
// and records the paint in PaintState::lastPaint. The status bar shows the seed.
PaintOutcome Create_Polygraphics(Session &s);

// The second progress bar of long paints, over the session's status sink.
void init_Progress2(Session &s, int lValue);
void set_Progress2(Session &s, int value);
void exit_Progress2(Session &s);

} // namespace tf
