// "Spirograph": the curve a pen draws through a hole of a toothed wheel rolling inside a fixed
// ring. The part of r = rounded(w/100 + Rnd*100) above w/100 sets the wheel from a quarter to
// three quarters of the ring, bent to the nearest size that closes the curve after k turns
// round the ring with N lobes (N and k coprime, N > k); the pen sits at 1.25 * aspect of the
// wheel's radius from its middle (beyond the rim the curve makes loops, near the middle it is
// a soft wavy band). The ring is sized so that the curve reaches 0.46 of the shorter side
// from the centre; a random centre lies in the middle third of the picture. One colour
// or with the colour table one cell a turn, each moved away from the cleared picture's colour
// when the two are close; the line is always anti-aliased, in the pen's width.
#include "generators/centrehelpers.h"
#include "generators/figures.h"
#include "generators/longrun.h"
#include "generators/rosettes.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "tools/aaline.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tf {

using namespace fig;

SpirographGear spirographGear(double ring, double wheel, int turns)
{
    SpirographGear g;
    g.turns = std::max(1, turns);
    // A wheel as large as the ring would not roll; a wheel below a pixel draws a circle.
    wheel = std::clamp(wheel, 1.0, ring * 0.9);
    // Two lobes in one turn would only draw an ellipse.
    g.lobes = std::max({3, g.turns + 1, int(std::lround(g.turns * ring / wheel))});
    while (std::gcd(g.lobes, g.turns) != 1) ++g.lobes;
    g.wheel = ring * g.turns / g.lobes;
    return g;
}

bool Draw_Spirograph(PaintContext &ctx, double cx, double cy, int r, int k, double aspect,
                     ColorLong colour, StopRule &stop)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double extent = 0.46 * std::min(w, h);
    if (extent < 2) return true;
    // r beyond a hundredth of the width (0..100) sets the wheel from a quarter to three
    // quarters of the ring; the pen sits at 0.25..1.25 of the wheel's radius.
    const double share = 0.25 + 0.5 * std::clamp((r - w / 100.0) / 100.0, 0.0, 1.0);
    const double hole = 1.25 * std::clamp(aspect, 0.0, 1.0);
    // The ring that keeps the whole curve within the extent.
    double ring = extent / (1 - share + hole * share);
    SpirographGear g = spirographGear(ring, ring * share, k);
    // The closing wheel differs a little from the share: scale ring and wheel back into the
    // extent.
    const double scale = extent / (ring - g.wheel + hole * g.wheel);
    ring *= scale;
    g.wheel *= scale;
    const double inner = ring - g.wheel;     // the path of the wheel's middle
    const double pen = hole * g.wheel;        // the hole's distance from the wheel's middle
    const double spin = inner / g.wheel;      // the wheel's turns per turn round the ring
    // About one segment per 2 pixels of the pen's way.
    const double way = 2 * Pi * (inner + pen * spin);
    const int perTurn = std::clamp(int(way / 2), 180, 40000);
    const int width = std::max<int>(1, ctx.opt.PenWidth);
    const bool table = ctx.opt.UseDuoTable;
    // A colour close to the cleared picture's would hardly show.
    const ColorLong paper = ctx.XBild.Point(int(cx), int(cy));

    double px = cx + inner + pen, py = cy;
    for (int turn = 0; turn < g.turns; ++turn) {
        ColorLong c = table ? tableColour(ctx, turn + 1, g.turns) : colour;
        if (c != NoColour) c = apartFrom(paper, c, LineGap);
        for (int i = 1; i <= perTurn; ++i) {
            const double t = 2 * Pi * (turn + double(i) / perTurn);
            const double x = cx + inner * std::cos(t) + pen * std::cos(spin * t);
            const double y = cy + inner * std::sin(t) - pen * std::sin(spin * t);
            if (c != NoColour) AA_Line(ctx.XBild, px, py, x, y, c, width);
            px = x;
            py = y;
            if (i % std::max(1, perTurn / 10) == 0 && !stop.next()) return false;
        }
    }
    return true;
}

void Do_Spirograph(PaintContext &ctx)
{
    StopRule stop(ctx);
    const int w = ctx.opt.W;
    const auto [cx, cy] = figureCentre(ctx);
    const double aspect = rnd(ctx) * 0.8 + 0.2;
    int k = 3, r = rounded(w / 100.0 + 50);
    if (ctx.colours().RandomValues) {
        k = rounded(rnd(ctx) * 6 + 1);
        r = rounded(w / 100.0 + rnd(ctx) * 100);
    } else {
        // Without random values the count gives the turns and the step (0..255) the wheel.
        k = std::clamp<int>(ctx.opt.NumberValue, 1, 50);
        r = rounded(w / 100.0 + std::clamp<int>(ctx.opt.StepValue, 0, 255) / 2.55);
    }
    ColorLong colour = ctx.colours().ColorFore;
    if (ctx.colours().RandomColors) {
        const int red = rounded(rnd(ctx) * 254 + 1);
        const int green = rounded(rnd(ctx) * 254 + 1);
        const int blue = rounded(rnd(ctx) * 254 + 1);
        colour = RGB(red, green, blue);
    }
    begin(ctx, k);
    Draw_Spirograph(ctx, cx, cy, r, k, aspect, colour, stop);
    end(ctx);
}

} // namespace tf
