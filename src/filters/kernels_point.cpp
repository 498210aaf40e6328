// The filters that map channel values: through a table of 256 entries per channel where the
// result depends on the value alone, so no pixel repeats a multiplication or a power.
#include "filters/kernels.h"

#include "core/bytetables.h"
#include "core/pixelrows.h"
#include "filters/filterrun.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tf {

namespace {

using Table = std::array<uint8_t, 256>;

int channelOf(ColorLong colour, int c)
{
    return c == 0 ? BlueOf(colour) : c == 1 ? GreenOf(colour) : RedOf(colour);
}

// One row through the widened tables: three look-ups and two ors a pixel. (Gathering eight
// pixels at once with the wider vector instructions measured slower than this.)
void tableRow(const uint32_t *in, uint32_t *out, int n, const uint32_t *wb,
                               const uint32_t *wg, const uint32_t *wr)
{
    for (int x = 0; x < n; ++x) {
        const uint32_t p = in[x];
        out[x] = wb[p & 255] | wg[(p >> 8) & 255] | wr[(p >> 16) & 255];
    }
}

// D takes, for every pixel, the table of each channel (blue, green, red) applied to S. The
// tables are widened to whole pixels (each value shifted to its byte, the unused byte set in
// the red one), so a pixel costs three loads and two ors.
void applyTables(FilterRun &run, const Table &b, const Table &g, const Table &r, int start = 0,
                 int span = 100)
{
    std::array<uint32_t, 256> wb{}, wg{}, wr{};
    for (size_t i = 0; i < 256; ++i) {
        wb[i] = b[i];
        wg[i] = uint32_t(g[i]) << 8;
        wr[i] = uint32_t(r[i]) << 16 | 0xFF000000u;
    }
    const int w = run.width();
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y) {
            if (mapChannelsWide(run.S.row(y), run.D.row(y), w, b.data(), g.data(), r.data(),
                                UnusedByte::Opaque) == w)
                continue;
            tableRow(reinterpret_cast<const uint32_t *>(run.S.row(y)),
                     reinterpret_cast<uint32_t *>(run.D.row(y)), w, wb.data(), wg.data(),
                     wr.data());
        }
    }, start, span);
}

void applyTable(FilterRun &run, const Table &t)
{
    applyTables(run, t, t, t);
}

template <typename Fn> Table tableOf(Fn fn)
{
    Table t{};
    for (int i = 0; i < 256; ++i)
        t[size_t(i)] = clampByte(fn(i));
    return t;
}


} // namespace

// 255 - v of each channel is the channel's bits inverted: one exclusive or a pixel, which
// leaves the unused byte alone and which the compiler turns into vector code.
void filterNegative(FilterRun &run)
{
    const int w = run.width();
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const auto *in = reinterpret_cast<const uint32_t *>(run.S.row(y));
            auto *out = reinterpret_cast<uint32_t *>(run.D.row(y));
            for (int x = 0; x < width; ++x)
                out[x] = in[x] ^ 0x00FFFFFFu;
        }
    });
}

namespace {

// One row of greyscale: FilterLUT(b+g+r) = (b+g+r)\3 for each channel, computed as
// (s * 43691) >> 17, which equals s\3 for every sum up to 765 (43691 * 3 = 2^17 + 1). The
// loop is vector code; where the processor has the wider vector instructions a second copy
// of it uses them (chosen once when the program starts).
TF_VECTOR_CLONES void greyRow(const uint32_t *in, uint32_t *out, int n)
{
    for (int x = 0; x < n; ++x) {
        const uint32_t p = in[x];
        const uint32_t sum = (p & 255) + ((p >> 8) & 255) + ((p >> 16) & 255);
        const uint32_t g = (sum * 43691u) >> 17;
        out[x] = (p & 0xFF000000u) | g | g << 8 | g << 16;
    }
}

} // namespace

void filterGreyScale(FilterRun &run)
{
    const int w = run.width();
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y)
            greyRow(reinterpret_cast<const uint32_t *>(run.S.row(y)),
                    reinterpret_cast<uint32_t *>(run.D.row(y)), w);
    });
}

void filterBrightness(FilterRun &run)
{
    const double f = (run.args.argument + 100) / 100.0;
    applyTable(run, tableOf([f](int i) { return roundInt(f * i); }));
}

