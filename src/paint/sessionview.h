#pragma once
// The window that shows a session, as the engine sees it: what it is told when the workspace,
// the paint dialog's state or a control changes, and the main window's routines that the
// engine calls at fixed points of a paint or a command. A session without a window (the
// command line's, a preview's, a test's) keeps this base, which has nothing to do.

#include "core/workspace.h"
#include "paint/controls.h"
#include "paint/grafdialog.h"

namespace tf {

class SessionView : public WorkspaceView, public GrafDialogView, public ControlsView {
public:
    // Releases the armed mouse tool (before a paint).
    virtual void reset_imgButtons() {}
    // Clears the toggles of the draw styles (before a paint).
    virtual void clr_DrawStyleButtons() {}
    // The option panels follow GrafKey: the type's panel comes on top.
    virtual void Handle_Formobjects() {}
    // The brushes take the picture anew as their working copy.
    virtual void Refresh_BrushImage() {}
    // Shows the Superformat picture (the session's SuperDIB) in the Superformat viewer, after
    // a Superformat paint.
    virtual void showSuperformat() {}
    // frmDiaSetBildquelle: lets the user choose a file or a directory as the photo source
    // (the session's PicSourceList and the panel's source option); false when nothing was
    // chosen or there is no window to ask in.
    virtual bool choosePicSource() { return false; }
    // Opens the matrix window ("The Matrix") with glyphs of `glyph` pixels falling at `speed`
    // (1..10); answers false when there is no window to open it in.
    virtual bool openMatrixWindow(int glyph, int speed)
    {
        (void)glyph;
        (void)speed;
        return false;
    }
};

} // namespace tf
