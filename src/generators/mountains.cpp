// "Mountains", "Mountains-Gradient", "Mountains-Pen": a mountain ridge across the picture
// under a sky.
//
// The ridge is a midpoint displacement between two random heights at the left and right
// edges: each halving displaces the middle by up to 12 amplitudes (an eighth to a third of
// the band) times 0.55 to the power of the depth, so the ridge has big shapes and fine
// crags; then from x = 0 to w the walk from column to column is held to the amplitude, and
// every height to the band between the top line and 85 % of the height. The sky above the
// ridge runs from the sky colour at the top to a light haze at the ridge's lowest point.
// "Mountains" fills each column below the ridge in the ground colour (with "Füllen"; without
// it the ridge is a line), "Mountains-Gradient" with a ramp from the ground colour at the
// highest peak's height to its dark shade at the bottom. With "3D" each column
// is lit by its slope against the column before it (x - 1), light from the upper left, in a
// rim that fades over a fortieth of the height below the ridge (the light smoothed over 11
// columns), so the ridge stands out like an embossed edge. "Mountains-Pen" draws the ridges as
// lines (with random values 2 to 7, else the count): the front one in the ground colour,
// those behind it paler towards the cleared picture, each a little higher and calmer, and
// each nearer range hiding the lines behind it. With the horizon "Oben" the figure is
// mirrored to the top.
//
// Colours: with the table two cells (sky and ground), with random colours three draws for
// the sky and three for the ground, else the second colour for the sky and the first for the
// ground; a ground too close to the sky is moved away from it.
#include "generators/mountains.h"

#include "generators/centrehelpers.h"
#include "generators/figures.h"
#include "generators/longrun.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "tools/aaline.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

using namespace fig;

std::vector<double> mountainRidge(PaintContext &ctx, int w, double amplitude, double lo,
                                  double hi)
{
    std::vector<double> y(size_t(std::max(w, 1)));
    if (hi < lo) std::swap(hi, lo);
    const auto draw = [&] { return rnd(ctx); };
    // Midpoint displacement on the next power of two above the width.
    int n = 1;
    while (n < w) n *= 2;
    std::vector<double> m(size_t(n) + 1);
    m[0] = lo + (hi - lo) * (0.2 + 0.8 * draw());
    m[size_t(n)] = lo + (hi - lo) * (0.2 + 0.8 * draw());
    // The first displacement: 12 amplitudes, but no more than a third of the band, so the
    // ridge seldom runs along the band's limits, and no less than an eighth, so that even a
    // small amplitude gives mountains and not a slope.
    double spread = std::clamp(amplitude * 12, (hi - lo) / 8, (hi - lo) / 3);
    for (int step = n; step > 1; step /= 2) {
        for (int i = step / 2; i < n; i += step) {
            const double mid = (m[size_t(i - step / 2)] + m[size_t(i + step / 2)]) / 2;
            m[size_t(i)] = std::clamp(mid + (draw() * 2 - 1) * spread, lo, hi);
        }
        spread *= 0.55;
    }
    // The walk from column to column is limited by the amplitude.
    y[0] = m[0];
    for (int x = 1; x < w; ++x)
        y[size_t(x)] = std::clamp(m[size_t(x)], y[size_t(x - 1)] - amplitude,
                                  y[size_t(x - 1)] + amplitude);
    return y;
}

namespace {

struct Mountain {
    double amplitude = 15;
    double top = 0;
    bool threeD = false;
    bool mirrored = false; // the horizon "Oben"
    ColorLong sky = 0, ground = 0;
};

Mountain mountainOptions(PaintContext &ctx, bool horizonTop)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const Controls &c = ctx.session.controls();
    Mountain M;
    if (ctx.colours().RandomValues) {
        M.amplitude = rnd(ctx) * w / 25.6 + 2;
        M.threeD = rounded(rnd(ctx) * 2) == 1;
        M.mirrored = rounded(rnd(ctx) * 2) == 1;
        M.top = rounded(h / 8.0 - rnd(ctx) * h / 8.0);
    } else {
        M.amplitude = std::clamp(c.value(ControlKey{QStringLiteral("scrollMountain"), 0}), 1, 100);
        M.top = h * std::clamp(c.value(ControlKey{QStringLiteral("scrollMountain"), 1}), 0, 90) /
                100.0;
        M.threeD = c.checked(QStringLiteral("X3DMountain"));
        M.mirrored = horizonTop;
    }
    // The amplitude is set for a picture of 712 pixels; a smaller one gets smaller crags.
    if (!ctx.colours().RandomValues) M.amplitude *= std::max(1, w) / 712.0;
    M.amplitude = std::max(1.0, M.amplitude);
    if (ctx.opt.UseDuoTable) {
        M.sky = figureColourBack(ctx, 8);
        M.ground = figureColour(ctx, 8);
        if (M.sky == NoColour) M.sky = ctx.colours().ColorBack;
        if (M.ground == NoColour) M.ground = ctx.colours().ColorFore;
    } else if (ctx.colours().RandomColors) {
        int ch[6];
        for (int &v : ch) v = rounded(rnd(ctx) * 255);
        M.sky = RGB(ch[0], ch[1], ch[2]);
        M.ground = RGB(ch[3], ch[4], ch[5]);
    } else {
        M.sky = ctx.colours().ColorBack;
        M.ground = ctx.colours().ColorFore;
    }
    M.ground = apartFrom(M.sky, M.ground);
    return M;
}

