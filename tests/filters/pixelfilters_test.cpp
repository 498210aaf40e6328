// The exact rules of the pixel filters on small pictures with known pixels.
#include "filters/dografic.h"
#include "filters/filterrun.h"
#include "filters/filtertable.h"
#include "filterpictures.h"

#include <gtest/gtest.h>
#include <algorithm>

using namespace tf;
using namespace filtertest;

namespace {

struct PixelFilters : FilterSession {
    QImage run(int number, QImage img, int32_t argument = 0)
    {
        FilterArgs a;
        a.argument = argument;
        EXPECT_TRUE(DoGraficFilters(s, number, img, a));
        return img;
    }
    QImage runWith(int number, QImage img, const FilterArgs &a)
    {
        EXPECT_TRUE(DoGraficFilters(s, number, img, a));
        return img;
    }
};

} // namespace

TEST_F(PixelFilters, OnePixelPassesEveryFilterAndSharpenLeavesIt)
{
    const QImage one = picture(1, 1, {RGB(10, 120, 240)});
    for (const FilterRow &row : filterTable()) {
        if (!row.available() || row.number == 28) continue; // stretch of a flat channel faults
        FilterArgs a;
        a.argument = row.sliders.empty() ? 0 : row.sliders[0].def;
        for (size_t i = 0; i < row.sliders.size(); ++i)
            a.sliders[i] = row.sliders[i].def;
        QImage img = one;
        EXPECT_TRUE(DoGraficFilters(s, row.number, img, a)) << row.number;
        EXPECT_EQ(img.size(), QSize(1, 1));
    }
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_EQ(at(run(1, one, 36), 0, 0), RGB(10, 120, 240));
    EXPECT_EQ(at(run(1, one, 16), 0, 0), RGB(10, 120, 240));
}

TEST_F(PixelFilters, SharpenReadsFilteredNeighboursAndClampsAtTheEdges)
{
    // One row 3 x 1, red only. Sharpen 36: (v*60 - 2N) \ 44, N the 8 clamped neighbours.
    const QImage img = picture(3, 1, {RGB(100, 0, 0), RGB(200, 0, 0), RGB(50, 0, 0)});
    const QImage out = run(1, img, 36);
    // x0: neighbours: 3 x itself (above, below, left are itself or clamped) ... computed:
    // N = left(100)*3 + up(100) + down(100) + right(200)*3 = 1100; (6000 - 2200) \ 44 = 86.
    EXPECT_EQ(rgb(out, 0, 0)[0], 86);
    // x1 sees the new left value 86: N = 86*3 + 200*2 + 50*3 = 808; (12000-1616)\44 = 236.
    EXPECT_EQ(rgb(out, 1, 0)[0], 236);
    // x2: N = 236*3 + 50*2 + 50*3 = 958; (3000 - 1916)\44 = 24.
    EXPECT_EQ(rgb(out, 2, 0)[0], 24);
}

TEST_F(PixelFilters, BlursAreMeansOfTheirSamplesInPlace)
{
    const QImage img = picture(2, 1, {RGB(0, 0, 10), RGB(0, 0, 100)});
    // Soft blur: centre, up, down (itself), left, right \ 5. x0: (10*4 + 100) \ 5 = 28;
    // x1 sees 28 on the left: (100*4 + 28) \ 5 = 85.
    const QImage soft = run(5, img);
    EXPECT_EQ(rgb(soft, 0, 0)[2], 28);
    EXPECT_EQ(rgb(soft, 1, 0)[2], 85);
    // Strong blur leaves the centre out: x0 N = 10*5 + 100*3 = 350 \ 8 = 43; x1 N =
    // 43*3 + 100*5 = 629 \ 8 = 78.
    const QImage strong = run(3, img);
    EXPECT_EQ(rgb(strong, 0, 0)[2], 43);
    EXPECT_EQ(rgb(strong, 1, 0)[2], 78);
}

