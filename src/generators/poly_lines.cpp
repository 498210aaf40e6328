// The line types of the drawn types:
// "Lines-Quarterarea" threads from a quarter circle round the top left corner to one round the
//                     bottom right corner, point k to point k, like string art;
// "Lines-Polygonal"   an open random polygon, shown as it grows;
// "Lines-Mikado"      pairs of crossing sticks, one across, one down;
// "Sinus"             sine curves of random wave length, amplitude and phase;
// "Pulse"             a random zigzag across the picture; "-Sky" fills above, "-Ground" below;
// "Equalizer"         bars of lit segments, shaded from the bar's colour to white at the top.
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

void paintLinesQuarterarea(PaintContext &ctx)
{
    const int n = countOf(ctx, ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 2 : 0, 2);
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int pen = ctx.opt.PenWidth;
    // One radius for each quarter circle, so the threads weave a smooth surface.
    const double r1 = (rnd(ctx) * 0.5 + 0.5) * w;
    const double r2 = (rnd(ctx) * 0.5 + 0.5) * h;
    for (int k = 1; k <= n; ++k) {
        const ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const double a = Pi / 2 * k / (n + 1);
        const double x1 = r1 * std::sin(a), y1 = r2 * std::cos(a);
        const double x2 = w - 1 - r1 * std::cos(a), y2 = h - 1 - r2 * std::sin(a);
        line(ctx, x1, y1, x2, y2, c, pen);
    }
    end(ctx);
}

void paintLinesPolygonal(PaintContext &ctx)
{
    const int n = countOf(ctx, ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 2 : 0, 2);
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    double x = ctx.opt.UseCenter ? w / 2.0 : rnd(ctx) * w;
    double y = ctx.opt.UseCenter ? h / 2.0 : rnd(ctx) * h;
    for (int k = 1; k <= n; ++k) {
        const ColorLong c = figureColour(ctx, n);
        const double nx = rnd(ctx) * w, ny = rnd(ctx) * h;
        if (c != NoColour) line(ctx, x, y, nx, ny, c, ctx.opt.PenWidth);
        x = nx;
        y = ny;
        ctx.XBild.Refresh();
        ctx.DoEvents();
        if (ctx.stopRequested()) break;
    }
    end(ctx);
}

void paintLinesMikado(PaintContext &ctx)
{
    const int n = ctx.colours().RandomValues
                      ? rounded(rnd(ctx) * 200) + 2
                      : std::max(2, rounded(ctx.opt.NumberValue / 2.0));
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int pen = std::max<int>(ctx.opt.PenWidth, 1);
    int index = 0;
    for (int k = 1; k <= n; ++k) {
        ColorLong first, second;
        if (ctx.opt.UseDuoTable) {
            // The table is walked in order, one step a pair.
            index = Mod(index, n) + 1;
            first = tableColour(ctx, index, n);
            second = tableColour(ctx, index + 1, n);
        } else {
            first = figureColour(ctx, n);
            second = figureColour(ctx, n);
        }
        const double ya = rnd(ctx) * (h - 300) + 150, yb = rnd(ctx) * (h - 300) + 150;
        if (first != NoColour) line(ctx, 0, ya, w, yb, first, pen);
        const double xa = w - (rnd(ctx) * (w - 300) + 150);
        const double xb = w - (rnd(ctx) * (w - 300) + 150);
        if (second != NoColour) line(ctx, xa, 0, xb, h, second, pen);
    }
    end(ctx);
}

