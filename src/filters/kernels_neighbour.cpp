// The neighbourhood filters. N is the sum of the eight neighbours of a channel; neighbour
// coordinates are clamped to the picture, so the neighbour of a border pixel is the border
// pixel again.
#include "filters/kernels.h"

#include "filters/filterrun.h"

#include <algorithm>
#include <cstdlib>

namespace tf {

namespace {

// The channel of a colour long that matches byte c of a pixel (0 blue, 1 green, 2 red).
int channelOf(ColorLong colour, int c)
{
    return c == 0 ? BlueOf(colour) : c == 1 ? GreenOf(colour) : RedOf(colour);
}

// An in-place 3 x 3 filter: y outer, x inner, reading D as it is being written, so a pixel
// sees its upper neighbours and its left one already filtered. Rows go over the threads as a
// wavefront (FilterRun::inPlaceRows), which keeps exactly those reads.
//
// `exact(up, mid, dn, xm, x0, xp)` gives the new value of one channel from the three rows and
// the clamped byte offsets; it serves the first and last row and column, where a clamped
// neighbour may be the pixel itself or its already filtered left neighbour. Inside, the work
// is split in two: `others(up, mid, dn, i)` takes what does not depend on the left neighbour,
// for a whole chunk of bytes at once (a loop the compiler turns into vector code), and
// `finish(v, others, left)` then walks the row with the left neighbour's new value.
template <typename Exact, typename Others, typename Finish>
void inPlaceLeftChain(FilterRun &run, Exact exact, Others others, Finish finish)
{
    const int w = run.width(), h = run.height();
    run.inPlaceRows([&](int y, int x0, int x1) {
        const uint8_t *up = run.D.row(std::max(y - 1, 0));
        uint8_t *mid = run.D.row(y);
        const uint8_t *dn = run.D.row(std::min(y + 1, h - 1));
        const auto exactPixel = [&](int x) {
            const int xm = std::max(x - 1, 0) * 4, xc = x * 4, xp = std::min(x + 1, w - 1) * 4;
            for (int c = 0; c < 3; ++c)
                mid[xc + c] = clampByte(exact(up, mid, dn, xm + c, xc + c, xp + c));
        };
        if (y == 0 || y == h - 1) {
            for (int x = x0; x < x1; ++x)
                exactPixel(x);
            return;
        }
        const int a = std::max(x0, 1), b = std::min(x1, w - 1);
        for (int x = x0; x < std::min(a, x1); ++x)
            exactPixel(x);
        if (a < b) {
            int q[FilterRun::InPlaceChunk * 4];
            const int i0 = a * 4, i1 = b * 4;
            for (int i = i0; i < i1; ++i)
                q[i - i0] = others(up, mid, dn, i);
            int l0 = mid[i0 - 4], l1 = mid[i0 - 3], l2 = mid[i0 - 2];
            for (int i = i0; i < i1; i += 4) {
                uint8_t *p = mid + i;
                const int *o = q + (i - i0);
                l0 = clampByte(finish(p[0], o[0], l0));
                l1 = clampByte(finish(p[1], o[1], l1));
                l2 = clampByte(finish(p[2], o[2], l2));
                p[0] = uint8_t(l0);
                p[1] = uint8_t(l1);
                p[2] = uint8_t(l2);
            }
        }
        for (int x = std::max(a, b); x < x1; ++x)
            exactPixel(x);
    });
}

// The common case: fn(centre, N) with N the sum of the eight neighbours.
template <typename Fn> void inPlace3x3(FilterRun &run, Fn fn)
{
    inPlaceLeftChain(
        run,
        [fn](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int x0, int xp) {
            const int n = up[xm] + up[x0] + up[xp] + mid[xm] + mid[xp] + dn[xm] + dn[x0] + dn[xp];
            return fn(mid[x0], n);
        },
        [](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int i) {
            return up[i - 4] + up[i] + up[i + 4] + mid[i + 4] + dn[i - 4] + dn[i] + dn[i + 4];
        },
        [fn](int v, int others, int left) { return fn(v, others + left); });
}

// A 3 x 3 filter over the unchanged copy S, rows spread over threads. fn(up, mid, dn, xm, x0,
// xp, c) gives the new value of channel c; the offsets already include the channel.
template <typename Fn> void pure3x3(FilterRun &run, Fn fn)
{
    const int w = run.width(), h = run.height();
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *up = run.S.row(std::max(y - 1, 0));
            const uint8_t *mid = run.S.row(y);
            const uint8_t *dn = run.S.row(std::min(y + 1, h - 1));
            uint8_t *out = run.D.row(y);
            for (int x = 0; x < width; ++x) {
                const int xm = std::max(x - 1, 0) * 4, x0 = x * 4, xp = std::min(x + 1, width - 1) * 4;
                for (int c = 0; c < 3; ++c)
                    out[x0 + c] = clampByte(fn(up, mid, dn, xm + c, x0 + c, xp + c, c));
            }
        }
    });
}

