// The load limits: which pictures are taken whole, and the fit into the box.
#include "files/picturelimits.h"

#include <gtest/gtest.h>

using namespace tf;

TEST(LoadLimits, ExactlyTheLimitIsTakenWholeOnePixelMoreIsNot)
{
    EXPECT_TRUE(takenWhole(1600, 1600));
    EXPECT_FALSE(takenWhole(1601, 1600));
    EXPECT_FALSE(takenWhole(1600, 1601));
    // The limit is on pixels, not sides: a long strip within it is taken whole.
    EXPECT_TRUE(takenWhole(2560000, 1));
    EXPECT_FALSE(takenWhole(14000, 14000));
}

TEST(LoadLimits, FitIntoBoxAtAndBeyondItsEdges)
{
    struct Case {
        int w, h, maxW, maxH, expectW, expectH;
    };
    const Case cases[] = {
        {1600, 1600, 1600, 1600, 1600, 1600}, // exactly the box: unchanged
        {1600, 900, 1600, 1600, 1600, 900},   // one side at the edge: unchanged
        {1, 1, 1600, 1600, 1, 1},
        {1601, 1600, 1600, 1600, 1600, 1599}, // r1 < r2: the width becomes the box's
        {1600, 1601, 1600, 1600, 1599, 1600}, // r1 > r2: the height becomes the box's
        {3200, 3200, 1600, 1600, 1600, 1600}, // r1 == r2 takes the height branch
        {6000, 4000, 1600, 1600, 1600, 1067}, // 1066.67 rounds up
        {4000, 6000, 1600, 1600, 1067, 1600},
        {20000, 1, 1600, 1600, 1600, 1},      // a side never rounds below 1
        {3, 2, 2, 2, 2, 1},                   // 1.333 -> 1
        {5, 2, 4, 4, 4, 2},                   // 1.6 -> 2
        {8, 3, 4, 4, 4, 2},                   // 1.5 -> 2 (half to even)
        {8, 5, 4, 4, 4, 2},                   // 2.5 -> 2 (half to even)
    };
    for (const Case &c : cases) {
        int w = -1, h = -1;
        Fit_Into_Box(c.w, c.h, c.maxW, c.maxH, w, h);
        EXPECT_EQ(QSize(w, h), QSize(c.expectW, c.expectH)) << c.w << "x" << c.h;
    }
}
