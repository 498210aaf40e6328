#include "generators/plasma.h"

#include "core/numeric.h"
#include "core/parallel.h"
#include "core/random.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace tf {

namespace {

constexpr int32_t HeightLimit = 32764;

} // namespace

float plasmaCellDraw(uint64_t key, int pass, int col, int row)
{
    uint64_t z = key ^ (uint64_t(uint32_t(pass)) << 56) ^ (uint64_t(uint32_t(row)) << 28) ^
                 uint64_t(uint32_t(col));
    z += 0x9E3779B97F4A7C15ull;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    z ^= z >> 31;
    return float(z >> 40) * (1.0f / 16777216.0f);
}

namespace {

inline float cellDraw(uint64_t key, int pass, int col, int row)
{
    return plasmaCellDraw(key, pass, col, row);
}

// sum / 4 rounded half to even.
inline int32_t meanOfFour(int32_t sum)
{
    int32_t q = sum >> 2; // floor
    const int32_t r = sum & 3;
    if (r > 2 || (r == 2 && (q & 1))) ++q;
    return q;
}

inline int32_t holdHeight(int32_t v) { return std::clamp(v, -HeightLimit, HeightLimit); }

} // namespace

// One pass's grid: a height per cell of `step` pixels, cells past the edge cut. Heights are held
// to -32764..32764, so 16 bits hold them.
struct PlasmaGrid {
    int step = 0;
    int cols = 0;
    int rows = 0;
    std::vector<int16_t> cells;

    void shape(int s, int width, int height)
    {
        step = s;
        cols = (width + s - 1) / s;
        rows = (height + s - 1) / s;
        cells.resize(size_t(cols) * size_t(rows));
    }
};

namespace {

using Grid = PlasmaGrid;

// Where the far corner of the cell starting at `pos` lies: past the edge it is taken from the
// opposite edge (wrapping) or from the cell itself.
inline int farCorner(int pos, int step, int extent, bool wrap)
{
    const int far = pos + step;
    if (far < extent) return far;
    return wrap ? far % extent : pos;
}

int threadsForGrid(const Grid &g, int maxThreads)
{
    return threadsFor(g.rows, g.cols, 1 << 15, maxThreads);
}

void firstPass(Grid &g, uint64_t key, int maxThreads)
{
    const int threads = threadsForGrid(g, maxThreads);
    parallelChunks(
        g.rows, 16, threads,
        [&](int first, int last) {
            for (int j = first; j < last; ++j) {
                int16_t *row = g.cells.data() + size_t(j) * size_t(g.cols);
                for (int i = 0; i < g.cols; ++i) {
                    const float v = cellDraw(key, 0, i, j) * float(2 * 511) - 511.0f;
                    row[i] = int16_t(std::nearbyint(v));
                }
            }
        },
        [](int) {});
}

// x rounded half to even, without a call: adding and taking away 1.5 * 2^52 leaves the
// nearest whole number in the default rounding mode (|x| far below 2^51 here).
inline double roundEven(double x)
{
    constexpr double Magic = 6755399441055744.0;
    return (x + Magic) - Magic;
}

// A further pass: every cell from the corners the pass before (`prev`) left, plus the
// displacement, into `cells` (`cols` cells a row, rows `stride` cells apart). Reads only
// `prev`, so the cells are independent of each other. With `range` it also finds the lowest
// and highest height.
template <typename Cell>
void nextPass(const Grid &prev, int S, int cols, int rows, Cell *cells, size_t stride, int pass,
              const PlasmaSettings &s, int width, int height, uint64_t key, int maxThreads,
              std::pair<int32_t, int32_t> *range)
{
    const int P = prev.step;
    std::vector<int32_t> colNear(static_cast<size_t>(cols)), colFar(static_cast<size_t>(cols));
    for (int i = 0; i < cols; ++i) {
        const int x = i * S;
        colNear[size_t(i)] = x / P;
        colFar[size_t(i)] = farCorner(x, S, width, s.wrapH) / P;
    }
    const int grain = s.grain;
    const double grainSpan = 2.0 * grain;
    std::mutex rangeLock;
    int32_t lo = 10000, hi = -10000;
    const int threads = threadsFor(rows, cols, 1 << 15, maxThreads);
    parallelChunks(
        rows, 8, threads,
        [&](int first, int last) {
            int32_t localLo = 10000, localHi = -10000;
            for (int j = first; j < last; ++j) {
                const int y = j * S;
                const int16_t *nearRow = prev.cells.data() + size_t(y / P) * size_t(prev.cols);
                const int16_t *farRow =
                    prev.cells.data() +
                    size_t(farCorner(y, S, height, s.wrapV) / P) * size_t(prev.cols);
                Cell *out = cells + size_t(j) * stride;
                int32_t rowLo = 10000, rowHi = -10000;
                for (int i = 0; i < cols; ++i) {
                    const int32_t a = colNear[size_t(i)], b = colFar[size_t(i)];
                    int32_t v = meanOfFour(int32_t(nearRow[a]) + nearRow[b] + farRow[a] + farRow[b]);
                    if (grain > 0) {
                        const double u = cellDraw(key, pass, i, j);
                        v = holdHeight(v + int32_t(roundEven((u * grainSpan - grain) * S)));
                    }
                    out[i] = Cell(v);
                    rowLo = std::min(rowLo, v);
                    rowHi = std::max(rowHi, v);
                }
                localLo = std::min(localLo, rowLo);
                localHi = std::max(localHi, rowHi);
            }
            if (range) {
                const std::lock_guard<std::mutex> lock(rangeLock);
                lo = std::min(lo, localLo);
                hi = std::max(hi, localHi);
            }
        },
        [](int) {});
    if (range) *range = {lo, hi};
}

} // namespace

