// "PAP-Lines" ruled paper, "PAP-Notes" sheet music (staves of five lines with a gap of three
// line distances between them), "PAP-Karo" squared paper. The lines are parallel at a
// distance of h/n, turned by the angle about the centre and long enough to cross the whole
// picture at any angle.
#include "generators/papers.h"

#include "generators/figures.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/controls.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>

namespace tf {

using namespace fig;

namespace {

enum class Ruling { Lines, Notes, Karo };

// The lines of a ruling as offsets (in line distances) from the centre line, covering the
// reach on both sides: every line for the ruled and squared paper, five of every eight for
// the staves.
bool ruled(Ruling kind, int k)
{
    if (kind != Ruling::Notes) return true;
    return ((k % 8) + 8) % 8 < 5;
}

void rule(PaintContext &ctx, Ruling kind, double cx, double cy, double angle, double dist,
          ColorLong colour)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int pen = std::max<int>(1, ctx.opt.PenWidth);
    // The farthest corner from the centre bounds both the offsets and the half length.
    const double reach = std::hypot(std::max(cx, w - cx), std::max(cy, h - cy)) + pen;
    const double ux = std::cos(angle), uy = std::sin(angle); // along the line
    const double nx = -uy, ny = ux;                           // across
    const int lastK = int(std::ceil(reach / dist));
    for (int k = -lastK; k <= lastK; ++k) {
        if (!ruled(kind, k)) continue;
        const double ox = cx + nx * k * dist, oy = cy + ny * k * dist;
        line(ctx, ox - ux * reach, oy - uy * reach, ox + ux * reach, oy + uy * reach, colour,
             pen);
        ctx.DoEvents();
        if (ctx.stopRequested()) return;
    }
}

} // namespace

void Create_Papers(PaintContext &ctx)
{
    const QString &key = ctx.session.paint().GrafKey;
    const Ruling kind = key == QLatin1String("PAP-Notes")  ? Ruling::Notes
                        : key == QLatin1String("PAP-Karo") ? Ruling::Karo
                                                           : Ruling::Lines;
    const ColourState &cs = ctx.colours();
    const ColorLong colour = cs.RandomColors ? Pick_RandomColor(ctx.session) : cs.ColorFore;
    const int n = cs.RandomValues ? rounded(rnd(ctx) * 200) + 4
                                  : std::max<int>(1, ctx.opt.NumberValue);
    const double degrees = cs.RandomValues ? rnd(ctx) * 161 - 80
                                           : ctx.session.controls().value(
                                                 QStringLiteral("scrollPaperAngle"));
    const int w = ctx.opt.W, h = ctx.opt.H;
    double cx = w / 2.0, cy = h / 2.0;
    if (!ctx.opt.UseCenter) {
        // Anywhere in the upper left quarter, or a little beyond the edge.
        cx = rounded(w / 2.0 - (w / 2.0 + 20) * rnd(ctx));
        cy = rounded(h / 2.0 - (h / 2.0 + 20) * rnd(ctx));
    }
    begin(ctx, 1);
    const double dist = std::max(1.0, double(h) / n);
    const double angle = degrees * toRad;
    rule(ctx, kind, cx, cy, angle, dist, colour);
    if (kind == Ruling::Karo && !ctx.stopRequested())
        rule(ctx, kind, cx, cy, angle + Pi / 2, dist, colour);
    end(ctx);
}

} // namespace tf