TEST_F(PixelFilters, FlatPicturesUnderEmbossAndEngraveGiveTheColourArgument)
{
    const ColorLong k = RGB(10, 20, 30);
    for (int n : {8, 9, 10, 11}) {
        const QImage out = run(n, flat(4, 3, RGB(90, 140, 200)), k);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x)
                ASSERT_EQ(at(out, x, y), k) << n;
    }
    // Contour of a flat picture: 8v - N = 0, lifted to the colour.
    EXPECT_EQ(at(run(7, flat(3, 3, RGB(77, 77, 77)), k), 1, 1), k);
    // Relief of a flat picture: (0 + v) \ 2 + 50.
    EXPECT_EQ(rgb(run(13, flat(3, 3, RGB(100, 101, 0))), 1, 1), (std::array<int, 3>{100, 100, 50}));
}

TEST_F(PixelFilters, GammaAtOneHundredChangesNothingAndNoiseStaysWithinItsOffsets)
{
    const QImage img = noisy(17, 11);
    EXPECT_EQ(run(31, img, 100), img);
    const int a = 20;
    const QImage noise = run(29, img, a);
    EXPECT_NE(noise, img);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            for (int c = 0; c < 3; ++c) {
                const int before = rgb(img, x, y)[size_t(c)], after = rgb(noise, x, y)[size_t(c)];
                // The offset is the rounded Rnd*(2a+1) - a: from -a up to a+1 (a draw
                // just below 1 rounds up).
                ASSERT_GE(after - before, -a);
                ASSERT_LE(after - before, a + 1);
            }
}

TEST_F(PixelFilters, ChannelTables)
{
    const QImage img = picture(4, 1, {RGB(10, 30, 25), RGB(26, 127, 128), RGB(230, 255, 0),
                                      RGB(1, 2, 3)});
    // Brightness 5: conversion of 1.05*v, half to even: 10.5 -> 10, 31.5 -> 32.
    EXPECT_EQ(rgb(run(14, img, 5), 0, 0), (std::array<int, 3>{10, 32, 26}));
    // Web colours: ((v+25)\51)*51.
    EXPECT_EQ(rgb(run(54, img), 0, 0), (std::array<int, 3>{0, 51, 0}));
    EXPECT_EQ(rgb(run(54, img), 2, 0), (std::array<int, 3>{255, 255, 0}));
    // Reduce with factor 50 (steps of 51): Round(127/51 = 2.49) = 2, Round(128/51) = 3.
    EXPECT_EQ(rgb(run(41, img, 50), 1, 0), (std::array<int, 3>{51, 102, 153}));
    // Negative and greyscale.
    EXPECT_EQ(rgb(run(2, img), 3, 0), (std::array<int, 3>{254, 253, 252}));
    EXPECT_EQ(rgb(run(12, img), 1, 0), (std::array<int, 3>{93, 93, 93}));
    // Channel swap 1, RGB --> BRG: red takes blue, green takes red, blue takes green.
    EXPECT_EQ(rgb(run(16, img, 1), 3, 0), (std::array<int, 3>{3, 1, 2}));
    EXPECT_EQ(rgb(run(16, img, 4), 3, 0), (std::array<int, 3>{3, 2, 1}));
    EXPECT_EQ(run(16, img, 9), img);
    // Duotone: a bitwise and with the colour's channels.
    EXPECT_EQ(rgb(run(32, img, RGB(0xF0, 0x0F, 0xFF)), 1, 0), (std::array<int, 3>{16, 15, 128}));
}

TEST_F(PixelFilters, ContrastSharesTheOverflowOfTheFirstChannelOutOfRange)
{
    // Mean grey of the two pixels: (100 + 0) \ 2... the greys are 100 and 0, so m = 50.
    const QImage img = picture(2, 1, {RGB(250, 25, 25), RGB(0, 0, 0)});
    // Factor 2 (a = 100): t(i) = 2*(i - 50) + 50 = 2i - 50. Pixel 0: red 450, green 0,
    // blue 0: blue and green are in range, red is the first out: (450-255)\2 = 97 goes to
    // the other two.
    const QImage out = run(17, img, 100);
    EXPECT_EQ(rgb(out, 0, 0), (std::array<int, 3>{255, 97, 97}));
    // Pixel 1: all three -50: all below 0, clamped.
    EXPECT_EQ(rgb(out, 1, 0), (std::array<int, 3>{0, 0, 0}));
}

