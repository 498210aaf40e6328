// The anti-aliased primitives: LineVR's blend, line, circle and arc, and AA_Line, on tiny
// pictures where every pixel can be named.
#include "core/gdi.h"
#include "core/picturebox.h"
#include "tools/aaline.h"
#include "tools/linevr.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tf;

namespace {

struct Picture {
    PictureBox box;
    Picture(int w, int h, ColorLong ground) : box(QStringLiteral("p"), w, h)
    {
        box.setAutoRedraw(true);
        box.setBackColor(ground);
    }
    DeviceContext &dc() { return box.hDC(); }
    ColorLong at(int x, int y) { return box.Point(x, y); }
    // The number of pixels that differ from `ground`.
    int changed(ColorLong ground)
    {
        int n = 0;
        for (int y = 0; y < box.Height(); ++y)
            for (int x = 0; x < box.Width(); ++x) n += at(x, y) != ground;
        return n;
    }
    // The sum of the red channel over the picture, in whole pixels of 255.
    double coverage()
    {
        double sum = 0;
        for (int y = 0; y < box.Height(); ++y)
            for (int x = 0; x < box.Width(); ++x) sum += RedOf(at(x, y)) / 255.0;
        return sum;
    }
};

constexpr ColorLong White = 0xFFFFFF;
constexpr ColorLong Black = 0x000000;

} // namespace

TEST(BlendPixel, AboveTwoHundredFiftyTwoTheColourIsSetAndBelowItIsMixedByIntegerDivision)
{
    Picture p(3, 1, RGB(200, 100, 50));
    LineVR line;
    line.hdc = &p.dc();
    line.setColor(RGB(10, 20, 30));
    line.Blend_Pixel(0, 0, 253);
    line.Blend_Pixel(1, 0, 252);
    line.Blend_Pixel(2, 0, 0);
    EXPECT_EQ(p.at(0, 0), RGB(10, 20, 30));
    // (10 * 252 + 200 * 3) \ 256 = 12, (20 * 252 + 300) \ 256 = 20, (30 * 252 + 150) \ 256 = 30.
    EXPECT_EQ(p.at(1, 0), RGB(12, 20, 30));
    // Level 0 still takes 255/256 of the old value: 199, 99, 49.
    EXPECT_EQ(p.at(2, 0), RGB(199, 99, 49));
}

TEST(LineGP, AShallowLineHasItsPathWholeItsSidesBlendedAndCapsBeyondBothEnds)
{
    Picture p(7, 5, White);
    LineVR line;
    line.LineGP(p.dc(), 1, 2, 5, 2, Black);
    for (int x = 1; x <= 5; ++x) {
        EXPECT_EQ(p.at(x, 2), Black) << x;
        // t = (4 \ 2) * 255 \ 4 = 127: above 255 - t = 128, below t = 127.
        EXPECT_EQ(p.at(x, 1), RGB(126, 126, 126)) << x;
        EXPECT_EQ(p.at(x, 3), RGB(127, 127, 127)) << x;
    }
    // The caps: half cover beside each end on the path's row, g = 0 on the diagonal.
    EXPECT_EQ(p.at(0, 2), RGB(127, 127, 127));
    EXPECT_EQ(p.at(6, 2), RGB(127, 127, 127));
    EXPECT_EQ(p.at(0, 1), RGB(254, 254, 254));
    EXPECT_EQ(p.at(6, 3), RGB(254, 254, 254));
    EXPECT_EQ(p.at(3, 0), White);
    EXPECT_EQ(p.at(3, 4), White);
}

TEST(LineGP, ASteepLineWalksRowsAndTheClipRegionKeepsPixelsOut)
{
    Picture p(5, 7, White);
    LineVR line;
    line.region = CreateRectRgn(0, 0, 5, 4);
    line.LineGP(p.dc(), 2, 1, 2, 5, Black);
    for (int y = 1; y <= 3; ++y) EXPECT_EQ(p.at(2, y), Black) << y;
    // Rows 4 and 5 lie outside the region.
    EXPECT_EQ(p.at(2, 4), White);
    EXPECT_EQ(p.at(2, 5), White);
    EXPECT_EQ(p.at(2, 6), White);
}

