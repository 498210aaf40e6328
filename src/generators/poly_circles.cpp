// The round figures of the drawn types:
// "Poly-Elliptic"   ellipse or circle outlines, their areas then flooded in the rule's colours;
// "Circles"         nested discs shrinking towards a point (the factor Rnd*0.4+0.15 sets how
//                   fast they drift to it);
// "Circle-Ellipses" the same with ellipses rounding out towards the point;
// "Circle-Kegel"    flat ellipses stacked from a wide base to an apex, a cone;
// "Circle-Waves"    nested discs whose centres swing by the sine of their index;
// "Soap-Bubbles", "Black Rain", "Snow", "Confetti"  scattered discs, drops and flakes.
#include "generators/figures.h"
#include "generators/polygraphics.h"

#include "core/gdi.h"
#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>

namespace tf {

using namespace fig;

void paintPolyElliptic(PaintContext &ctx)
{
    const bool randomValues = ctx.colours().RandomValues;
    int n = 0, style = 0;
    if (randomValues) {
        n = rounded(rnd(ctx) * 200) + 2;
        style = int(Int(rnd(ctx) * 3));
    } else {
        n = std::clamp(int(ctx.opt.NumberValue), 1, 100);
        style = std::clamp(ctx.session.controls().value(QStringLiteral("optPEL_Style")), 0, 2);
    }
    begin(ctx, n);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const ColorLong penColour = ctx.opt.UseDuoTable && !ctx.colours().RandomColors
                                    ? RGB(220, 220, 220)
                                    : ctx.colours().ColorFore;
    pic.setFillStyle(1);
    pic.setDrawWidth(std::min<int>(ctx.opt.PenWidth, 16));
    for (int k = 1; k <= n; ++k) {
        const int cx = rounded(rnd(ctx) * w + 20);
        const int cy = rounded(rnd(ctx) * h + 20);
        const int radius = rounded(rnd(ctx) * w / 2 + 20);
        double aspect = 1.0;
        if (style == 0) {
            aspect = rnd(ctx) * 0.6 + 0.3;
        } else if (style == 2) {
            aspect = rnd(ctx) * 2.2;
            if (aspect < 0.2) aspect = 1.2;
        }
        if (aspect == 1.0)
            pic.Circle(cx, cy, radius, penColour);
        else
            pic.Circle(cx, cy, radius, penColour, std::nullopt, std::nullopt, aspect);
    }
    if (ctx.opt.UseFill) {
        DeviceContext &dc = pic.hDC();
        const Brush before = dc.brush;
        for (int k = 1; k <= 3 * n; ++k) {
            const ColorLong c = figureColourBack(ctx, n);
            const int x = int(Int(rnd(ctx) * w)), y = int(Int(rnd(ctx) * h));
            if (c == NoColour) continue;
            dc.brush = Brush{false, c};
            ExtFloodFill(dc, x, y, penColour, FLOODFILLBORDER);
        }
        dc.brush = before;
        pic.markChanged();
    }
    end(ctx);
}

namespace {

enum class Nest { Circles, Ellipses, Kegel, Waves };

void nested(PaintContext &ctx, Nest kind)
{
    const int n = countOf(ctx, ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 2 : 0, 2);
    begin(ctx, n);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double f = rnd(ctx) * 0.4 + 0.15;
    const double px = ctx.opt.UseCenter ? w / 2.0 : (rnd(ctx) * 0.6 + 0.2) * w;
    const double py = ctx.opt.UseCenter ? h / 2.0 : (rnd(ctx) * 0.6 + 0.2) * h;
    const double r0 = std::hypot(w, h) / 2;
    const bool ramp = !ctx.opt.UseDuoTable && !ctx.colours().RandomColors;
    const double flat = rnd(ctx) * 0.35 + 0.3;
    const double swing = rnd(ctx) * 0.2 + 0.08;
    pic.setDrawWidth(1);
    for (int k = 0; k < n; ++k) {
        ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const double t = double(k) / n;
        if (ramp) c = blend(ctx.colours().ColorFore, ctx.colours().ColorBack, t);
        const ColorLong edge = ctx.opt.UseBorders ? ctx.colours().ColorBorder : c;
        // The radius falls by a power of what is left; the smaller the factor, the longer the
        // discs keep their size.
        const double left = 1.0 - t;
        const double r = r0 * std::pow(left, 0.6 + f * 2.5);
        const double drift = 1.0 - r / r0;
        double x = w / 2.0 + (px - w / 2.0) * drift;
        double y = h / 2.0 + (py - h / 2.0) * drift;
        double aspect = 1.0;
        switch (kind) {
        case Nest::Circles: break;
        case Nest::Ellipses:
            // Flat ellipses as wide as needed to reach the top and bottom at first.
            aspect = flat + (1.0 - flat) * t;
            disc(pic, x, y, r / aspect, c, edge, aspect);
            continue;
        case Nest::Kegel: {
            const double base = h * 0.88, apex = h * (0.06 + f * 0.2);
            const double rk = w * 0.48 * left;
            x = w / 2.0 + (px - w / 2.0) * t * 0.5;
            y = base + (apex - base) * t;
            disc(pic, x, y, rk, c, edge, 0.32);
            continue;
        }
        case Nest::Waves:
            x += std::sin(k * f * 1.3) * w * swing * left;
            y += std::cos(k * f * 0.9) * h * swing * left;
            break;
        }
        disc(pic, x, y, r, c, edge, aspect);
    }
    end(ctx);
}

} // namespace

void paintCircles(PaintContext &ctx) { nested(ctx, Nest::Circles); }
void paintCircleEllipses(PaintContext &ctx) { nested(ctx, Nest::Ellipses); }
void paintCircleKegel(PaintContext &ctx) { nested(ctx, Nest::Kegel); }
void paintCircleWaves(PaintContext &ctx) { nested(ctx, Nest::Waves); }

namespace {

enum class Scatter { Bubbles, Rain, Snow, Confetti };

void scatter(PaintContext &ctx, Scatter kind)
{
    const int n = countOf(ctx, ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 2 : 0, 1);
    begin(ctx, n);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    pic.setDrawWidth(1);
    for (int k = 1; k <= n; ++k) {
        const ColorLong c = kind == Scatter::Rain ? ColorLong(0) : figureColour(ctx, n);
        if (c == NoColour) continue;
        const double x = rnd(ctx) * w;
        switch (kind) {
        case Scatter::Bubbles: {
            const double y = rnd(ctx) * h;
            const int r = rounded(rnd(ctx) * 32) + 1;
            disc(pic, x, y, r, blend(c, 0xFFFFFF, 0.55), c);
            if (r > 3) disc(pic, x - r * 0.38, y - r * 0.38, r * 0.2, 0xFFFFFF, 0xFFFFFF);
            break;
        }
        case Scatter::Rain: {
            // Drops fall from the top: more of them high up, each trailing its streak.
            const double y = std::pow(rnd(ctx), 1.6) * h;
            const int r = rounded(rnd(ctx) * 32) + 1;
            const double drop = r / 6.0 + 1;
            pic.setDrawWidth(std::max(1, int(drop / 2)));
            pic.Line(x, y - r * 3, x, y, c);
            pic.setDrawWidth(1);
            disc(pic, x, y, drop, c, c, 1.4);
            break;
        }
        case Scatter::Snow: {
            const double y = rnd(ctx) * h;
            const int r = rounded(rnd(ctx) * 5) + 1;
            disc(pic, x, y, r, blend(c, 0xFFFFFF, 0.82), blend(c, 0xFFFFFF, 0.3));
            break;
        }
        case Scatter::Confetti: {
            const double y = rnd(ctx) * h;
            const int r = rounded(rnd(ctx) * 50) + 2;
            disc(pic, x, y, r, c, ctx.opt.UseBorders ? ctx.colours().ColorBorder : c);
            break;
        }
        }
    }
    end(ctx);
}

} // namespace

void paintSoapBubbles(PaintContext &ctx) { scatter(ctx, Scatter::Bubbles); }
void paintBlackRain(PaintContext &ctx) { scatter(ctx, Scatter::Rain); }
void paintSnow(PaintContext &ctx) { scatter(ctx, Scatter::Snow); }
void paintConfetti(PaintContext &ctx) { scatter(ctx, Scatter::Confetti); }

} // namespace tf