void filterMosaic(FilterRun &run)
{
    const int a = run.args.argument;
    if (a == 0) throw Fault(Fault::DivisionByZero);
    if (a < 0) throw Fault(Fault::InvalidCall);
    const int w = run.width(), h = run.height();
    const int blockRows = (h + a - 1) / a;
    // Every pixel of a block takes the block's mean, counted over its cells inside the picture.
    parallelRows(blockRows, int64_t(w) * a, [&](int first, int last) {
        for (int by = first; by < last; ++by) {
            const int y0 = by * a, y1 = std::min(h, y0 + a);
            for (int x0 = 0; x0 < w; x0 += a) {
                const int x1 = std::min(w, x0 + a);
                int64_t sum[3] = {0, 0, 0};
                for (int y = y0; y < y1; ++y) {
                    const uint8_t *in = run.S.row(y);
                    for (int x = x0; x < x1; ++x)
                        for (int c = 0; c < 3; ++c)
                            sum[c] += in[x * 4 + c];
                }
                const int64_t count = int64_t(y1 - y0) * (x1 - x0);
                uint8_t mean[3];
                for (int c = 0; c < 3; ++c)
                    mean[c] = uint8_t(sum[c] / count);
                for (int y = y0; y < y1; ++y) {
                    uint8_t *out = run.D.row(y);
                    for (int x = x0; x < x1; ++x)
                        for (int c = 0; c < 3; ++c)
                            out[x * 4 + c] = mean[c];
                }
            }
        }
    }, 1 << 15, run.threads());
    run.progress(100);
}

namespace {

// D takes S with its channels rearranged (pixelrows.h): a byte shuffle of four pixels at a
// time, where the result's byte of each channel comes from one byte of the same pixel.
void permuteRows(FilterRun &run, const int source[3], const uint8_t flip[3], const uint8_t keep[3])
{
    const int w = run.width();
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y)
            permuteChannels(run.S.row(y), run.D.row(y), w, source, flip, keep);
    });
}

} // namespace

void filterSwapBank(FilterRun &run)
{
    // For each entry, the source of the output red, green and blue (0 red, 1 green, 2 blue).
    static constexpr int from[6][3] = {
        {0, 1, 2}, // any other argument: the pixel stays
        {2, 0, 1}, // 1 RGB --> BRG
        {1, 2, 0}, // 2 RGB --> GBR
        {0, 2, 1}, // 3 RGB --> RBG
        {2, 1, 0}, // 4 RGB --> BGR
        {1, 0, 2}, // 5 RGB --> GRB
    };
    const int a = run.args.argument;
    const int *f = from[a >= 1 && a <= 5 ? a : 0];
    // Byte of a channel index: red 2, green 1, blue 0.
    const int source[3] = {2 - f[2], 2 - f[1], 2 - f[0]}; // for blue, green, red
    static constexpr uint8_t flip[3] = {0, 0, 0}, keep[3] = {255, 255, 255};
    permuteRows(run, source, flip, keep);
}

namespace {

// The sum over a row of the average greys (b+g+r)\3, the division done as in greyRow; in
// vector code, 32-bit lanes summed over stretches short enough not to overflow.
TF_VECTOR_CLONES int64_t greySumRow(const uint32_t *in, int n)
{
    constexpr int Stretch = 1 << 16; // 65536 * 255 fits 32 bits
    int64_t total = 0;
    for (int x0 = 0; x0 < n; x0 += Stretch) {
        const int x1 = std::min(n, x0 + Stretch);
        uint32_t sum = 0;
        for (int x = x0; x < x1; ++x) {
            const uint32_t p = in[x];
            sum += (((p & 255) + ((p >> 8) & 255) + ((p >> 16) & 255)) * 43691u) >> 17;
        }
        total += sum;
    }
    return total;
}

// Flags in the unused byte of the widened contrast tables: the value of that channel falls
// outside 0..255, and below 0.
constexpr uint32_t BlueOver = 1u << 24, GreenOver = 1u << 25, RedOver = 1u << 26;
constexpr uint32_t BlueLow = 1u << 27, GreenLow = 1u << 28, RedLow = 1u << 29;

// The tables of one contrast, each indexed by a channel value: blue, green and red widened to
// their place in the pixel and flagged; the value the table gives; the share of its overflow
// (half of it, towards zero) that a value out of range passes to the other two channels.
struct ContrastTables {
    const uint32_t *b, *g, *r;
    const int *values;
    const int *shares;
};

// A pixel whose channels the table drives out of range: the overflow of the first channel out
// of range (blue, green, red) goes half to each of the other two, which keeps the hue of
// over-driven pixels, unless all three went out on the same side; then every channel is
// clamped. `flags` is the pixel's ors of the widened tables.
uint32_t overDriven(uint32_t p, uint32_t flags, const ContrastTables &t)
{
    const uint32_t channel[3] = {p & 255, (p >> 8) & 255, (p >> 16) & 255};
    const uint32_t over = (flags >> 24) & 7, low = (flags >> 27) & 7;
    const bool oneSide = over == 7 && (low == 7 || low == 0);
    const int first = std::countr_zero(over);
    const int share = oneSide ? 0 : t.shares[channel[first]];
    uint32_t out = p & 0xFF000000u;
    for (int k = 0; k < 3; ++k)
        out |= uint32_t(clampByte(t.values[channel[k]] + (k == first ? 0 : share))) << (8 * k);
    return out;
}

// One row of contrast. The tables are read through pointers no store can reach, so they stay
// in registers for the whole row.
void contrastRow(const uint32_t *__restrict in, uint32_t *__restrict out, int n,
                 const ContrastTables &tables)
{
    const uint32_t *__restrict wb = tables.b;
    const uint32_t *__restrict wg = tables.g;
    const uint32_t *__restrict wr = tables.r;
    for (int x = 0; x < n; ++x) {
        const uint32_t p = in[x];
        const uint32_t mapped = wb[p & 255] | wg[(p >> 8) & 255] | wr[(p >> 16) & 255];
        // The unused byte is the picture's (the destination starts as its copy).
        out[x] = mapped < BlueOver ? mapped | (p & 0xFF000000u) : overDriven(p, mapped, tables);
    }
}

} // namespace

