// "Rosetta": circles of radius s whose centres run round a rose of radius r about the centre,
// d circles to a turn; the rose has a lobes, so the circles bunch into petals. count circles
// in all: past the first turn each turn is set half a step on and its circles shrink, so the
// petals fill from outside in. "Pixelized" draws each circle as a ring of square dots the
// size of the pen; "Crazy" takes a new colour for each circle, the plain one keeps one colour
// per turn.
#include "generators/rosettes.h"

#include "generators/figures.h"
#include "generators/longrun.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tf {

using namespace fig;

RosetteRadii rosetteRadii(double rnd1, double rnd2, double rnd3)
{
    int r = int(Int(rnd1 * 21)) * 10 - 100;
    // A ring of no radius or a negative one would pile the circles on the centre.
    if (r <= 0) r = int(Int(rnd2 * 21)) * 5 + 50;
    int s = rounded(std::abs(r) - Int(rnd3 * 9) * 10);
    if (s <= 0) s = 200 - (r % 200);
    return {r, s};
}

namespace {

struct Rosette {
    double cx, cy;
    int r, s, a, d, count, pen;
    bool pixelized, crazy;
};

// One circle of the rosette, as an outline or as a ring of dots.
void circleOf(PictureBox &pic, double x, double y, double radius, ColorLong c, const Rosette &R)
{
    if (!R.pixelized) {
        pic.Circle(x, y, radius, c);
        return;
    }
    const int dots = std::max(8, int(2 * Pi * radius / (R.pen * 3)));
    const double half = R.pen / 2.0;
    for (int i = 0; i < dots; ++i) {
        const double t = 2 * Pi * i / dots;
        const double px = x + radius * std::cos(t), py = y + radius * std::sin(t);
        pic.Line(px - half, py - half, px + half, py + half, c, LineFlags::BF);
    }
}

void Draw_Rosette(PaintContext &ctx, const Rosette &R, StopRule &stop, int n)
{
    PictureBox &pic = ctx.XBild;
    pic.setDrawWidth(R.pixelized ? 1 : R.pen);
    ColorLong turnColour = figureColour(ctx, n);
    for (int k = 0; k < R.count; ++k) {
        const int turn = k / R.d;
        if (k > 0 && k % R.d == 0 && !R.crazy) turnColour = figureColour(ctx, n);
        const ColorLong c = R.crazy ? figureColour(ctx, n) : turnColour;
        const double theta = (k % R.d + (turn % 2) * 0.5) * 2 * Pi / R.d;
        const double shrink = std::pow(0.85, turn);
        const double ring = R.r * std::cos(R.a * theta) * shrink;
        const double radius = std::max(1.0, R.s * shrink);
        if (c != NoColour)
            circleOf(pic, R.cx + ring * std::cos(theta), R.cy + ring * std::sin(theta), radius,
                     c, R);
        if (!stop.next()) break;
    }
}

} // namespace

void Create_Rosettas(PaintContext &ctx, bool pixelized, bool crazy, bool transparent)
{
    StopRule stop(ctx);
    const double r1 = rnd(ctx), r2 = rnd(ctx), r3 = rnd(ctx);
    const RosetteRadii radii = rosetteRadii(r1, r2, r3);
    Rosette R{};
    R.r = radii.r;
    R.s = radii.s;
    R.pen = std::clamp<int>(ctx.opt.PenWidth, 1, 4);
    R.a = rounded(rnd(ctx) * 2) + 1;
    R.d = rounded(rnd(ctx) * 100 + 8);
    R.count = R.d + int(Int(rnd(ctx) * 100)) * (R.pen > 3 ? 2 : R.pen);
    const int w = ctx.opt.W, h = ctx.opt.H;
    if (ctx.opt.UseCenter) {
        R.cx = w / 2.0;
        R.cy = h / 2.0;
    } else {
        R.cx = rounded(rnd(ctx) * w);
        R.cy = rounded(rnd(ctx) * h);
    }
    R.pixelized = pixelized;
    R.crazy = crazy;
    // One cell of the table per circle of a turn.
    const int n = R.d;
    begin(ctx, n);
    Draw_Rosette(ctx, R, stop, n);
    if (transparent) end(ctx);
}

void paintRosetta(PaintContext &ctx) { Create_Rosettas(ctx, false, false, true); }
void paintRosettaPixelized(PaintContext &ctx) { Create_Rosettas(ctx, true, false, true); }
void paintRosettaCrazy(PaintContext &ctx) { Create_Rosettas(ctx, false, true, true); }
void paintRosettaPixelizedCrazy(PaintContext &ctx) { Create_Rosettas(ctx, true, true, true); }

} // namespace tf
