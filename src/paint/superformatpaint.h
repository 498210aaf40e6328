#pragma once
// The route of a Superformat painter (the Mondrian, later the photo mosaic and the cube).
//
//     SuperformatPaint super(ctx);
//     if (!super.begin(backColour)) return;          // size from the paint dialog
//     cDIBSection &dib = super.surface();            // ctx.opt.W / H are now its size
//     for (each frame) {
//         cDIBSection::LineDIB(dib, ...);             // or PrintDIB, BitBlt on dib.dib_hdc()
//         super.progress(done, total);
//         if (super.stopRequested()) break;         // the picture stays as far as painted
//     }
//     super.end();                                    // or let the destructor end it
//
// begin: reads the size of the paint dialog (`txtSuperSize`(0), (1); "0 - sizes not
// allowed" for a side below 1, each clamped to 128..14000), remembers the painter's picture
// size (`ctx.opt.W`, `ctx.opt.H`, the PicWidth and PicHeight the painter reads) and sets it to
// the Superformat size, keeps the former picture for Undo, and makes the surface (a new one
// filled with the back colour when there is none or its size differs). When the memory is
// not to be had, it says "Memory problem creating Superimage!" (critical icon, the program's
// name as title) and answers false; both surfaces are dropped and the former picture stays
// kept for Undo.
//
// end: restores the picture size, hides the progress bar, records the Superformat size in the
// paint record (so that its command line repeats it) and hands the picture to the viewer
// through the session's view (`showSuperformat`). A Stop leaves the picture as far as it was
// painted: every drawing call has finished when the painter looks at Stop.
//
// The surface is drawn in its own coordinates: LineDIB takes memory rows (row 0 is the bottom
// row as shown), the device context `dib_hdc()` takes picture coordinates.

#include "core/colour.h"
#include "paint/superformat.h"

#include <QSize>

namespace tf {

struct PaintContext;

class SuperformatPaint {
public:
    explicit SuperformatPaint(PaintContext &ctx);
    ~SuperformatPaint();
    SuperformatPaint(const SuperformatPaint &) = delete;
    SuperformatPaint &operator=(const SuperformatPaint &) = delete;

    // The size from the paint dialog.
    bool begin(ColorLong back);
    // A size given by the painter (clamped to 128..14000 a side).
    bool begin(QSize size, ColorLong back);

    cDIBSection &surface();
    QSize size() const { return m_size; }
    // The surface was made new (and holds only the back colour).
    bool isNew() const;

    // The progress bar at done of total.
    void progress(int done, int total);
    // Gives way to pending input; true when the user asked to stop.
    bool stopRequested();

    void end();

private:
    PaintContext &m_ctx;
    QSize m_size;
    int m_savedW = 0, m_savedH = 0;
    bool m_begun = false;
    bool m_ended = false;
    int m_lastPermille = -1;
};

// "Memory problem creating Superimage!"
QString superimageMemoryText();

} // namespace tf