void filterContrast(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    // First pass: the mean grey, counting 5 of the bar.
    std::vector<int64_t> perRow(size_t(h), 0);
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y)
            perRow[size_t(y)] = greySumRow(reinterpret_cast<const uint32_t *>(run.S.row(y)), w);
    }, 0, 5);
    int64_t sum = 0;
    for (int64_t r : perRow)
        sum += r;
    const int m = int(roundHalfEven(double(sum) / (double(w) * h)));
    run.FilterStart = 5;
    run.DoEvents();
    const double f = (run.args.argument + 100) / 100.0;
    // The table widened to whole pixels, as applyTables has it, with flags for a value out of
    // range: a pixel whose three channels stay in range (the usual case) is three look-ups,
    // two ors and one test.
    std::array<int, 256> values{}, shares{};
    std::array<uint32_t, 256> wb{}, wg{}, wr{};
    for (size_t i = 0; i < 256; ++i) {
        const int v = roundInt(f * (int(i) - m) + m);
        values[i] = v;
        shares[i] = v < 0 ? v / 2 : v > 255 ? (v - 255) / 2 : 0;
        const bool low = v < 0, over = low || v > 255;
        const uint32_t byte = over ? 0 : uint32_t(v);
        wb[i] = over ? BlueOver | (low ? BlueLow : 0) : byte;
        wg[i] = over ? GreenOver | (low ? GreenLow : 0) : byte << 8;
        wr[i] = over ? RedOver | (low ? RedLow : 0) : byte << 16;
    }
    const ContrastTables tables{wb.data(), wg.data(), wr.data(), values.data(), shares.data()};
    // Where the processor maps 64 bytes at a time (bytetables.h), a row goes through the
    // clamped table, and only the blocks of sixteen pixels with a value out of range are
    // worked out again. S is never D here, so the pixels are still there to be read.
    Table clamped{}, outOfRange{};
    for (size_t i = 0; i < 256; ++i) {
        clamped[i] = clampByte(values[i]);
        outOfRange[i] = values[i] < 0 || values[i] > 255 ? 1 : 0;
    }
    const bool wide = haveWideByteTables();
    run.rows([&](int first, int last) {
        std::vector<quint64> flagged(wide ? size_t(w + 1023) / 1024 : 0);
        for (int y = first; y < last; ++y) {
            const auto *in = reinterpret_cast<const uint32_t *>(run.S.row(y));
            auto *out = reinterpret_cast<uint32_t *>(run.D.row(y));
            if (!wide) {
                contrastRow(in, out, w, tables);
                continue;
            }
            std::fill(flagged.begin(), flagged.end(), 0);
            mapChannelsWideFlagged(run.S.row(y), run.D.row(y), w, clamped.data(),
                                   outOfRange.data(), UnusedByte::Keep, flagged.data());
            for (size_t word = 0; word < flagged.size(); ++word)
                for (quint64 bits = flagged[word]; bits != 0; bits &= bits - 1) {
                    const int x0 = int(word * 64 + size_t(std::countr_zero(bits))) * 16;
                    for (int x = x0; x < std::min(w, x0 + 16); ++x) {
                        const uint32_t p = in[x];
                        const uint32_t mapped = wb[p & 255] | wg[(p >> 8) & 255] | wr[(p >> 16) & 255];
                        if (mapped >= BlueOver) out[x] = overDriven(p, mapped, tables);
                    }
                }
        }
    }, 5, 95);
}

