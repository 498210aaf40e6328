// The dabs of the spray tools over a pixel array and its stroke mask.
#include "core/random.h"
#include "tools/brushdabs.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

BrushPixels filled(int w, int h, ColorLong c)
{
    BrushPixels p(w, h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            p.at(x, y)[0] = uint8_t(BlueOf(c));
            p.at(x, y)[1] = uint8_t(GreenOf(c));
            p.at(x, y)[2] = uint8_t(RedOf(c));
        }
    return p;
}

ColorLong at(const BrushPixels &p, int x, int y)
{
    const uint8_t *o = p.at(x, y);
    return RGB(o[2], o[1], o[0]);
}

int differing(const BrushPixels &p, ColorLong ground)
{
    int n = 0;
    for (int y = 0; y < p.height; ++y)
        for (int x = 0; x < p.width; ++x) n += at(p, x, y) != ground;
    return n;
}

constexpr ColorLong White = 0xFFFFFF;

} // namespace

TEST(BrushDab, TheRadiusIsHalfTheSizeRoundedHalfToEven)
{
    EXPECT_EQ(dabRadius(1), 0);
    EXPECT_EQ(dabRadius(2), 1);
    EXPECT_EQ(dabRadius(3), 2);
    EXPECT_EQ(dabRadius(5), 2);
    EXPECT_EQ(dabRadius(7), 4);
    // Size 1 paints one pixel; sizes 3 and 5 the same disc of 13.
    for (const auto &[size, count] : {std::pair{1, 1}, {3, 13}, {5, 13}}) {
        BrushPixels p = filled(9, 9, White);
        StrokeMask mask(9, 9);
        Brush_Dab(p, mask, 4, 4, size, 100, RGB(1, 2, 3));
        EXPECT_EQ(differing(p, White), count) << size;
        EXPECT_EQ(at(p, 4, 4), RGB(1, 2, 3));
    }
}

TEST(BrushDab, PressureHundredGivesThePlainColourAndZeroLeavesThePixelButMarksIt)
{
    BrushPixels p = filled(5, 5, RGB(200, 100, 0));
    StrokeMask mask(5, 5);
    Brush_Dab(p, mask, 2, 2, 1, 0, RGB(0, 0, 255));
    EXPECT_EQ(at(p, 2, 2), RGB(200, 100, 0));
    EXPECT_EQ(mask.at(2, 2), -1);
    // Marked: a second dab of the same stroke passes over it.
    Brush_Dab(p, mask, 2, 2, 1, 100, RGB(0, 0, 255));
    EXPECT_EQ(at(p, 2, 2), RGB(200, 100, 0));
    mask.clear();
    Brush_Dab(p, mask, 2, 2, 1, 100, RGB(0, 0, 255));
    EXPECT_EQ(at(p, 2, 2), RGB(0, 0, 255));
}

TEST(BrushDab, AHalfPressureMixesOncePerStrokeHoweverOftenTheHandPasses)
{
    BrushPixels p = filled(7, 7, RGB(0, 0, 0));
    StrokeMask mask(7, 7);
    for (int i = 0; i < 5; ++i) Brush_Dab(p, mask, 3, 3, 3, 50, RGB(255, 101, 10));
    // rounded(0.5 * 255) = 128 (127.5 to even), 50.5 -> 50, 5.
    EXPECT_EQ(at(p, 3, 3), RGB(128, 50, 5));
    EXPECT_EQ(at(p, 0, 0), RGB(0, 0, 0));
    // A dab near the edge skips what lies outside.
    const QRect r = Brush_Dab(p, mask, 0, 6, 5, 100, White);
    EXPECT_EQ(r, QRect(0, 4, 3, 3));
}

TEST(BrushStroke, DabsEveryEighthPixelAndAtTheEnd)
{
    BrushPixels p = filled(40, 5, White);
    StrokeMask mask(40, 5);
    Brush_Stroke(p, mask, 2, 2, 37, 2, 1, 100, 0);
    // n = 35 / 8 = 4 dabs from the start, then the end.
    int painted = 0;
    for (int x = 0; x < 40; ++x) painted += at(p, x, 2) != White;
    EXPECT_EQ(painted, 5);
    EXPECT_NE(at(p, 2, 2), White);
    EXPECT_NE(at(p, 37, 2), White);
}

TEST(SaturateDab, ThePixelKeepsItsBrightnessAndTakesTheColoursTint)
{
    BrushPixels p = filled(3, 3, RGB(128, 128, 128));
    StrokeMask mask(3, 3);
    Saturate_Dab(p, mask, 1, 1, 1, 100, RGB(160, 100, 100));
    const ColorLong c = at(p, 1, 1);
    EXPECT_GT(RedOf(c), GreenOf(c));
    EXPECT_EQ(GreenOf(c), BlueOf(c));
    EXPECT_NEAR(0.299 * RedOf(c) + 0.587 * GreenOf(c) + 0.114 * BlueOf(c), 128.0, 1.5);
}

TEST(AirbrushDab, PressureZeroLeavesThePictureAndASeedGivesTheSameSpray)
{
    BrushPixels p = filled(15, 15, White);
    Random rnd;
    Airbrush_Dab(p, 7, 7, 11, 0, 0, rnd);
    EXPECT_EQ(differing(p, White), 0);
    BrushPixels a = filled(15, 15, White), b = filled(15, 15, White);
    Random ra, rb;
    Airbrush_Dab(a, 7, 7, 11, 80, 0, ra);
    Airbrush_Dab(b, 7, 7, 11, 80, 0, rb);
    EXPECT_EQ(a.bytes, b.bytes);
    EXPECT_GT(differing(a, White), 40);
    // Thins out to the rim: size 11 has radius 6 (5.5 to even), where the weight is 0.
    EXPECT_EQ(at(a, 7 + 6, 7), White);
}

TEST(SoftenAndSharpen, AFlatPictureStaysAndALonePointIsSpreadOrRaised)
{
    BrushPixels flat = filled(7, 7, RGB(90, 90, 90));
    const BrushPixels frozen = flat;
    Soften_Dab(flat, frozen, 3, 3, 5, 50);
    Sharpen_Dab(flat, frozen, 3, 3, 5, 50);
    EXPECT_EQ(flat.bytes, frozen.bytes);

    BrushPixels point = filled(7, 7, 0);
    point.at(3, 3)[0] = point.at(3, 3)[1] = point.at(3, 3)[2] = 255;
    const BrushPixels copy = point;
    BrushPixels soft = point;
    Soften_Dab(soft, copy, 3, 3, 1, 0);
    // k = 10: 10 * 255 / 14 = 182.14.
    EXPECT_EQ(at(soft, 3, 3), RGB(182, 182, 182));
    BrushPixels sharp = filled(7, 7, RGB(100, 100, 100));
    sharp.at(3, 3)[0] = sharp.at(3, 3)[1] = sharp.at(3, 3)[2] = 150;
    const BrushPixels before = sharp;
    Sharpen_Dab(sharp, before, 3, 3, 1, 100);
    // k = 10: m = (1500 + 400) / 14 = 135.71; 2 * 150 - m = 164.29.
    EXPECT_EQ(at(sharp, 3, 3), RGB(164, 164, 164));
}
