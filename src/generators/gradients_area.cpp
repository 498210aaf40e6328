// Create_Gradients: the per-pixel gradients of sets 1 to 10.
//
// The picture is four quadrants around the centre (cx, cy) = ((w + 1) / 2, (h + 1) / 2),
// rounded. Each quadrant has a start colour and a step per channel along y, over the distance
// from the picture's edge: in the lower half the distance from the bottom edge takes the
// place of y (and in the right half the distance from the right edge that of x), so each
// quadrant runs from its edge to the centre. Sets 1 to 9 ramp the upper left and lower right
// quadrants from the start to the end colour and the other two back; set 10 ramps all four
// from the start colour at the edge to the end colour at the centre. Each set then forms its
// pixel from these three values and from x and y taken modulo the random constants:
//
//   1 "Fixed 4 squares"       the quadrant values as they are: four gradient squares
//   2 "Randomized 4 squares"  the ramp repeats every a pixels of the larger distance:
//                             square rings in each quadrant
//   3 "Randomized bars"       the mean of the ramp along y and a ramp across bars of
//                             b + 24 pixels (upper half) or c + 24 pixels (lower half)
//   4 "Neonbars vertical"     bars d wide lit in their middle, with a white core
//   5 "Horizon"               the upper half from the start colour to a bright haze at the
//                             horizon, the lower half from the end colour into dark ground
//   6 "Lense"                 the end colour in the middle to the start colour at the rim,
//                             with a light spot at the upper left
//   7 "Sky gradient"          the ramp of the upper left quadrant above and of the lower
//                             right one below, as they are: the sky and its mirror
//   8 "Random Lines"          each column one of the patterns 1 to 6 at random
//   9 "Random Noise"          each pixel one of the patterns 1 to 6 at random
//  10 "Neon vertical"         thin bright lines every e pixels over the dark ramp
#include "generators/gradients.h"

#include "core/picturebox.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace tf {

namespace {

struct Ramp {
    std::array<double, 3> start{}; // red, green, blue
    std::array<double, 3> step{};
};

// A ramp from `from` to `to` over `length` steps: |difference| / length per channel, negated
// where the end value is below the start.
Ramp rampOf(const std::array<int, 3> &from, const std::array<int, 3> &to, double length)
{
    Ramp r;
    for (size_t c = 0; c < 3; ++c) {
        r.start[c] = from[c];
        const double d = length > 0 ? std::abs(to[c] - from[c]) / length : 0.0;
        r.step[c] = to[c] < from[c] ? -d : d;
    }
    return r;
}

double clamp255(double v) { return std::clamp(v, 0.0, 255.0); }

uint32_t pixelOf(double r, double g, double b)
{
    const auto ch = [](double v) { return uint32_t(CLng(clamp255(v))); };
    return 0xFF000000u | ch(r) << 16 | ch(g) << 8 | ch(b);
}

struct Painting {
    int w = 0, h = 0, cx = 0, cy = 0;
    int a = 0, b = 0, c = 0, d = 0, e = 0;
    std::array<Ramp, 4> quad;        // upper left, upper right, lower left, lower right
    std::array<int, 3> c1{}, c2{};   // start and end colour

    // The three values of quadrant q at a distance t from its edge.
    std::array<double, 3> value(int q, double t) const
    {
        const Ramp &r = quad[size_t(q)];
        return {clamp255(r.start[0] + r.step[0] * t), clamp255(r.start[1] + r.step[1] * t),
                clamp255(r.start[2] + r.step[2] * t)};
    }

    // The pixel of pattern `set` at (x, y), 1-based.
    uint32_t pixel(int set, int x, int y) const
    {
        const bool right = x > cx, lower = y > cy;
        const int q = (lower ? 2 : 0) + (right ? 1 : 0);
        const int xx = right ? w - x + 1 : x;  // distance from the nearer side edge
        const int yy = lower ? h - y + 1 : y;  // distance from the nearer top or bottom edge
        switch (set) {
        case 1: {
            const auto v = value(q, yy);
            return pixelOf(v[0], v[1], v[2]);
        }
        case 2: {
            const int ring = Mod(std::max(xx, yy), a);
            const auto v = value(q, double(ring) * cy / a);
            return pixelOf(v[0], v[1], v[2]);
        }
        case 3: {
            const auto v = value(q, yy);
            const int bar = (lower ? c : b) + 24;
            const double t = double(Mod(x, bar)) * cy / bar;
            const auto u = value(q, t);
            return pixelOf((v[0] + u[0]) / 2, (v[1] + u[1]) / 2, (v[2] + u[2]) / 2);
        }
        case 4: {
            const auto v = value(q, yy);
            const double s = std::sin(Pi * Mod(x, d) / d);
            const double lit = s * s;
            const double core = 255.0 * 0.6 * std::pow(lit, 8.0);
            return pixelOf(v[0] * lit + core, v[1] * lit + core, v[2] * lit + core);
        }
        case 5: {
            const double u = double(yy) / cy; // 0 at the edge, 1 at the horizon
            std::array<double, 3> out{};
            for (size_t k = 0; k < 3; ++k) {
                if (!lower) {
                    const double haze = c2[k] + (255.0 - c2[k]) * 0.55;
                    out[k] = c1[k] + (haze - c1[k]) * u * u;
                } else {
                    const double ground = c2[k] * 0.25;
                    out[k] = ground + (c2[k] - ground) * std::pow(u, 3.0);
                }
            }
            return pixelOf(out[0], out[1], out[2]);
        }
        case 6: {
            const double dx = double(x - cx) / cx, dy = double(y - cy) / cy;
            const double dist = std::min(1.0, std::sqrt(dx * dx + dy * dy));
            const double sx = double(x) / w - 0.35, sy = double(y) / h - 0.33;
            const double spot = std::max(0.0, 1.0 - std::sqrt(sx * sx + sy * sy) / 0.3);
            const double light = 255.0 * 0.75 * spot * spot;
            std::array<double, 3> out{};
            for (size_t k = 0; k < 3; ++k) {
                const double t = dist * dist;
                out[k] = c2[k] + (c1[k] - c2[k]) * t + light * (1.0 - t);
            }
            return pixelOf(out[0], out[1], out[2]);
        }
        case 7: {
            const auto v = value(lower ? 3 : 0, yy);
            return pixelOf(v[0], v[1], v[2]);
        }
        case 10: {
            const auto v = value(q, yy);
            const double off = Mod(x, e) - e / 2.0;
            const double glow = std::exp(-off * off / 8.0);
            const double core = 255.0 * 0.5 * std::pow(glow, 4.0);
            const double dark = 0.15;
            return pixelOf(v[0] * (dark + glow) + core, v[1] * (dark + glow) + core,
                           v[2] * (dark + glow) + core);
        }
        default:
            return 0xFF000000u;
        }
    }
};

} // namespace