void paintSinus(PaintContext &ctx)
{
    const int n = countOf(ctx, ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 1 : 0, 1);
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int pen = ctx.opt.PenWidth;
    const int kind = int(Int(rnd(ctx) * 3));
    for (int k = 1; k <= n; ++k) {
        const ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const double amp = kind == 0   ? h / 16.0 + rnd(ctx) * h / 4
                           : kind == 1 ? rnd(ctx) * h / 3
                                       : rnd(ctx) * h / 4;
        const double length = (rnd(ctx) * 0.9 + 0.1) * w;
        const double phase = rnd(ctx) * 2 * Pi;
        const double base = ctx.opt.UseCenter ? h / 2.0 : rnd(ctx) * h;
        const int step = std::max(1, w / 360);
        double px = 0, py = base + amp * std::sin(phase);
        for (int x = step; x <= w + step; x += step) {
            const double y = base + amp * std::sin(2 * Pi * x / length + phase);
            line(ctx, px, py, x, y, c, pen);
            px = x;
            py = y;
        }
    }
    end(ctx);
}

namespace {

// The zigzag of the pulse types from the left edge to the right one, in steps of Rnd*58+10
// pixels scaled to the picture, each corner at a random height about the middle.
void pulse(PaintContext &ctx, int fill)
{
    begin(ctx, 1);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double scale = std::max(0.25, w / 712.0);
    const ColorLong picked = figureColour(ctx, 1);
    const ColorLong c = picked == NoColour ? 0 : picked;
    // A fill needs an unbroken border line, so those lines are drawn aliased.
    const bool soft = ctx.opt.UseAntiAlias && fill == 0;
    const int pen = ctx.opt.PenWidth;
    double x = 0, y = h / 2.0;
    const double swing = h * (0.15 + rnd(ctx) * 0.3);
    pic.setDrawWidth(pen);
    while (x < w) {
        const double nx = x + (rnd(ctx) * 58 + 10) * scale;
        const double ny = h / 2.0 + (rnd(ctx) - 0.5) * 2 * swing;
        if (soft)
            line(ctx, x, y, nx, ny, c, pen);
        else
            pic.Line(x, y, nx, ny, c);
        x = nx;
        y = ny;
    }
    if (fill != 0) {
        const ColorLong f = Pick_RandomColor(ctx.session);
        DeviceContext &dc = pic.hDC();
        const Brush before = dc.brush;
        dc.brush = Brush{false, ctx.colours().RandomColors ? f : ctx.colours().ColorBack};
        ExtFloodFill(dc, 1, fill < 0 ? 1 : h - 1, c, FLOODFILLBORDER);
        dc.brush = before;
        pic.markChanged();
    }
    end(ctx);
}

} // namespace

void paintPulse(PaintContext &ctx) { pulse(ctx, 0); }
void paintPulseSky(PaintContext &ctx) { pulse(ctx, -1); }
void paintPulseGround(PaintContext &ctx) { pulse(ctx, 1); }

int equalizerBars(int32_t &NumberValue)
{
    NumberValue = std::min<int32_t>(NumberValue, 30);
    if (NumberValue <= 0) return 1;
    return NumberValue;
}

void paintEqualizer(PaintContext &ctx)
{
    const int n = ctx.colours().RandomValues ? int(Int(rnd(ctx) * 23)) + 8
                                             : equalizerBars(ctx.opt.NumberValue);
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    // 22 segments at most (Rnd*19+4 rounded down), one more row of room above them.
    const double segH = h / 24.0;
    const double barW = double(w) / n;
    const double gapX = std::max(1.0, barW * 0.12), gapY = std::max(1.0, segH * 0.18);
    for (int k = 0; k < n; ++k) {
        const ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const int segments = int(Int(rnd(ctx) * 19 + 4));
        const int x1 = rounded(k * barW + gapX / 2), x2 = rounded((k + 1) * barW - gapX / 2);
        for (int s = 0; s < segments; ++s) {
            const int y2 = rounded(h - 1 - s * segH - gapY / 2);
            const int y1 = rounded(h - 1 - (s + 1) * segH + gapY / 2);
            const ColorLong shade = blend(c, 0xFFFFFF, 0.6 * s / 22.0);
            box(ctx.XBild, x1, y1, std::max(x1, x2), std::max(y1, y2), shade,
                outlineColour(ctx));
        }
    }
    end(ctx);
}

} // namespace tf
