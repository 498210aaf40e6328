// Colour tests, halftone grid, hue stretch, light source and the colour mix.
#include "filters/kernels.h"

#include "filters/filterrun.h"
#include "filters/gradientkernels.h"
#include "filters/hls.h"
#include "paint/transparency.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tf {

namespace {

// The channels of a colour long in the byte order of a pixel: blue, green, red.
std::array<int, 3> bytesOf(ColorLong c)
{
    return {BlueOf(c), GreenOf(c), RedOf(c)};
}

// The limit of the colour tests: a pixel counts as the colour when its squared distance to it
// lies below L = (tol*127.5/100)^2 + 1.
int colourLimit(int tolerance)
{
    const double t = tolerance * 127.5 / 100.0;
    return roundInt(t * t + 1.0);
}

inline int distance2(const uint8_t *p, const std::array<int, 3> &k)
{
    const int db = p[0] - k[0], dg = p[1] - k[1], dr = p[2] - k[2];
    return dg * dg + db * db + dr * dr;
}

// Runs fn(in, out) for every pixel of S into D, rows over threads.
template <typename Fn> void eachPixel(FilterRun &run, Fn fn)
{
    const int w = run.width();
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            uint8_t *out = run.D.row(y);
            for (int x = 0; x < width * 4; x += 4)
                fn(in + x, out + x);
        }
    });
}

} // namespace

// Halftone grid: square cells of side 2a, each replaced by a round dot on white. The dot has
// the cell's mean colour, strengthened by (c+100)/100 and limited to 255, and covers as much
// of the cell as the cell is dark; the definition b sharpens its edge (100: hard, 0: soft over
// the radius).
void filterHalftoneGrid(FilterRun &run)
{
    const int a = run.args.sliders[0], b = run.args.sliders[1], c = run.args.sliders[2];
    if (a < 1) return;
    const int side = 2 * a;
    const int w = run.width(), h = run.height();
    const int cellRows = (h + side - 1) / side;
    const double strength = (c + 100) / 100.0;
    const double soft = 0.5 + (100 - std::clamp(b, 0, 100)) / 100.0 * a;
    parallelRows(cellRows, int64_t(w) * side, [&](int first, int last) {
        for (int cy = first; cy < last; ++cy) {
            const int y0 = cy * side, y1 = std::min(h, y0 + side);
            for (int x0 = 0; x0 < w; x0 += side) {
                const int x1 = std::min(w, x0 + side);
                int64_t sum[3] = {0, 0, 0};
                for (int y = y0; y < y1; ++y)
                    for (int x = x0; x < x1; ++x)
                        for (int ch = 0; ch < 3; ++ch)
                            sum[ch] += run.S.row(y)[x * 4 + ch];
                const double n = double(y1 - y0) * (x1 - x0);
                double mean[3], dot[3];
                for (int ch = 0; ch < 3; ++ch) {
                    mean[ch] = sum[ch] / n;
                    dot[ch] = std::min(255.0, mean[ch] * strength);
                }
                const double lum = (0.114 * mean[0] + 0.587 * mean[1] + 0.299 * mean[2]) / 255.0;
                const double radius = side * std::sqrt(std::max(0.0, 1.0 - lum) / Pi);
                const double mx = x0 + (side - 1) / 2.0, my = y0 + (side - 1) / 2.0;
                for (int y = y0; y < y1; ++y) {
                    uint8_t *out = run.D.row(y);
                    for (int x = x0; x < x1; ++x) {
                        const double d = std::hypot(x - mx, y - my);
                        const double cover = std::clamp((radius - d) / soft + 0.5, 0.0, 1.0);
                        for (int ch = 0; ch < 3; ++ch)
                            out[x * 4 + ch] = clampByte(roundInt(255.0 + cover * (dot[ch] - 255.0)));
                    }
                }
            }
        }
    }, 1 << 15, run.threads());
    run.progress(100);
}

// Hue stretch: the hues of the picture, from its smallest to its largest, are spread over the
// hues from "Color from" to "Color to/back"; the offset (0..100) turns them further round the
// circle, the saturation slider scales the saturation (100 keeps it), and the third slider
// lightens towards white.
void filterHueStretch(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    std::vector<std::array<Single, 2>> perRow(size_t(h), {5.0f, -1.0f});
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            auto &r = perRow[size_t(y)];
            for (int x = 0; x < width * 4; x += 4) {
                Single H, S, L;
                RGBToHLS(in[x + 2], in[x + 1], in[x], H, S, L);
                if (S > 0.0f) {
                    r[0] = std::min(r[0], H);
                    r[1] = std::max(r[1], H);
                }
            }
        }
    }, 0, 30);
    Single lo = 5.0f, hi = -1.0f;
    for (const auto &r : perRow) {
        lo = std::min(lo, r[0]);
        hi = std::max(hi, r[1]);
    }
    Single h0, h1, s, l;
    const ColorLong c0 = run.args.colours[0], c1 = run.args.colours[1];
    RGBToHLS(RedOf(c0), GreenOf(c0), BlueOf(c0), h0, s, l);
    RGBToHLS(RedOf(c1), GreenOf(c1), BlueOf(c1), h1, s, l);
    const Single offset = Single(run.args.sliders[0]) * 6.0f / 100.0f;
    const Single saturation = Single(run.args.sliders[1]) / 100.0f;
    const Single lighten = Single(run.args.sliders[2]) / 100.0f;
    run.FilterStart = 30;
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            uint8_t *out = run.D.row(y);
            for (int x = 0; x < width * 4; x += 4) {
                Single H, S, L;
                RGBToHLS(in[x + 2], in[x + 1], in[x], H, S, L);
                Single nh = hi > lo ? h0 + (H - lo) / (hi - lo) * (h1 - h0) : h0;
                nh += offset;
                while (nh >= 5.0f) nh -= 6.0f;
                while (nh < -1.0f) nh += 6.0f;
                int r, g, b;
                HLSToRGB(nh, std::min(1.0f, S * saturation), L + (1.0f - L) * lighten, r, g, b);
                out[x] = clampByte(b);
                out[x + 1] = clampByte(g);
                out[x + 2] = clampByte(r);
            }
        }
    }, 30, 70);
}