int clampPlasmaStep(int step) { return std::clamp(step, 4, 128); }

uint64_t plasmaKey(Random &random)
{
    const auto a = uint64_t(double(random.Rnd()) * 16777216.0);
    const auto b = uint64_t(double(random.Rnd()) * 16777216.0);
    return (a << 24 | b) * 0xD6E8FEB86659FD93ull;
}

PlasmaCoarse::PlasmaCoarse() = default;
PlasmaCoarse::PlasmaCoarse(PlasmaCoarse &&) noexcept = default;
PlasmaCoarse &PlasmaCoarse::operator=(PlasmaCoarse &&) noexcept = default;
PlasmaCoarse::~PlasmaCoarse() = default;

PlasmaCoarse Plasma_Coarse(int width, int height, const PlasmaSettings &settings, uint64_t key,
                           int maxThreads)
{
    if (width < 1 || height < 1) throw std::invalid_argument("plasma size");
    PlasmaCoarse c;
    c.width = width;
    c.height = height;
    c.settings = settings;
    c.key = key;
    c.grid = std::make_unique<Grid>();
    Grid &prev = *c.grid;
    Grid cur;
    int step = clampPlasmaStep(settings.step);
    prev.shape(step, width, height);
    firstPass(prev, key, maxThreads);
    // Down to cells of 2 (or 3): the first cell size is at least 4, so one pass is left.
    int pass = 1;
    for (; step / 2 > 1; ++pass) {
        step /= 2;
        cur.shape(step, width, height);
        nextPass(prev, step, cur.cols, cur.rows, cur.cells.data(), size_t(cur.cols), pass,
                 settings, width, height, key, maxThreads, nullptr);
        std::swap(prev, cur);
    }
    c.lastPass = pass;
    return c;
}

namespace {

// The last pass, of single pixels, into `cells` (rows `stride` cells apart); the lowest and
// highest height.
template <typename Cell>
std::pair<int32_t, int32_t> lastPass(const PlasmaCoarse &c, const Grid &prev, Cell *cells,
                                     size_t stride, int maxThreads)
{
    std::pair<int32_t, int32_t> range{10000, -10000};
    nextPass(prev, 1, c.width, c.height, cells, stride, c.lastPass, c.settings, c.width, c.height,
             c.key, maxThreads, &range);
    return range;
}

// index = rounded(511 / range * (height - min)), for each height from the lowest to the
// highest, made with exactly that formula.
template <typename Entry, typename Of>
std::vector<Entry> heightTable(std::pair<int32_t, int32_t> range, Of of)
{
    const auto [lo, hi] = range;
    const double factor = PlasmaMaxIndex / double(std::max(1, hi - lo));
    std::vector<Entry> table(size_t(std::max(0, hi - lo)) + 1);
    for (size_t d = 0; d < table.size(); ++d)
        table[d] = of(uint16_t(
            std::clamp(std::nearbyint(factor * double(d)), 0.0, double(PlasmaMaxIndex))));
    return table;
}

} // namespace