inline int sum8(const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int x0, int xp)
{
    return up[xm] + up[x0] + up[xp] + mid[xm] + mid[xp] + dn[xm] + dn[x0] + dn[xp];
}

// Sharpen with a strength known when compiling: the division by a+8 becomes a multiplication.
template <int A> void sharpenBy(FilterRun &run)
{
    inPlace3x3(run, [](int v, int n) { return (v * (A + 24) - n * 2) / (A + 8); });
}

// The maximum (or minimum) of the 3 x 3 block of each byte, the unused byte included (it is
// 255 everywhere). Plain byte loops, which the compiler turns into vector code.
template <bool Max> void extreme3x3(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    run.rows([&](int first, int last) {
        const int width = w, bytes = w * 4;
        std::vector<uint8_t> across(size_t(bytes) * 3);
        auto pick = [](uint8_t a, uint8_t b) { return Max ? std::max(a, b) : std::min(a, b); };
        for (int y = first; y < last; ++y) {
            const uint8_t *rows[3] = {run.S.row(std::max(y - 1, 0)), run.S.row(y),
                                      run.S.row(std::min(y + 1, h - 1))};
            for (int r = 0; r < 3; ++r) {
                const uint8_t *s = rows[r];
                uint8_t *a = across.data() + size_t(r) * size_t(bytes);
                if (width == 1) {
                    std::copy(s, s + 4, a);
                    continue;
                }
                for (int i = 0; i < 4; ++i) {
                    a[i] = pick(s[i], s[i + 4]);
                    a[bytes - 4 + i] = pick(s[bytes - 4 + i], s[bytes - 8 + i]);
                }
                for (int i = 4; i < bytes - 4; ++i)
                    a[i] = pick(pick(s[i - 4], s[i]), s[i + 4]);
            }
            uint8_t *out = run.D.row(y);
            const uint8_t *a0 = across.data(), *a1 = a0 + bytes, *a2 = a1 + bytes;
            for (int i = 0; i < bytes; ++i)
                out[i] = pick(pick(a0[i], a1[i]), a2[i]);
        }
    });
}

} // namespace

void filterSharpen(FilterRun &run)
{
    const int a = run.args.argument;
    if (a == 36) return sharpenBy<36>(run);
    if (a == 16) return sharpenBy<16>(run);
    const int d = a + 8;
    if (d == 0) throw Fault(Fault::DivisionByZero);
    inPlace3x3(run, [a, d](int v, int n) { return (v * (a + 24) - n * 2) / d; });
}

void filterBlurMore(FilterRun &run)
{
    inPlace3x3(run, [](int, int n) { return n / 8; });
}

void filterBlur(FilterRun &run)
{
    inPlaceLeftChain(
        run,
        [](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int x0, int xp) {
            return (mid[x0] + up[x0] + dn[x0] + mid[xm] + mid[xp]) / 5;
        },
        [](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int i) {
            return mid[i] + up[i] + dn[i] + mid[i + 4];
        },
        [](int, int others, int left) { return (others + left) / 5; });
}

void filterEdge(FilterRun &run)
{
    const int a = run.args.argument;
    const int d = a + 1;
    if (d == 0) throw Fault(Fault::DivisionByZero);
    inPlace3x3(run, [a, d](int v, int n) { return (v * (a + 9) - n) / d; });
}

void filterContour(FilterRun &run)
{
    const ColorLong k = run.args.argument;
    const int kc[3] = {channelOf(k, 0), channelOf(k, 1), channelOf(k, 2)};
    pure3x3(run, [&](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int x0,
                     int xp, int c) { return mid[x0] * 8 - sum8(up, mid, dn, xm, x0, xp) + kc[c]; });
}

// Emboss and engrave read the pixel and its lower right neighbour. In the in-place loop both
// lie ahead of the write, so reading the unchanged copy gives the same result.
void filterEmboss(FilterRun &run)
{
    const ColorLong k = run.args.argument;
    const int kc[3] = {channelOf(k, 0), channelOf(k, 1), channelOf(k, 2)};
    pure3x3(run, [&](const uint8_t *, const uint8_t *mid, const uint8_t *dn, int, int x0, int xp,
                     int c) { return std::abs(mid[x0] - dn[xp] + kc[c]); });
}

void filterEngrave(FilterRun &run)
{
    const ColorLong k = run.args.argument;
    const int kc[3] = {channelOf(k, 0), channelOf(k, 1), channelOf(k, 2)};
    pure3x3(run, [&](const uint8_t *, const uint8_t *mid, const uint8_t *dn, int, int x0, int xp,
                     int c) { return std::abs(dn[xp] - mid[x0] + kc[c]); });
}

