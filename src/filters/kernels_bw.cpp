// The six conversions to black and white. Every pixel becomes pure black or pure white in all
// three channels. The error diffusions run row by row, since each row takes the error of the
// one before.
#include "filters/kernels.h"

#include "filters/filterrun.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

namespace tf {

namespace {

inline void setBW(uint8_t *p, bool white)
{
    const uint8_t v = white ? 255 : 0;
    p[0] = p[1] = p[2] = v;
}

// The average grey of a pixel: FilterLUT(b+g+r) = (b+g+r)\3.
inline int grey(const uint8_t *p)
{
    return (p[0] + p[1] + p[2]) / 3;
}
// The same for a whole pixel, through FilterLUT: index b+g+r gives (b+g+r)\3.
constexpr std::array<uint8_t, 766> FilterLUT = [] {
    std::array<uint8_t, 766> t{};
    for (size_t i = 0; i < t.size(); ++i)
        t[i] = uint8_t(i / 3);
    return t;
}();
inline int greyOf(uint32_t p)
{
    return FilterLUT[(p & 255) + ((p >> 8) & 255) + ((p >> 16) & 255)];
}

// The mean of the average greys over the picture, as an integer quotient.
int meanGrey(FilterRun &run, int start, int span)
{
    const int w = run.width(), h = run.height();
    std::vector<int64_t> perRow(static_cast<size_t>(h));
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const auto *in = reinterpret_cast<const uint32_t *>(run.S.row(y));
            int64_t s = 0;
            for (int x = 0; x < width; ++x)
                s += greyOf(in[x]);
            perRow[size_t(y)] = s;
        }
    }, start, span);
    int64_t sum = 0;
    for (int64_t s : perRow)
        sum += s;
    return int(sum / (int64_t(w) * h));
}

// One neighbour of an error-diffusion matrix: offset in columns and rows, and the weight.
struct Share {
    int dx, dy, weight;
};

// The published matrices: the weights right of the pixel and in the rows below.
constexpr Share FloydSteinberg[] = {{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}};
constexpr Share Burkes[] = {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8},
                            {1, 1, 4}, {2, 1, 2}};
constexpr Share Stucki[] = {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8},
                            {1, 1, 4}, {2, 1, 2}, {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4},
                            {1, 2, 2}, {2, 2, 1}};

// The grey of each pixel of a piece of a row plus the error its cell has gathered: the part of
// an error diffusion that does not wait for the pixel before, as vector code. (s * 43691) >> 17
// equals s\3, FilterLUT(s), for every sum up to 765.
TF_VECTOR_CLONES void greyPlusError(const uint32_t *in, const int *error, int *out, int n)
{
    for (int x = 0; x < n; ++x) {
        const uint32_t p = in[x];
        const uint32_t sum = (p & 255) + ((p >> 8) & 255) + ((p >> 16) & 255);
        out[x] = int((sum * 43691u) >> 17) + error[x];
    }
}

// The matrix is a template argument, so the loop over its shares unrolls into fixed code.
template <const auto &matrix, int divisor> void diffuseError(FilterRun &run)
{
    constexpr size_t N = std::size(matrix);
    const int w = run.width();
    // The share of every error value for each weight, once: no division in the inner loop.
    // The division truncates towards zero.
    std::array<std::array<int, 511>, N> shares{};
    for (size_t k = 0; k < N; ++k)
        for (int e = -255; e <= 255; ++e)
            shares[k][size_t(e + 255)] = e * matrix[k].weight / divisor;
    run.FilterStart = 2;
    run.progress(2);
    const int m = meanGrey(run, 2, 8);
    run.FilterStart = 10;
    // A cell holds its grey (0 to 255) plus the shares it receives, whose weights add up to
    // the divisor, so before the clamp it lies within -255 .. 510. For each such value the
    // tables say whether the pixel turns white and what each share of its error is: the walk
    // along a row, where each pixel waits for the one before, is one addition and a look-up.
    constexpr int Lowest = -255, Span = 510 - Lowest + 1;
    std::array<uint32_t, Span> colourOf{}; // the pixel's bits: white or black
    std::array<std::array<int16_t, N>, Span> shareOf{};
    for (int raw = Lowest; raw < Lowest + Span; ++raw) {
        const int v = std::clamp(raw, 0, 255);
        const bool white = v >= m;
        const size_t e = size_t(v - (white ? 255 : 0) + 255);
        colourOf[size_t(raw - Lowest)] = white ? 0xFFFFFFu : 0u;
        for (size_t k = 0; k < N; ++k)
            shareOf[size_t(raw - Lowest)][k] = int16_t(shares[k][e]);
    }
    // Each row gathers the error it receives in a row of its own, with a margin of two on
    // each side, in a ring of such rows. The shares to the right in a row are carried in
    // `right1` and `right2`, and those to the rows below gather in windows over the cells
    // x-2 .. x+2, each cell written once it is complete: the sums are the same, and the walk
    // does not wait on memory.
    //
    // Rows follow each other over the threads as a wavefront: a cell of row y is complete
    // when row y-1 has passed two pixels beyond it, so row y keeps a distance of two columns
    // behind. At most `threads` rows are under way and rows finish in order, so a ring of
    // threads + rowsBelow + 1 rows is never reused while read; a row clears the farthest row
    // it adds to before it starts, which no row before it adds to.
    constexpr int margin = 2;
    constexpr int rowsBelow = matrix[N - 1].dy;
    const int ringSize = run.rowThreads() + rowsBelow + 1;
    const size_t stride = size_t(w + 2 * margin);
    std::vector<int> ring(size_t(ringSize) * stride, 0);
    const auto errorRow = [&](int y) { return ring.data() + size_t(y % ringSize) * stride + margin; };
    struct RowState {
        int right1 = 0, right2 = 0;
        int window[2][5] = {};
    };
    std::vector<RowState> states(static_cast<size_t>(ringSize));
    run.inPlaceRows([&](int y, int x0, int x1) {
        RowState &st = states[size_t(y % ringSize)];
        if (x0 == 0) {
            st = RowState{};
            std::fill_n(errorRow(y + rowsBelow) - margin, stride, 0);
        }
        const auto *in = reinterpret_cast<const uint32_t *>(run.S.row(y));
        auto *out = reinterpret_cast<uint32_t *>(run.D.row(y));
        const int *here = errorRow(y);
        int *below[2] = {errorRow(y + 1), errorRow(y + rowsBelow)};
        int right1 = st.right1, right2 = st.right2;
        int window[2][5];
        std::copy(&st.window[0][0], &st.window[0][0] + 10, &window[0][0]);
        int base[FilterRun::InPlaceChunk];
        greyPlusError(in + x0, here + x0, base, x1 - x0);
        for (int x = x0; x < x1; ++x) {
            const size_t i = size_t(base[x - x0] + right1 - Lowest);
            out[x] = (out[x] & 0xFF000000u) | colourOf[i]; // no branch: the outcome is not foreseeable
            const auto &share = shareOf[i];
            right1 = right2;
            right2 = 0;
            for (size_t k = 0; k < N; ++k) {
                const Share &sh = matrix[k];
                if (sh.dy == 0) (sh.dx == 1 ? right1 : right2) += share[k];
                else window[sh.dy - 1][sh.dx + 2] += share[k];
            }
            for (int r = 0; r < rowsBelow; ++r) {
                below[r][x - 2] += window[r][0];
                for (int c = 0; c < 4; ++c)
                    window[r][c] = window[r][c + 1];
                window[r][4] = 0;
            }
        }
        if (x1 == w) {
            // The last two cells of the picture; the rest of the window lies in the margin.
            for (int r = 0; r < rowsBelow; ++r)
                for (int c = 0; c < 2; ++c)
                    below[r][w - 2 + c] += window[r][c];
        }
        st.right1 = right1;
        st.right2 = right2;
        std::copy(&window[0][0], &window[0][0] + 10, &st.window[0][0]);
    }, 2, 10, 90);
}

} // namespace