TEST_F(PixelFilters, ContrastTablesGiveTheRuleOnEveryPixel)
{
    // Varied colours over- and under-drive every channel in every order; each pixel is
    // compared with the rule worked out pixel by pixel: the mean grey m of (b+g+r)\3 over the
    // picture, t(v) = Round(f * (v - m) + m), and the overflow of the first channel out of
    // range (blue, green, red) shared half and half by the other two.
    const QImage img = noisy(61, 37);
    int64_t greys = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const auto c = rgb(img, x, y);
            greys += (c[0] + c[1] + c[2]) / 3;
        }
    const int m = int(roundHalfEven(double(greys) / (img.width() * img.height())));
    for (int factor : {-100, -40, 35, 100, 300}) {
        const double f = (factor + 100) / 100.0;
        const QImage out = run(17, img, factor);
        int overDriven = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x) {
                const auto c = rgb(img, x, y);
                int v[3] = {c[2], c[1], c[0]}; // blue, green, red
                for (int &ch : v)
                    ch = roundInt(f * (ch - m) + m);
                const auto in = [](int ch) { return ch >= 0 && ch <= 255; };
                if (!in(v[0]) || !in(v[1]) || !in(v[2])) {
                    ++overDriven;
                    const bool low = v[0] < 0 && v[1] < 0 && v[2] < 0;
                    const bool high = v[0] > 255 && v[1] > 255 && v[2] > 255;
                    if (!low && !high) {
                        const int k = !in(v[0]) ? 0 : !in(v[1]) ? 1 : 2;
                        const int share = v[k] < 0 ? v[k] / 2 : (v[k] - 255) / 2;
                        v[k] = v[k] < 0 ? 0 : 255;
                        for (int o = 0; o < 3; ++o)
                            if (o != k) v[o] += share;
                    }
                }
                const std::array<int, 3> expected = {std::clamp(v[2], 0, 255), std::clamp(v[1], 0, 255),
                                                     std::clamp(v[0], 0, 255)};
                ASSERT_EQ(rgb(out, x, y), expected) << "factor " << factor << " at " << x << "," << y;
                ASSERT_EQ(qAlpha(out.pixel(x, y)), 255);
            }
        if (factor > 0) {
            EXPECT_GT(overDriven, 100) << factor;
        }
    }
}

TEST_F(PixelFilters, MosaicDilateErodeAndDespeckle)
{
    const QImage img = picture(3, 1, {RGB(10, 0, 0), RGB(20, 0, 0), RGB(90, 0, 0)});
    // Blocks of 2: (10+20)\2 = 15; the last block is the one pixel inside the picture.
    const QImage mosaic = run(15, img, 2);
    EXPECT_EQ(rgb(mosaic, 0, 0)[0], 15);
    EXPECT_EQ(rgb(mosaic, 1, 0)[0], 15);
    EXPECT_EQ(rgb(mosaic, 2, 0)[0], 90);
    EXPECT_EQ(rgb(run(25, img), 0, 0)[0], 20);
    EXPECT_EQ(rgb(run(26, img), 2, 0)[0], 20);
    // A spike fades by one level in each of the three passes; broad areas stay.
    QImage spike = flat(3, 3, RGB(100, 100, 100));
    spike.setPixel(1, 1, qRgb(200, 100, 100));
    const QImage d = run(33, spike);
    EXPECT_EQ(rgb(d, 1, 1), (std::array<int, 3>{197, 100, 100}));
    EXPECT_EQ(rgb(d, 0, 0), (std::array<int, 3>{100, 100, 100}));
}

