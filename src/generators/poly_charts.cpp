// The chart-like types of the bars and waves group:
// "Exchange Rates" two price curves over a light grid, each with its area shaded below it;
//                  the value follows an odd power of a cosine whose angle creeps on, with the
//                  daily noise up by Rnd*20+2 or down by Rnd*50-2 by the sign of that cosine;
// "Soundwaves"     the same process as vertical strokes about the middle, two voices;
// "Horiz-Bars", "Vertic-Bars"  bars of random thickness across the picture, each a plain
//                  colour or a band of bouncing colours (Draw_Band) along its length.
#include "generators/figures.h"
#include "generators/gradients.h"
#include "generators/polygraphics.h"

#include "core/blit.h"
#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

namespace tf {

using namespace fig;

namespace {

// The two colours of a chart: two of the rule (table cells, picks), else fore and back.
std::pair<ColorLong, ColorLong> chartColours(PaintContext &ctx)
{
    const ColourState &c = ctx.colours();
    if (!ctx.opt.UseDuoTable && !c.RandomColors) return {c.ColorFore, c.ColorBack};
    ColorLong a = figureColour(ctx, 2), b = figureColour(ctx, 2);
    if (a == NoColour) a = c.ColorFore;
    if (b == NoColour) b = c.ColorBack;
    return {a, b};
}

// One price curve: a value per column, around `base`, swinging by `amp`.
std::vector<double> priceCurve(PaintContext &ctx, int n, double base, double amp, double scale)
{
    std::vector<double> y(size_t(std::max(1, n)));
    double a = rnd(ctx) * 180;
    double walk = 0;
    for (int k = 0; k < n; ++k) {
        const double cs = std::cos(toRad * a);
        const double trend = amp * (0.7 * cs * cs * cs + 0.3 * std::pow(cs, 5));
        const double noise = cs > 0 ? -(rnd(ctx) * 20 + 2) : rnd(ctx) * 50 - 2;
        walk = 0.82 * walk + 0.18 * noise * 2.2 * scale;
        y[size_t(k)] = base - trend + walk;
        a += rnd(ctx) * 1.5 + 0.1;
        if (a > 360) a -= 360;
    }
    return y;
}

} // namespace

void paintExchangeRates(PaintContext &ctx)
{
    begin(ctx, 2);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int n = w; // one value a column
    const auto [c1, c2] = chartColours(ctx);
    const double hh = h / 3.4;
    const double scale = std::max(0.2, h / 712.0);
    pic.setDrawWidth(1);
    // The grid: ten rows and ten columns of fine lines.
    const ColorLong grid = 0xD8D8D8;
    for (int i = 1; i < 10; ++i) {
        pic.Line(0, h * i / 10, w, h * i / 10, grid);
        pic.Line(w * i / 10, 0, w * i / 10, h, grid);
    }
    const std::vector<double> first = priceCurve(ctx, n, h - hh * 1.2, hh * 0.8, scale);
    const std::vector<double> second = priceCurve(ctx, n, hh * 1.6, hh * 0.8, scale);
    for (const auto &[curve, colour, shade] :
         {std::tuple{&first, c1, 0.8}, std::tuple{&second, c2, 0.88}}) {
        const ColorLong area = blend(colour, 0xFFFFFF, shade);
        for (int x = 0; x < n; ++x)
            pic.Line(x, std::clamp((*curve)[size_t(x)], 0.0, double(h)), x, h, area);
    }
    for (const auto &[curve, colour] : {std::pair{&first, c1}, std::pair{&second, c2}}) {
        if (ctx.opt.UseAntiAlias) {
            for (int x = 1; x < n; ++x)
                line(ctx, x - 1, (*curve)[size_t(x - 1)], x, (*curve)[size_t(x)], colour, ctx.opt.PenWidth);
        } else {
            pic.setDrawWidth(ctx.opt.PenWidth);
            pic.setCurrentX(0);
            pic.setCurrentY((*curve)[0]);
            for (int x = 1; x < n; ++x)
                pic.LineTo(x, (*curve)[size_t(x)], colour);
        }
    }
    end(ctx);
}

void paintSoundwaves(PaintContext &ctx)
{
    begin(ctx, 2);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const auto [c1, c2] = chartColours(ctx);
    const double scale = std::max(0.2, h / 712.0);
    const int pen = std::max<int>(1, ctx.opt.PenWidth);
    const int step = pen + std::max(1, pen / 2);
    const int n = w / step + 1;
    const double mid = h / 2.0;
    const std::vector<double> loud = priceCurve(ctx, n, 0, h * 0.32, scale);
    const std::vector<double> soft = priceCurve(ctx, n, 0, h * 0.18, scale);
    pic.setDrawWidth(pen);
    for (const auto &[curve, colour, gain] :
         {std::tuple{&loud, c1, 1.0}, std::tuple{&soft, c2, 0.6}}) {
        for (int k = 0; k < n; ++k) {
            const double v =
                std::min(mid - 2, std::abs((*curve)[size_t(k)]) * gain + 2 * scale);
            const int x = k * step + pen / 2;
            if (ctx.opt.UseAntiAlias)
                line(ctx, x, mid - v, x, mid + v, colour, ctx.opt.PenWidth);
            else
                pic.Line(x, mid - v, x, mid + v, colour);
        }
    }
    end(ctx);
}

namespace {

// Bars across (horizontal) or down the picture: thicknesses from random weights, each bar a
// plain colour or a band of bouncing colours along it.
void bars(PaintContext &ctx, bool horizontal)
{
    const int n = ctx.colours().RandomValues ? rounded(rnd(ctx) * 24) + 3
                                             : std::max(1, int(ctx.opt.NumberValue));
    begin(ctx, n);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int across = horizontal ? h : w;
    std::vector<double> weights(static_cast<size_t>(n));
    double sum = 0;
    for (double &v : weights) {
        v = rnd(ctx) * 3 + 0.4;
        sum += v;
    }
    double at = 0;
    for (int k = 0; k < n; ++k) {
        const int from = rounded(at);
        at += weights[size_t(k)] / sum * across;
        const int to = k == n - 1 ? across : rounded(at);
        const ColorLong c = figureColour(ctx, n);
        const bool band = rnd(ctx) < 0.45;
        if (c == NoColour || to <= from) continue;
        const int bw = horizontal ? w : to - from, bh = horizontal ? to - from : h;
        const int x = horizontal ? 0 : from, y = horizontal ? from : 0;
        if (band) {
            PictureBox strip(QStringLiteral("bar"), bw, bh);
            strip.setAutoRedraw(true);
            const int steps = int(Int(rnd(ctx) * 30)) + 2;
            Draw_Band(strip, ctx.session.random(), horizontal ? 2 : 1,
                      std::max<int>(1, ctx.opt.PenWidth), steps, c, secondColour(ctx));
            BitBlt(pic.hDC(), x, y, bw, bh, &strip.hDC(), 0, 0, SRCCOPY);
            pic.markChanged();
        } else {
            box(pic, x, y, x + bw - 1, y + bh - 1, c, NoColour);
        }
        if (ctx.opt.UseBorders) box(pic, x, y, x + bw - 1, y + bh - 1, NoColour,
                                    ctx.colours().ColorBorder);
    }
    end(ctx);
}

} // namespace

void paintHorizBars(PaintContext &ctx) { bars(ctx, true); }
void paintVerticBars(PaintContext &ctx) { bars(ctx, false); }

} // namespace tf
