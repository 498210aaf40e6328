#pragma once
// "ART-Mondrian": flat colour fields between straight lines, painted from the frames of the
// subdivision engine (mondrianlayout.h), and "Repaint letztes Set", which paints the same
// frames again with new colours.
//
// Draw_Mondrian paints onto any FrameCanvas: the work picture (the painter of "ART-Mondrian"
// brackets it with Bild_CLEAR, Start_Transparent and Ende_Transparent) or an off-screen
// surface of any size. The Superformat route calls it with a DibCanvas over its surface and
// `MondrianCall::Super` set: the inner size is then the surface's, Format is 0, the split
// counts in random mode follow the surface's size, and the lines keep the large format's look.
//
// The option panel "feat_01Mondrian" (mondrian_panels.cpp) holds the controls of the family;
// Draw_Mondrian reads the ones it needs at the moment it paints, as every painter does.

#include "core/colour.h"
#include "core/numeric.h"

#include <QString>
#include <cstdint>
#include <optional>

namespace tf {

class FrameCanvas;
class Session;
struct PaintContext;
enum class PaintOutcome;

constexpr const char *MondrianPanelName = "feat_01Mondrian";

// What the painter and the repaint button hand Draw_Mondrian.
struct MondrianCall {
    int32_t Side = 0;      // the larger of the surface's width and height
    int16_t PenWidth = 1;  // cmbPen, at least 1
    bool Repaint = false;  // keep the layout of the last set where it still fits
    int16_t SymH = 0;      // XMondrian(0), (1)
    int16_t SymV = 0;
    int16_t AllFrames = 0; // XMondrian(3)
    int32_t Format = 0;    // cmbMondrian_Format(0): 0 square, 1 vertical, 2 horizontal
    int32_t Type = 0;      // cmbMondrian_Format(1): 0 Standard, 1 Be-Pop, 2.. the Boogies
    bool Super = false;    // painting a Superformat surface
    int32_t SuperW = 0;
    int32_t SuperH = 0;
};

// The call of a paint on `canvas` read from the panel and the general options.
MondrianCall mondrianCallFromPanel(const PaintContext &ctx, const FrameCanvas &canvas,
                                   bool repaint);

// Paints the layout on `canvas`. Faults go to the handler under "Draw_Mondrian"; what was
// painted stays. A Stop ends the frames with what is painted.
void Draw_Mondrian(PaintContext &ctx, FrameCanvas &canvas, MondrianCall call);

// The painter of "ART-Mondrian" (and, by Type, of the Boogies) on the work picture.
void paintMondrian(PaintContext &ctx);
// The painter of "ART-MondrianSuper": the same into the Superformat surface (the size of the
// paint dialog's Superformat fields), shown in the Superformat viewer.
void paintMondrianSuper(PaintContext &ctx);

// The Superformat's size from the two size fields of the paint dialog, each held to
// 128..14000; a size below 1 is refused with "0 - sizes not allowed" (nullopt).
struct SuperSize {
    int32_t w = 0, h = 0;
};
std::optional<SuperSize> superSizeFromFields(Session &s);

// "Repaint letztes Set": paints the chosen type of the family again, keeping the layout of
// the last set when it still fits (the same H-Splits, V-Splits and type), else a new set.
PaintOutcome BtnMondrian_Repaint(Session &s);

// The colour table of a paint of the family: "DuoMondrian" or "DuoMLeadGlass" under a
// duotone table, "RandomMondrian" or "RandomMLeadGlass" with random colours (on a toss),
// else "MondrianColors"; `withWhite` false makes the white entries -1 (no fill).
void chooseMondrianColours(Session &s, bool withWhite);

// The inner size by the selection and the picture's shape: a selection or a picture that is
// not square takes the whole surface less the margins `m2`, and Format 0. False: neither.
bool mondrianSizeFromSurface(PaintContext &ctx, const FrameCanvas &canvas, int32_t &format,
                             int32_t m2);
// The inner size of a square surface of `side` by Format: 1 (vertical) a random width from
// about half the side to the whole, 2 (horizontal) the same for the height, anything else the
// whole side, and Format 0; the margins `m2` taken off.
void mondrianSizeByFormat(Session &s, int32_t &format, int32_t side, int32_t m2);
// What a new set of frames is made from: the panel's split counts, symmetry and sub-factors,
// and the frame line's width.
struct MondrianSetRequest {
    int16_t h = 2, v = 2;
    int16_t symH = 1, symV = 1;
    int16_t subH = 1, subV = 1;
    int16_t pen = 1;
    bool drawPen = true; // with random values, a pen of 1 is drawn anew (1 to 6)
    bool doSub = false;
    bool harmonic = false;
    bool randomValues = false;
    int16_t minRatio = 2;
    int32_t type = 0;
};
// The counts, symmetry and pen the set was made with.
struct MondrianSetDrawn {
    int16_t h, v, symH, symV, pen;
};
// Makes a new set in the session's tables: with random values on, counts of 2 to 10, a
// symmetry, sub-factors of 1, the pen (see `drawPen`) and seeds for the subdivision are
// drawn; else harmonic splits draw their two seeds. The draws keep this order, so a seed gives
// the same set in every painter that shares it (Mondrian, lead glass, the photo mosaic).
MondrianSetDrawn makeMondrianSet(Session &s, const MondrianSetRequest &r);
// The colour of a frame from that table: a sub-frame from the whole table, a whole cell from
// its first 18 entries; a large cell (over a quarter of picW or picH) is never the near-black
// nor white. NoColour: the frame stays unfilled.
struct MondrianFrame;
ColorLong mondrianFrameColour(Session &s, const MondrianFrame &f, int picW, int picH);

void registerMondrianPanels();

} // namespace tf
