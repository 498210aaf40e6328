#pragma once
// The photo mosaic: the frames of a Mondrian layout (mondrianlayout.h) filled with photos from
// one file or a directory (the session's PicSourceList). "PIC-Mosaik" paints the work picture,
// "PIC-MosaikSuper" the Superformat surface, and the slide show ("PIC-DiaShow") paints the
// same frames one after another on a timer. All three drive one frame-by-frame painter,
// PicMosaikRun:
//
//     PicMosaikRun run(ctx, call);                 // call: picMosaikCallFromPanel(...)
//     if (run.start(canvas)) {                     // source, layout; messages on failure
//         while (run.paintNext(canvas)) {          // one frame a call
//             if (ctx.stopRequested()) break;      // (the show: wait for its timer here)
//         }
//         run.finish(canvas);                      // frame lines and the outer border
//     }
//
// Draw_PicMosaik is exactly that loop with the Stop button honoured between frames. A show
// calls paintNext from its timer, honours its own Stop and Delay between calls, and after
// `full()` calls finish, then start again for the next layout (a new set, or with
// `call.Repaint` the same frames with new pictures).
//
// What a run reads at start: the panel "feat_15PicMosaik" (picmosaik_panels.cpp), the general
// options of the paint dialog (cmbPen through the call, XBorders, XCenter, XRandomValues) and
// the colour state (ColorBorder for the lines, the fill colours of "Alle Rahmen füllen" off).
//
// Sources. With "Datei" the one picture of PicSource is loaded once and every frame takes a
// part of it: without "Bild-Mix" its own part of the picture laid over the whole layout, with
// it ("Ausschnitt-Mix") a cut of the frame's size from a random place; duplicates are implied.
// With "Dateiverzeichnis" the directory is scanned once per change (xLib_DirRekurs, at most
// 32767 pictures) and each frame takes the next picture of the list, or with "Bild-Mix" one
// drawn at random; without "Dupl." no picture is used twice in a layout.
//
// Fitting. A picture is scaled (with "Bilder verkleinern") by the larger of frame/picture in
// width and height, so that it covers the frame, resampled with "Anti-Aliasing", else resized
// to the nearest pixel; then the frame's cut is taken from its centre ("Bilder zentrieren") or
// from a random place. A picture smaller than the frame is skipped unless "Kleine Bilder
// zulassen"; then it stands as it is at the frame's top left, or with "Kleine Bilder kacheln"
// repeated over the frame. When every picture has been skipped or used, a Retry-Cancel box
// says why: Retry starts the used pictures anew, Cancel ends the layout with the frames filled
// so far.
//
// Determinism and speed. Each frame's choices (the picture, its cut, its effects) are drawn
// from the session's generator in frame order before any picture is decoded; the pictures a
// stretch of frames needs are then decoded on all cores (JPEG at the smallest DCT scale that
// still covers the frame), and pasted in order. The same seed, options and source give the
// same bytes on any number of threads (setThreads).
//
// Faults are reported under "Draw_PicMosaik"; the frames painted so far stay.

#include "core/numeric.h"

#include <QSize>
#include <QString>
#include <cstdint>
#include <memory>

namespace tf {

class FrameCanvas;
class Session;
struct PaintContext;
enum class PaintOutcome;

constexpr const char *PicMosaikPanelName = "feat_15PicMosaik";

// What the painters, the repaint button and the show hand a run (the arguments of
// Draw_PicMosaik).
struct PicMosaikCall {
    int32_t Side = 0;       // the larger side of the target (0: take the target's)
    int16_t PenWidth = 1;   // rounded(Val(cmbPen) * 1.33), at least 1
    bool Repaint = false;   // keep the layout of the last set where it still fits
    int16_t SymH = 0;       // XPicMosaik(0), (1)
    int16_t SymV = 0;
    int16_t AllFrames = 1;  // YPicMosaik_EachRahmen
    int32_t Format = 0;     // cmbPicMosaik_Format(0): 0 square, 1 vertical, 2 horizontal
    int32_t Type = 0;       // cmbPicMosaik_Format(1): 0 Standard, 1 Be-Pop
    bool Show = false;      // a running show: no undo, no transparency, frames on a timer
    bool Super = false;     // painting a Superformat surface
    int32_t SuperW = 0;
    int32_t SuperH = 0;
    int16_t MinRatio = 2;   // the layout's minimum ratio for a subdivision (the show's own)
};

// The call read from the panel and the general options for a target of `targetSize`.
PicMosaikCall picMosaikCallFromPanel(const PaintContext &ctx, QSize targetSize, bool repaint);

// The frame-by-frame painter of one layout.
class PicMosaikRun {
public:
    PicMosaikRun(PaintContext &ctx, const PicMosaikCall &call);
    ~PicMosaikRun();
    PicMosaikRun(const PicMosaikRun &) = delete;
    PicMosaikRun &operator=(const PicMosaikRun &) = delete;

    // Reads the options, makes sure of the source (scanning a directory when the list does not
    // hold it) and builds the layout for `target` (or keeps the last one with call.Repaint).
    // The target is cleared to its rest state (a picture control's Cls; a surface keeps its
    // pixels). Answers false, after telling the user why through the session's prompter, when
    // no frame can be painted: no source, no valid picture, too few pictures for the frames.
    bool start(FrameCanvas &target);

    // Paints the next frame that gets a picture (frames left empty by "Nur freie Rahmen
    // füllen", "Nur Randbilder" or "Nur Innenbilder" are filled or passed over on the way).
    // Answers false when the layout is full or the run was ended (Cancel in the Retry-Cancel
    // box, a Stop seen by the run); then nothing was painted by this call.
    bool paintNext(FrameCanvas &target);

    // The frame lines and the outer border over the frames, as "ART-Mondrian" draws them
    // (XBorders, pen width, "Alle Rahmen zeichnen"). Call once after the last paintNext.
    void finish(FrameCanvas &target);

    bool full() const;     // every frame has been painted or passed over
    bool ended() const;    // Cancel or Stop ended the run before it was full
    int framesDone() const; // frames visited so far
    int frameCount() const; // frames of the layout
    // The file whose picture the last paintNext pasted (the show's caption label).
    QString lastFile() const;
    // The largest frame seen and the largest picture used, for the status text of a show:
    // "Max. Splitgrößen B/H = w/h --- Max. Treffer-Bildgröße B/H = w/h".
    QSize maxSplitSize() const;
    QSize maxHitSize() const;
    QString maxSizesText() const;

    // Decoding threads (0: every core); the result does not depend on it.
    void setThreads(int threads);
    // Frames planned and decoded ahead in one stretch (at least 1). The show keeps it small so
    // its first frame comes at once; a picture keeps the default.
    void setLookahead(int frames);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

// Paints a whole layout on `canvas`, frame after frame, with Stop honoured between frames.
// Faults go to the handler under "Draw_PicMosaik"; what was painted stays.
void Draw_PicMosaik(PaintContext &ctx, FrameCanvas &canvas, const PicMosaikCall &call);

// The painter of "PIC-Mosaik" on the work picture.
void paintPicMosaik(PaintContext &ctx);
// The painter of "PIC-MosaikSuper" into the Superformat surface.
void paintPicMosaikSuper(PaintContext &ctx);

// "Repaint letztes Set": the same layout again with pictures picked anew.
PaintOutcome BtnPicMosaik_Repaint(Session &s);
// "...": lets the user choose a file or a directory as the source (frmDiaSetBildquelle,
// through the session's view); the panel's source option follows the choice.
PaintOutcome BtnPicMosaik_SetPics(Session &s);

void registerPicMosaikPanels();

} // namespace tf