PlasmaField Plasma_Fill(int width, int height, const PlasmaSettings &settings, uint64_t key,
                        int maxThreads)
{
    PlasmaCoarse coarse = Plasma_Coarse(width, height, settings, key, maxThreads);
    PlasmaField field;
    field.width = width;
    field.height = height;
    field.index.resize(size_t(width) * size_t(height));
    // The last pass writes its heights (-32764..32764) into the index field, which then takes
    // the indices in place.
    auto *heights = reinterpret_cast<int16_t *>(field.index.data());
    const auto range = lastPass(coarse, *coarse.grid, heights, size_t(width), maxThreads);
    coarse = PlasmaCoarse{};
    const int32_t lo = range.first;
    const auto table = heightTable<uint16_t>(range, [](uint16_t i) { return i; });
    uint16_t *index = field.index.data();
    const int threads = threadsFor(height, width, 1 << 15, maxThreads);
    parallelChunks(
        height, 16, threads,
        [&](int first, int last) {
            const size_t begin = size_t(first) * size_t(width), end = size_t(last) * size_t(width);
            for (size_t p = begin; p < end; ++p)
                index[p] = table[size_t(int32_t(heights[p]) - lo)];
        },
        [](int) {});
    return field;
}

void Plasma_FillColours(PlasmaCoarse coarse, const Palette512 &palette, uint32_t *out,
                        std::size_t stride, int maxThreads)
{
    // The heights go into the pixels as 32-bit numbers; the grid of the pass before is then
    // let go, and each pixel takes its colour in place.
    auto *heights = reinterpret_cast<int32_t *>(out);
    const auto range = lastPass(coarse, *coarse.grid, heights, stride, maxThreads);
    const int width = coarse.width, height = coarse.height;
    coarse = PlasmaCoarse{};
    const int32_t lo = range.first;
    const auto table = heightTable<uint32_t>(range, [&](uint16_t i) { return 0xFF000000u | palette[i]; });
    const int threads = threadsFor(height, width, 1 << 15, maxThreads);
    parallelChunks(
        height, 16, threads,
        [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                int32_t *row = heights + size_t(y) * stride;
                uint32_t *pixels = out + size_t(y) * stride;
                for (int x = 0; x < width; ++x)
                    pixels[x] = table[size_t(row[x] - lo)];
            }
        },
        [](int) {});
}

PlasmaField Plasma_Fill(int width, int height, const PlasmaSettings &settings, Random &random,
                        int maxThreads)
{
    const uint64_t key = plasmaKey(random);
    return Plasma_Fill(width, height, settings, key, maxThreads);
}

void Plasma_Colours(const PlasmaField &field, const Palette512 &palette, uint32_t *out,
                    std::size_t stride, int maxThreads)
{
    const int threads = threadsFor(field.height, field.width, 1 << 15, maxThreads);
    parallelChunks(
        field.height, 16, threads,
        [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                const uint16_t *in = field.index.data() + size_t(y) * size_t(field.width);
                uint32_t *row = out + size_t(y) * stride;
                for (int x = 0; x < field.width; ++x)
                    row[x] = 0xFF000000u | palette[in[x]];
            }
        },
        [](int) {});
}

std::vector<uint32_t> Plasma_Table(int width, int height, const PlasmaSettings &settings,
                                   const Palette512 &palette, Random &random)
{
    const PlasmaField field = Plasma_Fill(width, height, settings, random);
    std::vector<uint32_t> table(field.index.size());
    for (size_t p = 0; p < table.size(); ++p)
        table[p] = palette[field.index[p]] & 0xFFFFFFu;
    return table;
}

} // namespace tf