TEST_F(PixelFilters, OrderedRasterAndFloydSteinbergOnFlatGreys)
{
    // Grey 128 against the thresholds M*255\16+1: white where the threshold is at most 128.
    const QImage raster = run(20, flat(4, 4, RGB(128, 128, 128)));
    const char *expected[4] = {"WBWB", "BWBW", "WBWB", "BWBW"};
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(at(raster, x, y), expected[y][x] == 'W' ? 0xFFFFFF : 0) << x << "," << y;
    // Floyd-Steinberg on a flat grey: the threshold is the mean, so the first pixel is white,
    // and the error -155 (7/16: -67) makes the next black, and so on.
    const QImage fs = run(21, flat(4, 1, RGB(100, 100, 100)));
    EXPECT_EQ(at(fs, 0, 0), 0xFFFFFF);
    EXPECT_EQ(at(fs, 1, 0), 0);
    EXPECT_EQ(at(fs, 2, 0), 0xFFFFFF);
    EXPECT_EQ(at(fs, 3, 0), 0);
    // Every conversion gives pure black or white.
    const QImage photo = noisy(23, 9);
    for (int n = 18; n <= 23; ++n) {
        const QImage bw = run(n, photo, RGB(128, 128, 128));
        for (int y = 0; y < bw.height(); ++y)
            for (int x = 0; x < bw.width(); ++x)
                ASSERT_TRUE(at(bw, x, y) == 0 || at(bw, x, y) == 0xFFFFFF) << n;
    }
}

TEST_F(PixelFilters, ColourTestsUseTheSquaredDistanceLimit)
{
    // Tolerance 10: L = (12.75)^2 + 1 rounded = 164. Distance^2 of (10,0,0) is 100: counts;
    // (13,0,0): 169 does not.
    const QImage img = picture(3, 1, {RGB(110, 50, 50), RGB(113, 50, 50), RGB(100, 50, 50)});
    FilterArgs a;
    a.colours = {RGB(100, 50, 50), RGB(0, 0, 255)};
    a.sliders[0] = 10;
    const QImage isolated = runWith(39, img, a);
    EXPECT_EQ(at(isolated, 0, 0), RGB(110, 50, 50));
    EXPECT_EQ(at(isolated, 1, 0), RGB(0, 0, 255));
    // Replace: the exact colour takes the new one whole, a near one softly.
    const QImage replaced = runWith(40, img, a);
    EXPECT_EQ(at(replaced, 2, 0), RGB(0, 0, 255));
    EXPECT_EQ(at(replaced, 1, 0), RGB(113, 50, 50));
    // f = 1 - 100/164 = 0.39: red 110 - 0.39*110 = 67.07 -> 67, green 50 - 19.5 -> 30.49 -> 30.
    EXPECT_EQ(rgb(replaced, 0, 0), (std::array<int, 3>{67, 30, 130}));
}

TEST_F(PixelFilters, NumbersWithoutARoutineLeaveTheBytes)
{
    const QImage img = noisy(9, 7);
    // The dialog-level numbers of the shapes run only as 46 with their selector.
    for (int n : {-1, 0, 55, 999, 1000, 1010})
        EXPECT_EQ(run(n, img, 5), img) << n;
}

TEST_F(PixelFilters, AFaultLeavesThePictureAndNamesTheNumber)
{
    // Stretch of a picture whose channels are flat divides by zero.
    const QImage img = flat(3, 2, RGB(5, 6, 7));
    QImage out = img;
    EXPECT_FALSE(DoGraficFilters(s, 28, out, {}));
    EXPECT_EQ(out, img);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("DoGraficFilters [28]  [Division by zero]"));
    EXPECT_FALSE(s.runState().filtering());
}