void filterShiftColor(FilterRun &run)
{
    const auto k = bytesOf(run.args.colours[0]);
    const int shift = run.args.sliders[0];
    const int limit = colourLimit(run.args.sliders[1]);
    std::array<int, 256> t{};
    for (int i = 0; i < 256; ++i)
        t[size_t(i)] = std::clamp(i + shift, 0, 255);
    eachPixel(run, [&](const uint8_t *in, uint8_t *out) {
        const int d2 = distance2(in, k);
        if (d2 >= limit) return;
        const double f = 1.0 - double(d2) / limit;
        for (int c = 0; c < 3; ++c)
            out[c] = clampByte(roundInt(in[c] + f * (t[in[c]] - in[c])));
    });
}

void filterIsolateColor(FilterRun &run)
{
    const auto k = bytesOf(run.args.colours[0]);
    const auto other = bytesOf(run.args.colours[1]);
    const int limit = colourLimit(run.args.sliders[0]);
    eachPixel(run, [&](const uint8_t *in, uint8_t *out) {
        if (distance2(in, k) < limit) return;
        for (int c = 0; c < 3; ++c)
            out[c] = uint8_t(other[size_t(c)]);
    });
}

void filterReplaceColor(FilterRun &run)
{
    const auto k = bytesOf(run.args.colours[0]);
    const auto k2 = bytesOf(run.args.colours[1]);
    const int limit = colourLimit(run.args.sliders[0]);
    eachPixel(run, [&](const uint8_t *in, uint8_t *out) {
        const int d2 = distance2(in, k);
        if (d2 >= limit) return;
        // A soft replacement, strongest at the exact colour.
        const double f = 1.0 - double(d2) / limit;
        for (int c = 0; c < 3; ++c)
            out[c] = clampByte(roundInt(in[c] + f * (k2[size_t(c)] - in[c])));
    });
}

// Light source: a round light at the chosen position (the middle when none was chosen) whose
// reach is the extension in per cent of the longer side. Inside it every channel is lifted by
// k = intensity/250 * (1 - d/reach)^2 as v*(1+k) + 32k, so the light brightens and warms dark
// parts a little too.
void filterAddLight(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    const QPoint p = run.args.position;
    const double px = p.x() >= 0 ? p.x() : (w - 1) / 2.0, py = p.y() >= 0 ? p.y() : (h - 1) / 2.0;
    const double reach = std::max(1.0, run.args.sliders[0] / 100.0 * std::max(w, h));
    const double intensity = run.args.sliders[1] / 250.0;
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            uint8_t *out = run.D.row(y);
            for (int x = 0; x < width; ++x) {
                const double d = std::hypot(x - px, y - py);
                if (d >= reach) continue;
                const double fall = 1.0 - d / reach;
                const double k = intensity * fall * fall;
                for (int c = 0; c < 3; ++c)
                    out[x * 4 + c] = clampByte(roundInt(in[x * 4 + c] * (1.0 + k) + 32.0 * k));
            }
        }
    });
}

// The colour mix: "Color from" laid over the picture, each channel colour - keep*(colour - v)
// (the blend of the transparency bracket, the colour in the place of the paint). With a
// border the mix covers a frame of that width only, fading from full strength at the edge to
// none at its inner side.
void filterColourMix(FilterRun &run)
{
    if (run.args.frame.on) {
        frameGradient(run);
        return;
    }
    const auto k = bytesOf(run.args.colours[0]);
    // Slider 0 is the transparency in percent: the share of the picture kept (0 gives the
    // colour whole, 100 leaves the picture); slider 1 the width of the frame.
    const double keep = run.args.sliders[0] / 100.0;
    const int border = run.args.sliders[1];
    const int w = run.width(), h = run.height();
    if (border <= 0) {
        std::array<std::array<uint8_t, 256>, 3> t{};
        for (size_t c = 0; c < 3; ++c)
            for (int o = 0; o < 256; ++o)
                t[c][size_t(o)] = clampByte(blendChannel(k[c], o, keep));
        eachPixel(run, [&](const uint8_t *in, uint8_t *out) {
            for (size_t c = 0; c < 3; ++c)
                out[c] = t[c][in[c]];
        });
        return;
    }
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            uint8_t *out = run.D.row(y);
            for (int x = 0; x < width; ++x) {
                const int edge = std::min({x, y, width - 1 - x, h - 1 - y});
                if (edge >= border) continue;
                const double kept = keep + (1.0 - keep) * edge / border;
                for (size_t c = 0; c < 3; ++c)
                    out[x * 4 + int(c)] = clampByte(blendChannel(k[c], in[x * 4 + int(c)], kept));
            }
        }
    });
}

} // namespace tf