namespace {

// The smallest and the largest value of blue, green and red in a row of n pixels, in that
// order. Four pixels at a time byte by byte in vector registers; their lanes are joined at
// the end.
std::array<uint8_t, 6> channelRange(const uint8_t *in, int n)
{
    uint8_t lo[16], hi[16];
    int x = 0;
#ifdef __SSE2__
    __m128i low = _mm_set1_epi8(-1), high = _mm_setzero_si128();
    for (; x + 4 <= n; x += 4, in += 16) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i *>(in));
        low = _mm_min_epu8(low, v);
        high = _mm_max_epu8(high, v);
    }
    _mm_storeu_si128(reinterpret_cast<__m128i *>(lo), low);
    _mm_storeu_si128(reinterpret_cast<__m128i *>(hi), high);
#else
    for (int j = 0; j < 16; ++j) {
        lo[j] = 255;
        hi[j] = 0;
    }
#endif
    for (; x < n; ++x, in += 4)
        for (int c = 0; c < 3; ++c) {
            lo[c] = std::min(lo[c], in[c]);
            hi[c] = std::max(hi[c], in[c]);
        }
    std::array<uint8_t, 6> r{255, 255, 255, 0, 0, 0};
    for (int j = 0; j < 16; ++j) {
        const int c = j % 4;
        if (c == 3) continue; // the unused byte
        r[size_t(c)] = std::min(r[size_t(c)], lo[j]);
        r[size_t(c) + 3] = std::max(r[size_t(c) + 3], hi[j]);
    }
    return r;
}

} // namespace

void filterStretch(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    // First pass: the smallest and largest value of each channel, counting 10 of the bar.
    std::vector<std::array<uint8_t, 6>> perRow(static_cast<size_t>(h));
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y)
            perRow[size_t(y)] = channelRange(run.S.row(y), w);
    }, 0, 10);
    std::array<int, 3> lo{255, 255, 255}, hi{0, 0, 0};
    for (const auto &r : perRow)
        for (size_t c = 0; c < 3; ++c) {
            lo[c] = std::min<int>(lo[c], r[c]);
            hi[c] = std::max<int>(hi[c], r[c + 3]);
        }
    run.FilterStart = 10;
    run.DoEvents();
    std::array<Table, 3> t{};
    for (size_t c = 0; c < 3; ++c)
        for (int v = 0; v < 256; ++v)
            t[c][size_t(v)] = clampByte(
                roundInt(checkedDiv(double(v - lo[c]) * 255.0, double(hi[c] - lo[c]))));
    applyTables(run, t[0], t[1], t[2], 10, 90);
}

namespace {

// One row of saturation: each channel v moved from the pixel's grey mean m = (b+g+r)\3 to
// Round(m + f * (v - m)), clamped, in double precision as the table of every m had it, eight
// pixels at a time in vector code.
TF_VECTOR_LOOP void saturationRow(const uint32_t *__restrict in, uint32_t *__restrict out, int n,
                                  double f)
{
    for (int x = 0; x < n; ++x) {
        const uint32_t p = in[x];
        const int b = int(p & 255), g = int((p >> 8) & 255), r = int((p >> 16) & 255);
        const int m = int((uint32_t(b + g + r) * 43691u) >> 17);
        const auto moved = [&](int v) {
            return uint32_t(std::clamp(int(std::nearbyint(m + f * (v - m))), 0, 255));
        };
        out[x] = (p & 0xFF000000u) | moved(r) << 16 | moved(g) << 8 | moved(b);
    }
}

} // namespace

void filterSaturation(FilterRun &run)
{
    const double f = run.args.argument / 100.0;
    const int w = run.width();
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y)
            saturationRow(reinterpret_cast<const uint32_t *>(run.S.row(y)),
                          reinterpret_cast<uint32_t *>(run.D.row(y)), w, f);
    });
}

// The power depends on the channel value alone: the table holds exactly what the power of
// each pixel would give.
void filterGamma(FilterRun &run)
{
    const double g = run.args.argument / 100.0;
    const double e = checkedDiv(1.0, g);
    applyTable(run, tableOf([e](int v) { return roundInt(255.0 * std::pow(v / 255.0, e)); }));
}