TEST_F(PixelFilters, StretchSpreadsEachChannelOverTheWholeRange)
{
    const QImage img = picture(3, 1, {RGB(10, 0, 100), RGB(20, 50, 150), RGB(30, 100, 200)});
    const QImage out = run(28, img);
    EXPECT_EQ(rgb(out, 0, 0), (std::array<int, 3>{0, 0, 0}));
    EXPECT_EQ(rgb(out, 1, 0), (std::array<int, 3>{128, 128, 128})); // 127.5 -> 128
    EXPECT_EQ(rgb(out, 2, 0), (std::array<int, 3>{255, 255, 255}));
}

TEST_F(PixelFilters, StretchFindsEachChannelsRangeAnywhereInTheRow)
{
    // Nine pixels: the first eight are searched four at a time, the ninth alone. Red's range
    // is 40..90 (pixels 8 and 1), green's 60..110 (pixels 6 and 8), blue's 20..220 (pixels 3
    // and 0).
    QImage img = flat(9, 1, RGB(70, 80, 120));
    img.setPixel(0, 0, qRgb(70, 80, 220));
    img.setPixel(1, 0, qRgb(90, 80, 120));
    img.setPixel(3, 0, qRgb(70, 80, 20));
    img.setPixel(6, 0, qRgb(70, 60, 120));
    img.setPixel(8, 0, qRgb(40, 110, 120));
    const QImage out = run(28, img);
    EXPECT_EQ(rgb(out, 8, 0), (std::array<int, 3>{0, 255, 128})); // blue (120-20)*255/200 = 127.5
    EXPECT_EQ(rgb(out, 1, 0), (std::array<int, 3>{255, 102, 128}));
    EXPECT_EQ(rgb(out, 0, 0)[2], 255);
    EXPECT_EQ(rgb(out, 3, 0)[2], 0);
    EXPECT_EQ(rgb(out, 6, 0)[1], 0);
}

namespace {

// The in-place 3 x 3 loop as written: y outer, x inner, neighbours clamped, reading D as it
// is being written. `fn(centre, N)` gives a channel's new value.
template <typename Fn> QImage plainInPlace(QImage img, Fn fn)
{
    const int w = img.width(), h = img.height();
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int xm = std::max(x - 1, 0), xp = std::min(x + 1, w - 1);
            const int ym = std::max(y - 1, 0), yp = std::min(y + 1, h - 1);
            const auto ch = [&](int px, int py, int c) { return (int(img.pixel(px, py)) >> (8 * c)) & 255; };
            QRgb out = img.pixel(x, y);
            for (int c = 0; c < 3; ++c) {
                const int n = ch(xm, ym, c) + ch(x, ym, c) + ch(xp, ym, c) + ch(xm, y, c) +
                              ch(xp, y, c) + ch(xm, yp, c) + ch(x, yp, c) + ch(xp, yp, c);
                const int v = std::clamp(fn(ch(x, y, c), n), 0, 255);
                out = (out & ~(0xFFu << (8 * c))) | (uint32_t(v) << (8 * c));
            }
            img.setPixel(x, y, out);
        }
    return img;
}

} // namespace

TEST_F(PixelFilters, InPlaceFiltersOverThreadsReadWhatThePlainLoopReads)
{
    // Rows follow each other over the threads in chunks of columns; every read must still see
    // the neighbours above and to the left filtered and the others not, at the chunks' seams
    // and at the picture's edges alike.
    const QImage img = noisy(1100, 41);
    for (int threads : {1, 2, 3}) {
        s.filters().threads = threads;
        EXPECT_EQ(run(1, img, 36), plainInPlace(img, [](int v, int n) { return (v * 60 - n * 2) / 44; }))
            << threads;
        EXPECT_EQ(run(1, img, 7), plainInPlace(img, [](int v, int n) { return (v * 31 - n * 2) / 15; }))
            << threads;
        EXPECT_EQ(run(3, img), plainInPlace(img, [](int, int n) { return n / 8; })) << threads;
        EXPECT_EQ(run(6, img), plainInPlace(img, [](int v, int n) { return v * 9 - n; })) << threads;
    }
}
