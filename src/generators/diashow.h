#pragma once
// The running slide show of "PIC-DiaShow", without its window: a picture of the show's
// working size (the window's) into which the photo mosaic paints one frame a step, and the
// steps kept for going back.
//
// A step moves the show on: the first step of a layout clears the picture and builds a new
// layout (with the panel "feat_15PicMosaik" as it stands then) and paints its first frame;
// each further step paints one frame; when the layout is full, one step draws its frame lines,
// and the next starts the next layout. So the show repeats with a new layout until it is
// stopped. The window calls step() from its timer every delayMs().
//
// back() shows the state of one step before, as far as steps are kept (the last KeptSteps);
// step() after going back first walks forward through the kept steps again before it paints
// anything new, so the show goes on where it was.
//
// The layout is built for the working size; the nominal size of a show's layout (4512 x 3384,
// the picture a show is cut from) is handed to the mosaic with the call.
//
// Made while "Repaint letztes Set" runs (a loaded presentation), the show's first layout keeps
// the frames of the last set.
//
// Faults and the mosaic's messages (no source, too few pictures, Retry-Cancel) go through the
// session's prompter; a layout that cannot start or is cancelled ends the show.

#include "core/picturebox.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <deque>
#include <memory>

namespace tf {

class PicMosaikRun;
class Session;
struct PaintContext;

class DiaShow {
public:
    static constexpr int KeptSteps = 12;
    static constexpr int NominalW = 0x11A0; // 4512
    static constexpr int NominalH = 0xD38;  // 3384

    DiaShow(Session &session, QSize workingSize);
    ~DiaShow();
    DiaShow(const DiaShow &) = delete;
    DiaShow &operator=(const DiaShow &) = delete;

    // Moves on by one step. False when the show has ended (no source, Cancel, a fault); then
    // the picture stays as it was.
    bool step();
    // Shows the state one step back; false when no earlier step is kept.
    bool back();

    // What is on show now, and the file of the picture the step pasted (empty for a step that
    // pasted none: the frame lines, a fresh layout that was passed over).
    const QImage &image() const;
    QString file() const;
    QSize size() const { return m_size; }
    bool ended() const { return m_ended; }
    // Steps made so far (painted, not replayed) and layouts started.
    int steps() const { return m_steps; }
    int layouts() const { return m_layouts; }
    // The layout on show is full and has its frame lines: the next step starts a new one.
    bool layoutDone() const { return m_finished; }

    // The display time of one step: Val(txtPicMosaik_Timer) seconds, in milliseconds.
    int delayMs() const;
    // "Max. Splitgrößen B/H = ... --- Max. Treffer-Bildgröße B/H = ..." of the last layout
    // (empty before the first).
    QString statusText() const;

private:
    struct Shown {
        QImage image;
        QString file;
    };
    bool paintStep();
    void keep(const QString &file);

    Session &m_session;
    QSize m_size;
    PictureBox m_picture, m_undo, m_work;
    std::unique_ptr<PaintContext> m_ctx;
    std::unique_ptr<PicMosaikRun> m_run;
    bool m_repaintFirst = false; // the first layout keeps the frames of the last set
    bool m_finished = false;     // the layout's lines are drawn: the next step starts a new one
    std::deque<Shown> m_kept;
    size_t m_at = 0; // the kept step on show
    bool m_ended = false;
    int m_steps = 0;
    int m_layouts = 0;
    QString m_status;
};

// The painter of "PIC-DiaShow": the show runs in a window of its own (SessionView::runDiaShow)
// until it is closed or stopped, then the status bar tells the largest frame and picture of the
// last layout. Without a window (the command line) one layout of the mosaic is painted into the
// picture instead.
void paintPicDiaShow(PaintContext &ctx);

} // namespace tf