void filterDuotone(FilterRun &run)
{
    const ColorLong k = run.args.argument;
    std::array<Table, 3> t{};
    for (int c = 0; c < 3; ++c)
        t[size_t(c)] = tableOf([&](int v) { return v & channelOf(k, c); });
    applyTables(run, t[0], t[1], t[2]);
}

namespace {

// The luminance Round(0.301 r + 0.586 g + 0.113 b) of a row, clamped to 0..255: the products
// and their sum in double precision in that order, as the formula has them, four or eight
// pixels at a time.
TF_VECTOR_LOOP void luminanceRow(const uint32_t *__restrict in, uint8_t *__restrict out, int n)
{
    for (int x = 0; x < n; ++x) {
        const uint32_t p = in[x];
        const double l = 0.301 * double((p >> 16) & 255) + 0.586 * double((p >> 8) & 255) +
                         0.113 * double(p & 255);
        out[x] = uint8_t(std::clamp(int(std::nearbyint(l)), 0, 255));
    }
}

} // namespace

void filterEqualize(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    // The luminance of every combination would be a table of 16 M entries; the three
    // products are tables of their own and the sum is rounded as the formula rounds it.
    // The luminance of a row is worked out in vector code into a row of its own, then
    // counted into four histograms in turn, so that neighbouring pixels of the same
    // luminance do not wait for each other's count.
    std::vector<std::array<int64_t, 256>> bands(static_cast<size_t>(h));
    run.rows([&](int first, int last) {
        std::vector<uint8_t> lum(static_cast<size_t>(w));
        std::array<std::array<int32_t, 256>, 4> counts{};
        for (int y = first; y < last; ++y) {
            luminanceRow(reinterpret_cast<const uint32_t *>(run.S.row(y)), lum.data(), w);
            for (auto &c : counts)
                c.fill(0);
            int x = 0;
            for (; x + 4 <= w; x += 4)
                for (size_t k = 0; k < 4; ++k)
                    ++counts[k][lum[size_t(x) + k]];
            for (; x < w; ++x)
                ++counts[0][lum[size_t(x)]];
            auto &hist = bands[size_t(y)];
            for (size_t i = 0; i < 256; ++i)
                hist[i] = int64_t(counts[0][i]) + counts[1][i] + counts[2][i] + counts[3][i];
        }
    });
    std::array<int64_t, 256> hist{};
    for (const auto &b : bands)
        for (size_t i = 0; i < 256; ++i)
            hist[i] += b[i];
    const int64_t half = (int64_t(w) * h + 1) / 2;
    int64_t running = 0;
    int m = 0;
    for (; m < 256; ++m) {
        running += hist[size_t(m)];
        if (running > half) break;
    }
    if (m > 255) m = 255;
    else if (hist[size_t(m)] / 2 <= running - half) --m;
    if (m == 1 || m == 255) {
        run.progress(100);
        return;
    }
    const double k1 = 127.0 / (m - 1), k2 = 127.0 / (255 - m);
    applyTable(run, tableOf([&](int v) { return v < m ? roundInt(v * k1) : roundInt((v - m) * k2 + 128); }));
}

void filterReduceColor(FilterRun &run)
{
    const int s = run.args.argument + 1;
    if (s == 0) throw Fault(Fault::DivisionByZero);
    applyTable(run, tableOf([s](int i) { return std::min(255, roundInt(double(i) / s) * s); }));
}

void filterChannelMixer(FilterRun &run)
{
    const FilterArgs &a = run.args;
    // Output channel o (0 red, 1 green, 2 blue) lies in byte 2 - o.
    // Inverted is 255 - v, every bit flipped; cleared is 0, no bit kept.
    int source[3];
    uint8_t flip[3], keep[3];
    for (int o = 0; o < 3; ++o) {
        const size_t byte = size_t(2 - o);
        source[byte] = 2 - std::clamp(a.mixSource[size_t(o)], 0, 2);
        flip[byte] = a.invert[size_t(o)] ? 255 : 0;
        keep[byte] = a.kill[size_t(o)] ? 0 : 255;
    }
    permuteRows(run, source, flip, keep);
}

void filterShiftRGB(FilterRun &run)
{
    const auto &s = run.args.sliders; // red, green, blue offsets
    applyTables(run, tableOf([&](int i) { return i + s[2]; }),
                tableOf([&](int i) { return i + s[1]; }), tableOf([&](int i) { return i + s[0]; }));
}

void filterWebColors(FilterRun &run)
{
    applyTable(run, tableOf([](int v) { return (v + 25) / 51 * 51; }));
}

} // namespace tf