void Create_Gradients(PaintContext &ctx, int16_t &set_nr, bool use_duos, ColorLong duocolo1,
                      ColorLong duocolo2, bool do_transparence)
{
    const int kind = set_nr == 8 ? 1 : set_nr == 9 ? 2 : 0;
    PictureBox &bild = ctx.XBild;
    Painting p;
    p.w = int(bild.ScaleWidth());
    p.h = int(bild.ScaleHeight());
    // The random constants, always drawn, in this order.
    p.a = int(Int(ctx.Rnd() * 25.0f)) * 8 + 56;
    p.b = int(Int(ctx.Rnd() * 32.0f)) * 8 + 8;
    p.c = int(Int(ctx.Rnd() * 32.0f)) * 8 + 8;
    p.d = int(Int(ctx.Rnd() * 25.0f)) * 4 + 56;
    p.e = int(Int(ctx.Rnd() * 32.0f)) * 8 + 8;
    if (set_nr == 3) p.a = std::max(1, std::max(p.w, p.h) / 2);

    const ColorPair pair = colorPairRule(ctx.session, use_duos, duocolo1, duocolo2);
    p.c1 = {pair.r1, pair.g1, pair.b1};
    p.c2 = {pair.r2, pair.g2, pair.b2};
    p.cx = std::max(1, CLng((p.w + 1) / 2.0));
    p.cy = std::max(1, CLng((p.h + 1) / 2.0));
    if (set_nr == 10) {
        for (Ramp &r : p.quad) r = rampOf(p.c1, p.c2, p.cy);
    } else {
        p.quad[0] = p.quad[3] = rampOf(p.c1, p.c2, p.cy);
        p.quad[1] = p.quad[2] = rampOf(p.c2, p.c1, p.cy);
    }

    ctx.DoEvents();
    ctx.Bild_CLEAR();
    if (do_transparence) Start_Transparent(ctx.session);

    // The pixels go to memory in blocks of columns, so that the column order of the random
    // draws stays and the writes still go along the rows.
    DeviceContext &dc = bild.hDC();
    const int w = std::min(p.w, dc.width()), h = std::min(p.h, dc.height());
    constexpr int Block = 32;
    std::vector<uint32_t> block(size_t(Block) * size_t(std::max(h, 0)));
    int set = set_nr;
    for (int x0 = 1; x0 <= w; x0 += Block) {
        const int n = std::min(Block, w - x0 + 1);
        for (int i = 0; i < n; ++i) {
            const int x = x0 + i;
            if (kind == 1) set = int(Int(ctx.Rnd() * 6.0f)) + 1;
            for (int y = 1; y <= h; ++y) {
                if (kind == 2) set = int(Int(ctx.Rnd() * 6.0f)) + 1;
                block[size_t(y - 1) * Block + size_t(i)] = p.pixel(set, x, y);
            }
        }
        for (int y = 0; y < h; ++y)
            std::memcpy(reinterpret_cast<uint32_t *>(dc.scanLine(y)) + (x0 - 1),
                        &block[size_t(y) * Block], size_t(n) * 4);
        ctx.DoEvents();
    }
    bild.markChanged();
    set_nr = int16_t(set);

    if (do_transparence) Ende_Transparent(ctx.session);
}

namespace {

void paintSet(PaintContext &ctx, int16_t set_nr)
{
    const DuoArguments d = duoArguments(ctx);
    Create_Gradients(ctx, set_nr, d.use_duos, d.duocolo1, d.duocolo2, true);
}

} // namespace

void paintFixed4Squares(PaintContext &ctx) { paintSet(ctx, 1); }
void paintRandomized4Squares(PaintContext &ctx) { paintSet(ctx, 2); }
void paintRandomizedBars(PaintContext &ctx) { paintSet(ctx, 3); }
void paintNeonbarsVertical(PaintContext &ctx) { paintSet(ctx, 4); }
void paintHorizon(PaintContext &ctx) { paintSet(ctx, 5); }
void paintLense(PaintContext &ctx) { paintSet(ctx, 6); }
void paintSkyGradient(PaintContext &ctx) { paintSet(ctx, 7); }
void paintRandomLines(PaintContext &ctx) { paintSet(ctx, 8); }
void paintRandomNoise(PaintContext &ctx) { paintSet(ctx, 9); }
void paintNeonVertical(PaintContext &ctx) { paintSet(ctx, 10); }

} // namespace tf
