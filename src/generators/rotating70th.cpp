// "70th-Rotating", "70th-Rotating-Crazy": a line turning about the centre (a random centre
// lies in the middle third), drawn n times in one turn, its two ends on circles of radius
// R = 0.48 of the shorter side (and a smaller one), so that the lines' envelope draws the
// figure of one of four styles, style rounded(Rnd*3) (angle a = k 360 / n; k 180 / n for the
// diameters, which repeat after half a turn):
//
//   0  from (R, a) to (R, a + 180): diameters, a wheel of spokes
//   1  from (R, a) to (R, 2a): chords whose envelope is a cardioid
//   2  from (R, a) to (0.35 R, -2a): the inner end turning back twice as fast, a rosette
//   3  from (R, a) to (R, a + 144): chords of a turning pentagram, a ring round a hole
//
// One colour for all lines (channels rounded(Rnd*256) with random colours, a table cell with
// the table, else the first colour); "Crazy" takes a new colour for every line (without
// random colours or the table a ramp from the first colour to the second); a colour close to
// the cleared picture's is moved away from it. Lines go through AA_Line with anti-aliasing
// on, else Line, in the pen's width.
#include "generators/rosettes.h"

#include "generators/centrehelpers.h"
#include "generators/figures.h"
#include "generators/longrun.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>

namespace tf {

using namespace fig;

RotatingLine rotatingLine(int style, double a, double R)
{
    const double r = a * toRad;
    switch (style) {
    case 0: return {R, r, R, r + Pi};
    case 1: return {R, r, R, 2 * r};
    case 2: return {R, r, 0.35 * R, -2 * r};
    default: return {R, r, R, r + 144 * toRad};
    }
}

namespace {
ColorLong randomChannels(PaintContext &ctx)
{
    const int red = std::min(255, rounded(rnd(ctx) * 256));
    const int green = std::min(255, rounded(rnd(ctx) * 256));
    const int blue = std::min(255, rounded(rnd(ctx) * 256));
    return RGB(red, green, blue);
}
} // namespace

void Do_Rotating70th(PaintContext &ctx, bool crazy)
{
    StopRule stop(ctx);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const auto [cx, cy] = figureCentre(ctx);
    const int n = ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 1
                                             : std::max<int>(1, ctx.opt.NumberValue);
    const int style = rounded(rnd(ctx) * 3);
    begin(ctx, n);
    const bool table = ctx.opt.UseDuoTable, random = ctx.colours().RandomColors;
    const ColorLong fore = ctx.colours().ColorFore;
    const ColorLong back = apartFrom(0xFFFFFF, ctx.colours().ColorBack);
    ColorLong colour = table ? figureColour(ctx, n) : random ? randomChannels(ctx) : fore;
    const double R = 0.48 * std::min(w, h);
    // A line too close to the cleared picture's colour would hardly show.
    const ColorLong paper = ctx.XBild.Point(int(cx), int(cy));
    const int pen = std::max<int>(1, ctx.opt.PenWidth);
    for (int k = 1; k <= n; ++k) {
        if (crazy) {
            colour = table    ? figureColour(ctx, n)
                     : random ? randomChannels(ctx)
                              : blend(fore, back, n > 1 ? double(k - 1) / (n - 1) : 0.0);
        }
        // Diameters repeat after half a turn.
        const RotatingLine L = rotatingLine(style, k * (style == 0 ? 180.0 : 360.0) / n, R);
        if (colour != NoColour)
            line(ctx, cx + L.r1 * std::cos(L.a1), cy - L.r1 * std::sin(L.a1),
                 cx + L.r2 * std::cos(L.a2), cy - L.r2 * std::sin(L.a2),
                 apartFrom(paper, colour, LineGap), pen);
        if (!stop.next()) break;
    }
    end(ctx);
}

void paintRotating70th(PaintContext &ctx) { Do_Rotating70th(ctx, false); }
void paintRotating70thCrazy(PaintContext &ctx) { Do_Rotating70th(ctx, true); }

} // namespace tf