int rowOf(const Mountain &M, int y, int h) { return M.mirrored ? h - 1 - y : y; }

// The light of each column, -1 (shade) to 1 (lit): the slope against the column before it,
// smoothed twice over 11 columns so that single crags do not streak the relief.
std::vector<double> reliefLight(const std::vector<double> &ridge, double amplitude)
{
    const size_t w = ridge.size();
    std::vector<double> light(w, 0.0), next(w);
    for (size_t x = 1; x < w; ++x)
        light[x] = std::clamp((ridge[x - 1] - ridge[x]) * 2 / std::sqrt(amplitude), -1.0, 1.0);
    for (int pass = 0; pass < 2; ++pass) {
        for (size_t x = 0; x < w; ++x) {
            double sum = 0;
            int n = 0;
            for (size_t i = x >= 5 ? x - 5 : 0; i <= std::min(w - 1, x + 5); ++i, ++n) sum += light[i];
            next[x] = std::clamp(sum / n * 2, -1.0, 1.0);
        }
        light.swap(next);
    }
    return light;
}

// The filled figures: sky, ground and relief, column by column into rows of pixels.
void fillMountain(PaintContext &ctx, const Mountain &M, const std::vector<double> &ridge,
                  MountainStyle style, StopRule &stop)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const bool fill = ctx.opt.UseFill || style == MountainStyle::Gradient;
    const ColorLong haze = Mix_Colors(0xFFFFFF, M.sky, 0.35);
    const ColorLong deep = Mix_Colors(0x000000, M.ground, 0.6);
    const double fade = std::max(3.0, h / 40.0);
    // The haze is lightest at the ridge's lowest point.
    const double horizon = std::max(1.0, *std::max_element(ridge.begin(), ridge.end()));
    // The ground's ramp runs down from the highest peak, the same in every column.
    const double highest = *std::min_element(ridge.begin(), ridge.end());
    std::vector<uint32_t> pixels(size_t(w) * size_t(h));
    const std::vector<double> lights = reliefLight(ridge, M.amplitude);
    constexpr int Block = 32;
    for (int x0 = 0; x0 < w; x0 += Block) {
        for (int x = x0; x < std::min(w, x0 + Block); ++x) {
            const double r = ridge[size_t(x)];
            const double light = lights[size_t(x)];
            for (int y = 0; y < h; ++y) {
                ColorLong c;
                if (y + 0.5 < r || !fill) {
                    // The sky, lighter towards the horizon; the ground stays as cleared when
                    // it is not filled.
                    if (y + 0.5 >= r) {
                        const int row = rowOf(M, y, h);
                        pixels[size_t(row) * size_t(w) + size_t(x)] =
                            toQRgb(ctx.XBild.Point(x, row));
                        continue;
                    }
                    c = blend(M.sky, haze, y / horizon);
                } else {
                    c = style == MountainStyle::Gradient
                            ? blend(M.ground, deep, (y - highest) / std::max(1.0, h - highest))
                            : M.ground;
                    if (M.threeD) {
                        const double f = light * std::max(0.0, 1.0 - (y - r) / fade);
                        c = f >= 0 ? Mix_Colors(0xFFFFFF, c, 0.45 * f)
                                   : Mix_Colors(0x000000, c, -0.5 * f);
                    }
                }
                pixels[size_t(rowOf(M, y, h)) * size_t(w) + size_t(x)] = toQRgb(c);
            }
        }
        if (!stop.next()) break;
    }
    // Written even after a Stop: the columns not reached keep the cleared picture.
    for (int y = 0; y < h; ++y) putRow(ctx.XBild, y, &pixels[size_t(y) * size_t(w)], w);
    ctx.XBild.markChanged();
    if (!fill) {
        const int pen = std::max<int>(1, ctx.opt.PenWidth);
        ctx.XBild.setDrawWidth(pen);
        // One segment past the last column, since a line leaves out its end point.
        for (int x = 1; x <= w; ++x)
            ctx.XBild.Line(x - 1, rowOf(M, int(ridge[size_t(x - 1)]), h), x,
                           rowOf(M, int(ridge[size_t(std::min(x, w - 1))]), h), M.ground);
    }
}

