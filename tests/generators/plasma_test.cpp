// The plasma field and its palette.
#include "core/random.h"
#include "generators/plasma.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

using namespace tf;

namespace {

// The fill as plain midpoint displacement over a whole picture of heights, every cell written
// pixel by pixel, the corners read from a copy of the pass before: what the grids must equal.
std::vector<uint16_t> referenceFill(int w, int h, PlasmaSettings s, uint64_t key)
{
    std::vector<int> heights(size_t(w) * size_t(h));
    auto cell = [&](int x, int y, int step, int value) {
        for (int yy = y; yy < std::min(h, y + step); ++yy)
            for (int xx = x; xx < std::min(w, x + step); ++xx)
                heights[size_t(yy) * size_t(w) + size_t(xx)] = value;
    };
    int step = std::clamp(s.step, 4, 128);
    for (int y = 0, j = 0; y < h; y += step, ++j)
        for (int x = 0, i = 0; x < w; x += step, ++i)
            cell(x, y, step,
                 int(std::nearbyint(plasmaCellDraw(key, 0, i, j) * float(1022) - 511.0f)));
    for (int pass = 1; step > 1; ++pass) {
        step /= 2;
        const std::vector<int> before = heights;
        auto at = [&](int x, int y) { return before[size_t(y) * size_t(w) + size_t(x)]; };
        for (int y = 0, j = 0; y < h; y += step, ++j) {
            const int fy = y + step < h ? y + step : (s.wrapV ? (y + step) % h : y);
            for (int x = 0, i = 0; x < w; x += step, ++i) {
                const int fx = x + step < w ? x + step : (s.wrapH ? (x + step) % w : x);
                const double mean = (at(x, y) + at(fx, y) + at(x, fy) + at(fx, fy)) / 4.0;
                int d = 0;
                if (s.grain > 0) {
                    const double u = plasmaCellDraw(key, pass, i, j);
                    d = int(std::nearbyint((u * 2.0 * s.grain - s.grain) * step));
                }
                cell(x, y, step, std::clamp(int(std::nearbyint(mean)) + d, -32764, 32764));
            }
        }
    }
    int lo = 10000, hi = -10000;
    for (int v : heights) {
        lo = std::min(lo, v);
        hi = std::max(hi, v);
    }
    const double f = 511.0 / std::max(1, hi - lo);
    std::vector<uint16_t> out(heights.size());
    for (size_t p = 0; p < out.size(); ++p)
        out[p] = uint16_t(std::clamp(std::nearbyint(f * (heights[p] - lo)), 0.0, 511.0));
    return out;
}

bool sameField(const PlasmaField &a, const PlasmaField &b)
{
    return a.width == b.width && a.height == b.height && a.index == b.index;
}

} // namespace

TEST(PlasmaFill, EqualsPlainMidpointDisplacementAtSizesNoStepDivides)
{
    struct Case {
        int w, h;
        PlasmaSettings s;
    };
    const Case cases[] = {
        {101, 67, {0, 32, false, false}},
        {101, 67, {3, 32, false, false}},
        {77, 45, {5, 16, true, false}},
        {45, 77, {2, 8, false, true}},
        {130, 97, {1, 100, true, true}}, // 100, 50, 25, 12, 6, 3, 1: cells that do not nest
        {5, 3, {4, 4, true, true}},      // smaller than one cell, wrapped
    };
    uint64_t key = 12345;
    for (const Case &c : cases) {
        const PlasmaField field = Plasma_Fill(c.w, c.h, c.s, key);
        ASSERT_EQ(field.width, c.w);
        ASSERT_EQ(field.height, c.h);
        EXPECT_EQ(field.index, referenceFill(c.w, c.h, c.s, key))
            << c.w << "x" << c.h << " step " << c.s.step << " grain " << c.s.grain;
        key = key * 31 + 7;
    }
}