namespace {

// One row of black and white by value: white where any channel reaches its part of the colour,
// without a branch, eight pixels at a time in vector code; the unused byte is the picture's
// (the destination starts as its copy).
TF_VECTOR_LOOP void bwValueRow(const uint32_t *__restrict in, uint32_t *__restrict out, int n,
                               int kr, int kg, int kb)
{
    for (int x = 0; x < n; ++x) {
        const uint32_t p = in[x];
        const bool white = (int((p >> 16) & 255) >= kr) | (int((p >> 8) & 255) >= kg) |
                           (int(p & 255) >= kb);
        out[x] = (p & 0xFF000000u) | (white ? 0xFFFFFFu : 0u);
    }
}

} // namespace

void filterBWValue(FilterRun &run)
{
    const ColorLong k = run.args.argument;
    const int kr = RedOf(k), kg = GreenOf(k), kb = BlueOf(k);
    const int w = run.width();
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y)
            bwValueRow(reinterpret_cast<const uint32_t *>(run.S.row(y)),
                       reinterpret_cast<uint32_t *>(run.D.row(y)), w, kr, kg, kb);
    });
}

// Diffusion: the border pixels are thresholded by their own grey, the inner ones by the mean
// of the centre (weighted 8) and its eight neighbours (weighted 1 each), which lifts thin
// lines over the threshold.
void filterBWDiffusion(FilterRun &run)
{
    const int w = run.width(), h = run.height();
    const int m = meanGrey(run, 0, 10);
    run.FilterStart = 10;
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            uint8_t *out = run.D.row(y);
            for (int x = 0; x < width; ++x) {
                int g = grey(in + x * 4);
                if (x >= 1 && y >= 1 && x < width - 1 && y < h - 1) {
                    const uint8_t *up = run.S.row(y - 1), *dn = run.S.row(y + 1);
                    int n = 0;
                    for (int dx = -1; dx <= 1; ++dx) {
                        n += grey(up + (x + dx) * 4) + grey(dn + (x + dx) * 4);
                        if (dx != 0) n += grey(in + (x + dx) * 4);
                    }
                    g = (n + 8 * g) / 16;
                }
                setBW(out + x * 4, g >= m);
            }
        }
    }, 10, 90);
}

void filterBWRaster(FilterRun &run)
{
    static constexpr int M[4][4] = {{1, 13, 4, 16}, {9, 5, 12, 8}, {3, 15, 2, 14}, {11, 7, 10, 6}};
    int threshold[4][4];
    for (int a = 0; a < 4; ++a)
        for (int b = 0; b < 4; ++b)
            threshold[a][b] = M[a][b] * 255 / 16 + 1;
    const int w = run.width();
    run.rows([&](int first, int last) {
        const int width = w;
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            uint8_t *out = run.D.row(y);
            const int *t = threshold[y % 4];
            for (int x = 0; x < width; ++x)
                setBW(out + x * 4, grey(in + x * 4) >= t[x % 4]);
        }
    });
}

void filterFloydSteinberg(FilterRun &run)
{
    diffuseError<FloydSteinberg, 16>(run);
}

void filterBurke(FilterRun &run)
{
    diffuseError<Burkes, 32>(run);
}

void filterStucki(FilterRun &run)
{
    diffuseError<Stucki, 42>(run);
}

} // namespace tf