// The ridges as lines, the farthest first.
void penMountains(PaintContext &ctx, const Mountain &M, StopRule &stop)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int ridges = ctx.colours().RandomValues ? rounded(rnd(ctx) * 5) + 2
                                                  : std::clamp<int>(ctx.opt.NumberValue, 1, 20);
    const int pen = std::max<int>(1, ctx.opt.PenWidth);
    // The ridges share the room between a quarter of the height (at least the top line) and
    // 85 % of it, each in a band of two spacings.
    const double first = std::max(M.top, h * 0.25);
    const double band = (h * 0.85 - first) / (ridges + 1);
    const ColorLong paper = ctx.XBild.Point(w / 2, h / 2);
    const QImage cleared = ctx.XBild.Image().copy();
    for (int i = 0; i < ridges; ++i) {
        // Ridge i lies i bands lower; the front one (the last) in the ground colour, those
        // behind it paler towards the cleared picture.
        const double lo = first + band * i, hi = lo + band * 2;
        const std::vector<double> ridge =
            mountainRidge(ctx, w, M.amplitude * (1 + i * 0.3), lo, std::min(hi, h - 1.0));
        const double depth = ridges > 1 ? double(ridges - 1 - i) / ridges : 0.0;
        const ColorLong c = blend(apartFrom(paper, M.ground, LineGap), paper, depth * 0.6);
        const auto yAt = [&](int x) {
            const double v = ridge[size_t(x)];
            return M.mirrored ? h - 1 - v : v;
        };
        // The nearer range hides what lies behind it: below its ridge the picture as it was
        // cleared comes back.
        if (i > 0) {
            DeviceContext &dc = ctx.XBild.hDC();
            for (int y = 0; y < std::min(h, dc.height()); ++y) {
                auto *row = reinterpret_cast<uint32_t *>(dc.scanLine(y));
                const auto *was = reinterpret_cast<const uint32_t *>(cleared.constScanLine(y));
                const int depthRow = M.mirrored ? h - 1 - y : y;
                for (int x = 0; x < std::min(w, dc.width()); ++x)
                    if (depthRow > ridge[size_t(x)] + pen) row[x] = was[x];
            }
            ctx.XBild.markChanged();
        }
        // One segment past the last column, since a line leaves out its end point.
        for (int x = 1; x <= w; ++x)
            line(ctx, x - 1, yAt(x - 1), x, yAt(std::min(x, w - 1)), c, pen);
        if (!stop.next()) break;
    }
}

} // namespace

void Do_Mountains(PaintContext &ctx, MountainStyle style, bool horizonTop)
{
    StopRule stop(ctx);
    begin(ctx, 8);
    const Mountain M = mountainOptions(ctx, horizonTop);
    const int w = ctx.opt.W, h = ctx.opt.H;
    if (style == MountainStyle::Pen) {
        penMountains(ctx, M, stop);
    } else {
        const std::vector<double> ridge =
            mountainRidge(ctx, w, M.amplitude, M.top, h * 0.85);
        fillMountain(ctx, M, ridge, style, stop);
    }
    end(ctx);
}

namespace {
bool horizonTopOf(PaintContext &ctx)
{
    return ctx.session.controls().value(QStringLiteral("radMountHorizon")) == 0;
}
} // namespace

void paintMountains(PaintContext &ctx) { Do_Mountains(ctx, MountainStyle::Fill, horizonTopOf(ctx)); }
void paintMountainsPen(PaintContext &ctx) { Do_Mountains(ctx, MountainStyle::Pen, horizonTopOf(ctx)); }
void paintMountainsGradient(PaintContext &ctx)
{
    Do_Mountains(ctx, MountainStyle::Gradient, horizonTopOf(ctx));
}

} // namespace tf