TEST(PlasmaFill, StepIsUsedWithin4To128)
{
    EXPECT_EQ(clampPlasmaStep(-3), 4);
    EXPECT_EQ(clampPlasmaStep(3), 4);
    EXPECT_EQ(clampPlasmaStep(64), 64);
    EXPECT_EQ(clampPlasmaStep(129), 128);
    const uint64_t key = 99;
    auto fill = [&](int step) { return Plasma_Fill(300, 200, {2, step, false, false}, key); };
    EXPECT_TRUE(sameField(fill(0), fill(4)));
    EXPECT_TRUE(sameField(fill(1), fill(4)));
    EXPECT_TRUE(sameField(fill(5000), fill(128)));
    EXPECT_FALSE(sameField(fill(4), fill(8)));
}

TEST(PlasmaFill, GrainZeroIsFlatApartFromTheFirstCorners)
{
    // Within one first cell every corner is the cell itself: one height, index 0 everywhere.
    const PlasmaField one = Plasma_Fill(60, 40, {0, 64, false, false}, 7);
    EXPECT_TRUE(std::all_of(one.index.begin(), one.index.end(), [](uint16_t i) { return i == 0; }));

    // Over many cells the heights only blend the first random corners: neighbours differ by
    // little, where grain adds pixel noise.
    auto roughest = [](const PlasmaField &f) {
        int worst = 0;
        for (int y = 0; y < f.height; ++y)
            for (int x = 1; x < f.width; ++x)
                worst = std::max(worst, std::abs(f.at(x, y) - f.at(x - 1, y)));
        return worst;
    };
    const PlasmaField smooth = Plasma_Fill(256, 256, {0, 64, false, false}, 7);
    const PlasmaField grainy = Plasma_Fill(256, 256, {40, 64, false, false}, 7);
    EXPECT_LE(roughest(smooth), 12);
    EXPECT_GT(roughest(grainy), 3 * roughest(smooth)) << roughest(smooth);
    // The whole palette is used either way.
    EXPECT_EQ(*std::max_element(smooth.index.begin(), smooth.index.end()), 511);
    EXPECT_EQ(*std::min_element(smooth.index.begin(), smooth.index.end()), 0);
}

TEST(PlasmaFill, WrappedFieldMeetsItselfAtTheEdges)
{
    // The right column continues into the left one as smoothly as any two neighbours.
    const PlasmaField f = Plasma_Fill(256, 128, {0, 32, true, true}, 5);
    int seam = 0, inside = 0;
    for (int y = 0; y < f.height; ++y) {
        seam = std::max(seam, std::abs(f.at(0, y) - f.at(f.width - 1, y)));
        inside = std::max(inside, std::abs(f.at(100, y) - f.at(99, y)));
    }
    EXPECT_LE(seam, std::max(inside, 1) * 2);
}

TEST(PlasmaFill, SameSeedSameFieldOnAnyThreadCount)
{
    Random a, b;
    a.Randomize(4711);
    b.Randomize(4711);
    const PlasmaSettings s{6, 32, true, false};
    const PlasmaField one = Plasma_Fill(777, 523, s, a, 1);
    const PlasmaField two = Plasma_Fill(777, 523, s, b, 2);
    EXPECT_TRUE(sameField(one, two));
    EXPECT_TRUE(sameField(one, Plasma_Fill(777, 523, s, plasmaKey(b = [] {
        Random r;
        r.Randomize(4711);
        return r;
    }()), 3)));
    // The key takes two draws of the generator, whatever the size.
    Random c;
    c.Randomize(4711);
    c.Rnd();
    c.Rnd();
    EXPECT_EQ(a.state(), c.state());
    // Another key, another field.
    EXPECT_FALSE(sameField(one, Plasma_Fill(777, 523, s, plasmaKey(c), 2)));
}

TEST(PlasmaFill, ColoursAndTable)
{
    const Palette512 p = Plasma_Palette(RGB(0, 0, 0), RGB(255, 255, 255), 0);
    const PlasmaField f = Plasma_Fill(33, 21, {1, 8, false, false}, 3);
    std::vector<uint32_t> pixels(40 * 21, 0u);
    Plasma_Colours(f, p, pixels.data(), 40);
    EXPECT_EQ(pixels[size_t(5 * 40 + 7)], 0xFF000000u | p[f.at(7, 5)]);
    EXPECT_EQ(pixels[size_t(5 * 40 + 35)], 0u); // beyond the row's width: left alone

    Random r1, r2;
    r1.Randomize(1);
    r2.Randomize(1);
    const std::vector<uint32_t> t1 = Plasma_Table(40, 12, {64, 50, false, false}, p, r1);
    const std::vector<uint32_t> t2 = Plasma_Table(40, 12, {64, 50, false, false}, p, r2);
    ASSERT_EQ(t1.size(), 480u);
    EXPECT_EQ(t1, t2);
    EXPECT_EQ(r1.state(), r2.state());
    EXPECT_TRUE(std::all_of(t1.begin(), t1.end(), [](uint32_t c) { return c <= 0xFFFFFFu; }));
}

