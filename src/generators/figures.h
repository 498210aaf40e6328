#pragma once
// The common steps of the drawn types: the count of figures, the colour table, the figure
// colour rule and the lines that go through AA_Line when anti-aliasing is on.
//
// A drawn type clears its target, takes its count n (a random expression with RandomValues,
// else from NumberValue with a lower bound), builds the colour table "KachelMix" of n cells
// when the table is in force, opens the transparency bracket, draws n figures each in the
// colour of the figure colour rule (skipping a figure whose table cell is blank) and closes
// the bracket. A fault leaves the picture as painted so far, without the closing blend.

#include "core/colour.h"
#include "core/gdi.h"
#include "core/numeric.h"

#include <vector>

namespace tf {

struct PaintContext;
class PictureBox;

namespace fig {

// Pi itself is 4 * Atn(1) of core/numeric.h.
inline const double toDeg = 180.0 / Pi;
inline const double toRad = Pi / 180.0;

// One draw of the session's generator, in double precision.
double rnd(PaintContext &ctx);
// rounded(x): round half to even, as every conversion does.
int rounded(double x);

// The centre of a figure: the middle of the picture with "Zentrieren" (UseCenter), else a
// whole-pixel point of the middle third drawn x then y, so most of the figure stays on it.
struct Centre {
    double x, y;
};
Centre figureCentre(PaintContext &ctx);

// The count of a type: `random` with RandomValues, else NumberValue raised to `lower`.
int countOf(PaintContext &ctx, int random, int lower);

// Bild_CLEAR and the pen, then with the table in force Set_Duo_Colortable(0, true,
// "KachelMix", cols, n / cols) (one column unless a grid is given), then Start_Transparent.
void begin(PaintContext &ctx, int n, int cols = 1);
// Ende_Transparent.
void end(PaintContext &ctx);

// The figure colour rule: a table cell Int(Rnd*n)+1 with the table in force (NoColour for a
// blank one), a random pick with RandomColors, else ColorFore.
ColorLong figureColour(PaintContext &ctx, int n);
// The same with ColorBack in the place of ColorFore.
ColorLong figureColourBack(PaintContext &ctx, int n);
// A second colour: a pick with RandomColors, else ColorBack.
ColorLong secondColour(PaintContext &ctx);
// Cell i (wrapped into 1..n) of the table, or NoColour.
ColorLong tableColour(PaintContext &ctx, int i, int n);

// A line in the pen width: through AA_Line when anti-aliasing is on, else the picture
// control's Line.
void line(PaintContext &ctx, double x1, double y1, double x2, double y2, ColorLong colour,
          int pen);
// A box from corner to corner: filled in `fill` unless it is NoColour, outlined in `outline`
// unless it is NoColour, with the pen of the picture.
void box(PictureBox &pic, int x1, int y1, int x2, int y2, ColorLong fill, ColorLong outline);
// A filled disc, outlined unless `outline` is NoColour; an aspect other than 1 gives an
// ellipse (height = aspect * width, as Circle's aspect).
void disc(PictureBox &pic, double x, double y, double r, ColorLong fill, ColorLong outline,
          double aspect = 1.0);
// A closed polygon through the points, filled by the even-odd rule in `fill` (hollow when
// NoColour) and outlined in `outline` (no outline when NoColour) with pen `pen`.
void polygon(PictureBox &pic, const std::vector<POINTAPI> &pts, ColorLong fill,
             ColorLong outline, int pen = 1);
// The outline colour of a figure: ColorBorder with UseBorders, else NoColour.
ColorLong outlineColour(PaintContext &ctx);

// Per channel a * (1 - t) + b * t, t clamped to 0..1.
ColorLong blend(ColorLong a, ColorLong b, double t);

} // namespace fig
} // namespace tf
