// The figures around a centre through the Paint command: Stop in the middle of a rosette, the
// radii that are never 0 or less, and every variant painting with the colour tables.
#include "paintfixture.h"

#include "generators/rosettes.h"

using namespace tf;

namespace {

constexpr ColorLong Ground = 0x00FF00;

struct RosetteTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(301, 207);
    }
};

TEST(RosetteRadiiTest, NeverZeroOrLess)
{
    // Every r of the first range, with the second range's ends and every cut of s.
    for (int i = 0; i < 21; ++i)
        for (double second : {0.0, 0.999})
            for (int j = 0; j < 9; ++j) {
                const RosetteRadii rr = rosetteRadii((i + 0.5) / 21, second, (j + 0.5) / 9);
                EXPECT_GT(rr.r, 0) << i;
                EXPECT_GT(rr.s, 0) << i << ' ' << j;
            }
    // A draw of r = 0 takes the second range: 50 at its low end, 150 at its top.
    EXPECT_EQ(rosetteRadii(10.5 / 21, 0.0, 0.0).r, 50);
    EXPECT_EQ(rosetteRadii(10.5 / 21, 0.999, 0.0).r, 150);
    // r = 100 cut by 80 leaves 20; r = 50 cut by 80 would be below 0 and gives 200 - 50.
    EXPECT_EQ(rosetteRadii(0.999, 0.0, 0.999).s, 20);
    EXPECT_EQ(rosetteRadii(0.0, 0.0, 0.999).s, 150);
}

TEST_F(RosetteTest, EveryVariantPaintsWithAndWithoutTheColourTable)
{
    expectEveryVariantPaints({"Rosetta", "Rosetta-Pixelized", "Rosetta-Crazy", "Rosetta-Pixelized-Crazy",
                              "Spiral", "Twister"},
                             Ground);
}

TEST_F(RosetteTest, StopLeavesWhatIsPaintedAndShowsTheCaptions)
{
    s.colours().RandomColors = false;
    s.colours().ColorFore = 0x0000FF;
    // The driver yields once before the painter, then the rosette after each circle: it ends at
    // the fifth circle, with those circles on the picture.
    const auto [whole, part] = expectStopKeepsAPart("Rosetta", 6, Ground);
    EXPECT_LT(part, whole);
}

} // namespace