TEST(PlasmaFill, ColouredInPlaceTheSameAsTheFieldThroughItsColours)
{
    // The last pass straight into 32-bit rows (wider than the picture) and coloured there gives
    // the pixels of the field's colours, on one thread and on more, and leaves the rest alone.
    const Palette512 p = Plasma_Palette(RGB(10, 200, 30), RGB(250, 20, 140), 1);
    struct Case { int w, h; PlasmaSettings s; uint64_t key; };
    for (const Case &c : {Case{300, 200, {0, 32, false, false}, 1},
                          Case{257, 131, {5, 100, true, false}, 2},
                          Case{64, 97, {40, 4, true, true}, 3},
                          Case{1, 1, {2, 7, false, true}, 4}}) {
        const size_t stride = size_t(c.w) + 3;
        std::vector<uint32_t> expected(stride * size_t(c.h), 0x12345678u);
        Plasma_Colours(Plasma_Fill(c.w, c.h, c.s, c.key), p, expected.data(), stride);
        for (int threads : {1, 2}) {
            std::vector<uint32_t> pixels(stride * size_t(c.h), 0x12345678u);
            Plasma_FillColours(Plasma_Coarse(c.w, c.h, c.s, c.key, threads), p, pixels.data(),
                               stride, threads);
            EXPECT_EQ(pixels, expected) << c.w << " x " << c.h << " on " << threads;
        }
    }
    EXPECT_THROW(Plasma_Coarse(0, 5, {}, 1), std::invalid_argument);
}

TEST(PlasmaPalette, FourForms)
{
    const ColorLong a = RGB(255, 0, 0), b = RGB(0, 0, 255), c = RGB(0, 255, 0), d = RGB(9, 9, 9);
    const uint32_t A = 0xFF0000, B = 0x0000FF, C = 0x00FF00, D = 0x090909;
    const Palette512 ramp = Plasma_Palette(a, b, 0);
    EXPECT_EQ(ramp[0], A);
    EXPECT_EQ(ramp[511], B);
    EXPECT_EQ(ramp[255], 0x80007Fu); // red falls by 255/511 an entry, blue rises

    const Palette512 mirror = Plasma_Palette(a, b, 1);
    EXPECT_EQ(mirror[0], A);
    EXPECT_EQ(mirror[255], B);
    EXPECT_EQ(mirror[256], B);
    EXPECT_EQ(mirror[511], A);
    for (int i = 0; i < 256; ++i)
        ASSERT_EQ(mirror[size_t(i)], mirror[size_t(511 - i)]) << i;

    const Palette512 twice = Plasma_Palette(a, b, 2);
    EXPECT_EQ(twice[127], B);
    EXPECT_EQ(twice[255], A);
    EXPECT_EQ(twice[256], A);
    EXPECT_EQ(twice[383], B);
    EXPECT_EQ(twice[511], A);

    const Palette512 four = Plasma_Palette(a, b, 3, c, d);
    EXPECT_EQ(four[0], A);
    EXPECT_EQ(four[128], B);
    EXPECT_EQ(four[256], C);
    EXPECT_EQ(four[384], D);
    EXPECT_EQ(four[511], A); // back at the first
    for (int i = 1; i < 512; ++i) {
        const uint32_t p = four[size_t(i - 1)], q = four[size_t(i)];
        for (int shift : {0, 8, 16})
            ASSERT_LE(std::abs(int(p >> shift & 255) - int(q >> shift & 255)), 2) << i;
    }

    // An unknown form is the plain ramp.
    EXPECT_EQ(Plasma_Palette(a, b, 7), ramp);
    EXPECT_EQ(plasmaToColorLong(colorLongToPlasma(RGB(1, 2, 3))), RGB(1, 2, 3));
}
