// "Spiral": an Archimedean spiral of `turns` turns from the centre out to the farthest
// corner, flattened by the aspect, its colour running from the first colour at the heart to
// the second at the rim, with a disc of the first colour over its heart. "Twister": four such
// spirals starting a quarter turn apart, so their arms interleave like a twisted rope.
#include "generators/figures.h"
#include "generators/longrun.h"
#include "generators/rosettes.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>

namespace tf {

using namespace fig;

namespace {

struct SpiralShape {
    double cx, cy, reach, aspect, start;
    int turns;
};

// One spiral, segment by segment; false when a Stop came.
bool Spiral(PaintContext &ctx, const SpiralShape &S, ColorLong from, ColorLong to, int pen,
            StopRule &stop)
{
    // About one segment per 4 pixels of arc at the rim, at least 24 per turn.
    const int perTurn = std::clamp(int(2 * Pi * S.reach / S.turns / 4), 24, 720);
    const int steps = perTurn * S.turns;
    double px = S.cx, py = S.cy;
    for (int i = 1; i <= steps; ++i) {
        const double t = double(i) / steps;
        const double angle = S.start + t * S.turns * 2 * Pi;
        const double r = t * S.reach;
        const double x = S.cx + r * std::cos(angle), y = S.cy + r * std::sin(angle) * S.aspect;
        line(ctx, px, py, x, y, blend(from, to, t), pen);
        px = x;
        py = y;
        // The stop check per tenth of a turn keeps the spiral quick to stop and cheap to draw.
        if (i % std::max(1, perTurn / 10) == 0 && !stop.next()) return false;
    }
    return true;
}

} // namespace

void Do_Spirals(PaintContext &ctx, bool twister)
{
    StopRule stop(ctx);
    const int w = ctx.opt.W, h = ctx.opt.H;
    SpiralShape S{};
    if (ctx.opt.UseCenter) {
        S.cx = w / 2.0;
        S.cy = h / 2.0;
    } else {
        S.cx = rounded(rnd(ctx) * w);
        S.cy = rounded(rnd(ctx) * h);
    }
    S.aspect = rnd(ctx) * 0.8 + 0.2;
    S.turns = rounded(10 * rnd(ctx) + 1);
    S.start = rnd(ctx) * 2 * Pi;
    // Out to the farthest corner, so the arms reach every edge; the flattened spiral needs
    // its height divided by the aspect to reach the top and bottom.
    const double dx = std::max(S.cx, w - S.cx), dy = std::max(S.cy, h - S.cy) / S.aspect;
    S.reach = std::hypot(dx, dy);
    const int n = twister ? 4 : 1;
    begin(ctx, n);
    const int pen = std::max<int>(1, ctx.opt.PenWidth);
    ColorLong first = figureColour(ctx, n);
    ColorLong second = secondColour(ctx);
    if (first == NoColour) first = ctx.colours().ColorFore;
    for (int k = 0; k < n; ++k) {
        SpiralShape arm = S;
        arm.start = S.start + k * Pi / 2;
        if (k > 0 && ctx.opt.UseDuoTable) {
            const ColorLong c = tableColour(ctx, k + 1, n);
            if (c != NoColour) first = c;
        }
        if (!Spiral(ctx, arm, first, second, pen, stop)) break;
    }
    if (!twister && !stop.stopped()) {
        const double r = std::max(3.0, std::min(w, h) / 40.0 + pen);
        disc(ctx.XBild, S.cx, S.cy, r, first, outlineColour(ctx) == NoColour ? first
                                                                               : outlineColour(ctx));
    }
    end(ctx);
}

void paintSpiral(PaintContext &ctx) { Do_Spirals(ctx, false); }
void paintTwister(PaintContext &ctx) { Do_Spirals(ctx, true); }

} // namespace tf