TEST(AA_Line, ALineOfLengthZeroDrawsNothingWithAnyPenNorThroughLineGP)
{
    Picture p(5, 5, White);
    for (const int pen : {1, 2, 3, 8}) AA_Line(p.box, 2.0, 2.0, 2.0, 2.0, Black, pen);
    LineVR line;
    line.LineGP(p.dc(), 2, 2, 2, 2, Black);
    EXPECT_EQ(p.changed(White), 0);
}

TEST(AA_Line, TheCoverageOfAThinLineSumsToItsLengthWithinAPixel)
{
    for (const auto &[x1, y1, x2, y2] :
         {std::array{3.0, 4.0, 40.0, 17.0}, {5.0, 2.0, 12.0, 37.0}, {2.5, 30.25, 41.0, 6.0},
          {4.0, 20.0, 44.0, 20.0}}) {
        Picture p(48, 40, Black);
        AA_Line(p.box, x1, y1, x2, y2, White, 1);
        const double length = std::hypot(x2 - x1, y2 - y1);
        EXPECT_NEAR(p.coverage(), length, 1.0) << x1 << "," << y1 << " " << x2 << "," << y2;
    }
}

TEST(AA_Line, AWidePenCoversItsWidthTimesTheLengthAndFillsItsMiddle)
{
    Picture p(48, 40, Black);
    AA_Line(p.box, 4.0, 6.0, 42.0, 30.0, White, 5);
    const double length = std::hypot(38.0, 24.0);
    EXPECT_NEAR(p.coverage(), 5.0 * length, 5.0);
    // A point on the middle of the line lies deep inside the band.
    EXPECT_EQ(p.at(23, 18), White);
}

TEST(AA_Line, WithoutTheFlagTheSameBandIsDrawnWithoutMixedPixels)
{
    Picture p(40, 30, Black);
    AA_Line(p.box, 3.0, 4.0, 35.0, 21.0, White, 3, false);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            const ColorLong c = p.at(x, y);
            ASSERT_TRUE(c == White || c == Black) << x << "," << y;
        }
    EXPECT_GT(p.changed(Black), 90);
}

TEST(AA_Line, PenTwoIsTheSoftLineOfLineGP)
{
    Picture a(12, 9, White), b(12, 9, White);
    AA_Line(a.box, 1, 2, 10, 6, Black, 2);
    LineVR line;
    line.LineGP(b.dc(), 1, 2, 10, 6, Black);
    EXPECT_EQ(a.box.Image(), b.box.Image());
}

TEST(CircleGP, ACircleIsSymmetricAboutItsCentreAndHasItsRadiusOnTheAxes)
{
    Picture p(21, 21, White);
    LineVR line;
    line.CircleGP(p.dc(), 10, 10, 7, 7, Black, 1);
    for (int y = 0; y < 21; ++y)
        for (int x = 0; x < 21; ++x) {
            EXPECT_EQ(p.at(x, y), p.at(20 - x, y)) << x << "," << y;
            EXPECT_EQ(p.at(x, y), p.at(x, 20 - y)) << x << "," << y;
        }
    // On the axes the exact radius falls on a pixel: it takes the colour whole.
    EXPECT_EQ(p.at(17, 10), Black);
    EXPECT_EQ(p.at(10, 3), Black);
    EXPECT_EQ(p.at(10, 10), White);
    EXPECT_EQ(p.at(19, 10), White);
}

TEST(CircleGP, ThicknessLaysRingsInsideEachOther)
{
    Picture p(21, 21, White);
    LineVR line;
    line.CircleGP(p.dc(), 10, 10, 8, 6, Black, 3);
    // Along the x half-axis rings 8, 7 and 6 are whole; along y 6, 5 and 4.
    for (int x = 16; x <= 18; ++x) EXPECT_EQ(p.at(x, 10), Black) << x;
    for (int y = 4; y <= 6; ++y) EXPECT_EQ(p.at(10, y), Black) << y;
    EXPECT_EQ(p.at(10, 10), White);
}

TEST(ArcGP, OnlyThePartBetweenTheAnglesIsDrawn)
{
    Picture p(21, 21, White);
    LineVR line;
    // The upper half: 0 to pi, counter-clockwise with y up.
    line.ArcGP(p.dc(), 10, 10, 7, 7, 0.0f, 3.14159f, Black, 1);
    EXPECT_EQ(p.at(10, 3), Black);
    EXPECT_EQ(p.at(10, 17), White);
    for (int y = 12; y < 21; ++y)
        for (int x = 0; x < 21; ++x) EXPECT_EQ(p.at(x, y), White) << x << "," << y;
}
