// The subdivision engine on its own: the part tables of the three modes, the cell tables, the
// frame count, the MinRatio barrier, and over many seeds frames that tile the rectangle.
#include "core/prompter.h"
#include "generators/mondrianlayout.h"
#include "paint/mondriantables.h"
#include "paint/session.h"

#include <gtest/gtest.h>

#include <numeric>
#include <set>

using namespace tf;

namespace {

struct MondrianLayoutTest : ::testing::Test {
    Session s;
    ScriptedPrompter prompter;

    void SetUp() override
    {
        s.setPrompter(&prompter);
        s.seed(7);
    }
    MondrianTables &t() { return s.mondrian(); }
    void rectangle(int w, int h, int16_t cols, int16_t rows)
    {
        t().MondrianW = w;
        t().MondrianH = h;
        t().MondrianHSplits = cols;
        t().MondrianVSplits = rows;
    }
    std::vector<Single> parts(int16_t count, int32_t total, int32_t mode, Single unit = 1.0f,
                              int32_t seed = 0, int32_t *outCount = nullptr)
    {
        int32_t out = -1;
        LadeArr_Asym_Mondrian(s, count, total, out, mode, unit, seed);
        if (outCount)
            *outCount = out;
        return t().ArrAsym;
    }
    // Every pixel of the rectangle is covered by exactly one frame (frames clipped to it).
    ::testing::AssertionResult tiles()
    {
        const int w = t().MondrianW, h = t().MondrianH;
        std::vector<uint8_t> cover(size_t(w) * size_t(h), 0);
        for (const MondrianFrame &f : mondrianFrames(t()))
            for (int y = std::max(0, f.top); y < std::min(h, f.bottom); ++y)
                for (int x = std::max(0, f.left); x < std::min(w, f.right); ++x)
                    if (++cover[size_t(y) * size_t(w) + size_t(x)] > 1)
                        return ::testing::AssertionFailure()
                               << "pixel " << x << "," << y << " lies in two frames";
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (cover[size_t(y) * size_t(w) + size_t(x)] == 0)
                    return ::testing::AssertionFailure()
                           << "pixel " << x << "," << y << " lies in no frame";
        return ::testing::AssertionSuccess();
    }
};

TEST_F(MondrianLayoutTest, OnePartIsTheWholeTotalInEveryMode)
{
    for (int32_t mode : {0, 1, 2}) {
        int32_t out = 0;
        const auto p = parts(1, 713, mode, 8.0f, 0, &out);
        ASSERT_EQ(p.size(), 2u) << mode;
        EXPECT_EQ(p[1], 713.0f) << mode;
        EXPECT_EQ(out, 1) << mode;
    }
    // One asymmetric column: its right edge is the rectangle's.
    for (int32_t mode : {0, 1}) {
        rectangle(500, 300, 1, 3);
        MondrianSplitArgs a;
        a.SymH = 0;
        a.Mode = mode;
        CreateArr_Mondrian_Splits(s, a);
        EXPECT_EQ(t().ArrCellH(0, 0, 0), 0);
        EXPECT_EQ(t().ArrCellH(1, 0, 0), 500);
        EXPECT_EQ(t().ArrCellH(1, 0, 2), 500);
    }
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(MondrianLayoutTest, PartsOfModeOneAddUpExactlyAndModeZeroLeavesTheRestLast)
{
    for (int seed = 1; seed <= 200; ++seed) {
        s.seed(uint32_t(seed));
        const int16_t count = int16_t(2 + seed % 23);
        const int32_t total = 37 + seed * 61;
        const auto p = parts(count, total, 1);
        double sum = 0;
        for (int k = 1; k <= count; ++k) {
            EXPECT_EQ(p[size_t(k)], std::round(p[size_t(k)])) << "whole pixels";
            sum += p[size_t(k)];
        }
        EXPECT_EQ(sum, double(total)) << "seed " << seed;

        const auto q = parts(count, total, 0);
        double rest = total;
        for (int k = 1; k < count; ++k) {
            EXPECT_GT(q[size_t(k)], 0.0f);
            EXPECT_LT(q[size_t(k)], rest); // never more than what is left
            rest -= q[size_t(k)];
        }
        EXPECT_NEAR(q[size_t(count)], rest, 0.01 * total);
    }
}

TEST_F(MondrianLayoutTest, BoogiePartsAreWholeUnitsOfAtLeastTwo)
{
    int32_t out = 0;
    const auto p = parts(5, 400, 2, 8.0f, 0, &out);
    ASSERT_GE(out, 1);
    for (int k = 1; k <= out; ++k) {
        EXPECT_EQ(std::fmod(p[size_t(k)], 8.0f), 0.0f);
        EXPECT_GE(p[size_t(k)], 16.0f);
    }
}

TEST_F(MondrianLayoutTest, ASeedGivesTheSameSeriesWhateverCameBefore)
{
    const auto first = parts(6, 600, 0, 1.0f, 4711);
    s.Rnd();
    s.Rnd();
    const auto again = parts(6, 600, 0, 1.0f, 4711);
    EXPECT_EQ(first, again);
    const auto other = parts(6, 600, 0, 1.0f, 4712);
    EXPECT_NE(first, other);
}

TEST_F(MondrianLayoutTest, WithoutSubdivisionTheFramesAreTheCells)
{
    rectangle(712, 500, 5, 3);
    MondrianSplitArgs a;
    a.SymH = 1;
    a.SymV = 0;
    a.Pen = 2;
    const MondrianExtent ext = CreateArr_Mondrian_Splits(s, a);
    EXPECT_EQ(t().MondrianFrames, 15);
    EXPECT_EQ(t().MondrianFrames32, 15);
    const auto frames = mondrianFrames(t());
    ASSERT_EQ(frames.size(), 15u);
    // Equal columns of (712 - 2) / 5 = 142 pixels, the last one reaching the edge.
    EXPECT_EQ(t().ArrCellH(1, 0, 0), 142);
    EXPECT_EQ(t().ArrCellH(1, 1, 2), 284);
    EXPECT_EQ(t().ArrCellH(1, 4, 1), 712);
    EXPECT_DOUBLE_EQ(ext.MaxW, 142.0);
    EXPECT_GT(ext.MaxH, 0.0);
    // Every row keeps the same x, every column the same y.
    for (int r = 0; r <= 3; ++r)
        for (int c = 0; c <= 5; ++c) {
            EXPECT_EQ(t().ArrCellH(0, c, r), t().ArrCellH(0, c, 0));
            EXPECT_EQ(t().ArrCellV(1, c, r), t().ArrCellV(1, 0, r));
        }
    EXPECT_EQ(t().ArrCellV(1, 0, 2), 500);
    EXPECT_TRUE(tiles());
    for (const MondrianFrame &f : frames)
        EXPECT_FALSE(f.sub);
}

TEST_F(MondrianLayoutTest, TwoByTwoGivesFourFrames)
{
    rectangle(400, 400, 2, 2);
    MondrianSplitArgs a;
    CreateArr_Mondrian_Splits(s, a);
    const auto frames = mondrianFrames(t());
    ASSERT_EQ(frames.size(), 4u);
    EXPECT_EQ(frames[0].left, 0);
    EXPECT_EQ(frames[0].right, 200); // rounded(399 / 2) = 200 (half to even)
    EXPECT_EQ(frames[1].top, 200);   // column 0, row 1
    EXPECT_EQ(frames[3].right, 400);
    EXPECT_EQ(frames[3].bottom, 400);
    EXPECT_TRUE(tiles());
}

TEST_F(MondrianLayoutTest, MinRatioKeepsShortCellsWhole)
{
    // Columns of 10 pixels against H * 2 = 80: no cell is long enough, however many tries.
    rectangle(400, 400, 40, 40);
    MondrianSplitArgs a;
    a.DoSub = 1;
    a.MinRatio = 2;
    a.SubH = 4;
    a.SubV = 4;
    for (int seed = 1; seed <= 20; ++seed) {
        s.seed(uint32_t(seed));
        CreateArr_Mondrian_Splits(s, a);
        EXPECT_EQ(t().MondrianFrames, 1600);
        EXPECT_EQ(mondrianFrames(t()).size(), 1600u);
    }
    // The same layout with a lower barrier does subdivide.
    a.MinRatio = 0;
    CreateArr_Mondrian_Splits(s, a);
    EXPECT_GT(t().MondrianFrames, 1600);
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(MondrianLayoutTest, ASubdividedRowCutsOneCellIntoEqualParts)
{
    rectangle(712, 712, 3, 2);
    MondrianSplitArgs a;
    a.DoSub = 1;
    a.SubH = 2;
    a.Pen = 0;
    bool seen = false;
    for (int seed = 1; seed <= 30 && !seen; ++seed) {
        s.seed(uint32_t(seed));
        CreateArr_Mondrian_Splits(s, a);
        for (int r = 0; r <= 1; ++r)
            for (int c = 0; c <= 2; ++c) {
                if (t().ArrCellH(2, c, r) != 6)
                    continue;
                seen = true;
                // Six parts of the cell's width, the last ending at the cell's edge.
                EXPECT_EQ(t().ArrSubH(0, 0, r), t().ArrCellH(0, c, r));
                EXPECT_EQ(t().ArrSubH(1, 5, r), t().ArrCellH(1, c, r));
                EXPECT_EQ(t().ArrSubH(2, 0, r), 6);
                for (int k = 0; k < 6; ++k) {
                    EXPECT_NEAR(t().ArrSubH(1, k, r) - t().ArrSubH(0, k, r), 237.0 / 6, 2.0);
                    EXPECT_EQ(t().ArrSubHY(0, k, r), t().ArrCellV(0, c, r));
                    EXPECT_EQ(t().ArrSubHY(1, k, r), t().ArrCellV(1, c, r));
                }
            }
        EXPECT_TRUE(tiles());
    }
    EXPECT_TRUE(seen);
}

TEST_F(MondrianLayoutTest, FramesTileTheRectangleOverManySeeds)
{
    int subdivided = 0;
    for (int seed = 1; seed <= 300; ++seed) {
        s.seed(uint32_t(seed));
        const int16_t h = int16_t(2 + seed % 9);
        const int16_t v = int16_t(2 + (seed / 9) % 9);
        rectangle(300 + seed % 97, 240 + seed % 53, h, v);
        MondrianSplitArgs a;
        a.SymH = int16_t(seed % 2);
        a.SymV = int16_t((seed / 2) % 2);
        a.Mode = seed % 3 == 0 ? MondrianBePop : MondrianStandard;
        a.Pen = int16_t(seed % 6);
        a.DoSub = 1;
        a.SubH = int16_t(1 + seed % 4);
        a.SubV = int16_t(1 + (seed / 4) % 4);
        if (seed % 5 == 0) {
            a.SeedH = 1000 + seed;
            a.SeedV = seed % 10 == 0 ? a.SeedH : 2000 + seed;
        }
        CreateArr_Mondrian_Splits(s, a);
        ASSERT_TRUE(tiles()) << "seed " << seed;
        if (t().MondrianFrames > h * v)
            ++subdivided;
    }
    EXPECT_GT(subdivided, 100);
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(MondrianLayoutTest, TheDriverEraseLeavesNoLayout)
{
    rectangle(200, 200, 3, 3);
    CreateArr_Mondrian_Splits(s, MondrianSplitArgs{});
    EXPECT_TRUE(t().holdsLayout());
    t().eraseLastSet();
    EXPECT_FALSE(t().holdsLayout());
    EXPECT_THROW(mondrianFrames(t()), Fault);
}

} // namespace