void filterEngraveMore(FilterRun &run)
{
    const ColorLong k = run.args.argument;
    const int kc[3] = {channelOf(k, 0), channelOf(k, 1), channelOf(k, 2)};
    pure3x3(run, [&](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int,
                     int xp, int c) {
        return std::abs(up[xp] - up[xm] + mid[xp] - mid[xm] + dn[xp] - dn[xm] + kc[c]);
    });
}

void filterEmbossMore(FilterRun &run)
{
    const ColorLong k = run.args.argument;
    const int kc[3] = {channelOf(k, 0), channelOf(k, 1), channelOf(k, 2)};
    pure3x3(run, [&](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int,
                     int xp, int c) {
        return std::abs(up[xm] - up[xp] + mid[xm] - mid[xp] + dn[xm] - dn[xp] + kc[c]);
    });
}

void filterRelief(FilterRun &run)
{
    pure3x3(run, [](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int x0,
                    int xp, int) {
        const int t = 2 * up[xm] + mid[xm] + up[x0] - dn[x0] - mid[xp] - 2 * dn[xp];
        return (t + mid[x0]) / 2 + 50;
    });
}

// Pastel: the mean of the 3 x 3 block, lifted a third of the way towards white, which
// softens the picture and pales its colours in one pass.
void filterPastel(FilterRun &run)
{
    pure3x3(run, [](const uint8_t *up, const uint8_t *mid, const uint8_t *dn, int xm, int x0,
                    int xp, int) {
        const int mean = (sum8(up, mid, dn, xm, x0, xp) + mid[x0]) / 9;
        return (2 * mean + 255) / 3;
    });
}

void filterDilate(FilterRun &run)
{
    extreme3x3<true>(run);
}

void filterErode(FilterRun &run)
{
    extreme3x3<false>(run);
}

void filterConnection(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    // The border of one pixel keeps its value: D holds the picture there already.
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = std::max(first, 1); y < std::min(last, h - 1); ++y) {
            const uint8_t *up = run.S.row(y - 1), *mid = run.S.row(y), *dn = run.S.row(y + 1);
            uint8_t *out = run.D.row(y);
            for (int x = 1; x < width - 1; ++x)
                for (int c = 0; c < 3; ++c) {
                    const int i = x * 4 + c;
                    const int lo = std::min({up[i - 4], up[i], up[i + 4], mid[i - 4], mid[i],
                                             mid[i + 4], dn[i - 4], dn[i], dn[i + 4]});
                    out[i] = uint8_t(mid[i] - lo);
                }
        }
    });
}

namespace {

// One step of despeckle for centre v between p and q.
inline uint8_t despeckleStep(uint8_t v, int p, int q)
{
    if (v > 0 && p < v - 1 && q < v - 1) return uint8_t(v - 1);
    if (v < 255 && p > v + 1 && q > v + 1) return uint8_t(v + 1);
    return v;
}

} // namespace

void filterDespeckle(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    // First pass: above and below. Each column depends only on itself, so bands of columns
    // go to the threads, each walking its rows downwards.
    {
        const int bands = std::max(1, std::min(w, 64));
        parallelRows(bands, int64_t(w / bands + 1) * h, [&](int b0, int b1) {
            const int x0 = int(int64_t(w) * b0 / bands), x1 = int(int64_t(w) * b1 / bands);
            for (int y = 0; y < h; ++y) {
                const uint8_t *up = run.D.row(std::max(y - 1, 0));
                uint8_t *mid = run.D.row(y);
                const uint8_t *dn = run.D.row(std::min(y + 1, h - 1));
                for (int i = x0 * 4; i < x1 * 4; ++i)
                    if ((i & 3) != 3) mid[i] = despeckleStep(mid[i], up[i], dn[i]);
            }
        }, 1 << 15, run.threads());
        run.progress(33);
    }
    // Second pass: left and right; each row depends only on itself.
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            uint8_t *mid = run.D.row(y);
            for (int x = 0; x < width; ++x) {
                const int xm = std::max(x - 1, 0) * 4, x0 = x * 4, xp = std::min(x + 1, width - 1) * 4;
                for (int c = 0; c < 3; ++c)
                    mid[x0 + c] = despeckleStep(mid[x0 + c], mid[xm + c], mid[xp + c]);
            }
        }
    }, 33, 33);
    // Third pass: the upper left and lower right neighbours. A row reads the row above as
    // already done and the row below as not yet done, so rows follow each other as a wavefront.
    run.inPlaceRows([&](int y, int x0, int x1) {
        const uint8_t *up = run.D.row(std::max(y - 1, 0));
        uint8_t *mid = run.D.row(y);
        const uint8_t *dn = run.D.row(std::min(y + 1, h - 1));
        for (int x = x0; x < x1; ++x) {
            const int xm = std::max(x - 1, 0) * 4, xc = x * 4, xp = std::min(x + 1, w - 1) * 4;
            for (int c = 0; c < 3; ++c)
                mid[xc + c] = despeckleStep(mid[xc + c], up[xm + c], dn[xp + c]);
        }
    }, 1, 66, 34);
}

} // namespace tf
