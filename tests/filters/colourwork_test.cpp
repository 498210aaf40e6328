// The colour conversions, sepia, the composite filter 35 and results that do not depend on
// the number of threads.
#include "filters/colourcommand.h"
#include "filters/dografic.h"
#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "filters/hls.h"
#include "paint/session.h"
#include "filterpictures.h"

#include <gtest/gtest.h>

using namespace tf;
using namespace filtertest;

TEST(Hls, GreysHaveNoHueNorSaturationAndComeBack)
{
    for (int g = 0; g < 256; ++g) {
        Single h = -9, s = -9, l = -9;
        RGBToHLS(g, g, g, h, s, l);
        EXPECT_EQ(h, 0.0f);
        EXPECT_EQ(s, 0.0f);
        int r = -1, gr = -1, b = -1;
        HLSToRGB(h, s, l, r, gr, b);
        EXPECT_EQ(r, g);
        EXPECT_EQ(gr, g);
        EXPECT_EQ(b, g);
    }
}

TEST(Hls, SextantsOfThePrimariesAndTheRedToMagentaSide)
{
    Single h, s, l;
    RGBToHLS(0, 255, 0, h, s, l);
    EXPECT_EQ(h, 2.0f);
    EXPECT_EQ(s, 1.0f);
    EXPECT_EQ(l, 0.5f);
    RGBToHLS(0, 0, 255, h, s, l);
    EXPECT_EQ(h, 4.0f);
    // Red with more blue than green: a hue below 0, not wrapped.
    RGBToHLS(255, 0, 128, h, s, l);
    EXPECT_LT(h, 0.0f);
    int r, g, b;
    HLSToRGB(h, s, l, r, g, b);
    EXPECT_EQ(r, 255);
    EXPECT_EQ(g, 0);
    EXPECT_EQ(b, 128);
}

TEST(Sepia, KeepsBlackAndWhiteAndTintsGrey)
{
    Session s;
    QImage img = picture(3, 1, {RGB(0, 0, 0), RGB(255, 255, 255), RGB(128, 128, 128)});
    colourisePicture(s, img, SepiaValues);
    EXPECT_EQ(at(img, 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(at(img, 1, 0), RGB(255, 255, 255));
    // Grey 128: L = 0.50196, hue 0.5, saturation 0.25: a warm brown-grey.
    const auto c = rgb(img, 2, 0);
    EXPECT_GT(c[0], c[1]);
    EXPECT_GT(c[1], c[2]);
}

TEST(Dissolve, IsItsSevenStepsEachOnACopyOfTheLast)
{
    const QImage img = noisy(31, 19);
    Session a;
    QImage chained = img;
    ASSERT_TRUE(DoGraficFilters(a, 35, chained, {}));
    Session b;
    QImage stepped = img;
    for (auto [n, arg] : std::initializer_list<std::pair<int, int>>{
             {30, 60}, {26, 0}, {33, 0}, {4, 2}, {25, 0}, {33, 0}, {33, 0}}) {
        FilterArgs args;
        args.argument = arg;
        ASSERT_TRUE(DoGraficFilters(b, n, stepped, args));
    }
    EXPECT_EQ(chained, stepped);
}

TEST(Threads, EveryFilterGivesTheSameBytesOnOneThreadAndOnMany)
{
    // Wide enough for three column chunks of the in-place wavefront, large enough for three
    // threads.
    const QImage img = noisy(1100, 97);
    for (const FilterRow &row : filterTable()) {
        if (!row.available()) continue;
        FilterArgs args = defaultArguments(row);
        if (row.sliders.empty()) args.argument = row.number == 16 ? 2 : row.number == 1 ? 36 : RGB(90, 120, 150);
        QImage results[3];
        const int threads[3] = {1, 3, 0};
        for (int i = 0; i < 3; ++i) {
            Session s; // the same seed for the filters that draw random numbers
            s.filters().threads = threads[i];
            results[i] = img;
            ASSERT_TRUE(DoGraficFilters(s, row.number, results[i], args)) << row.number;
        }
        EXPECT_EQ(results[0], results[1]) << row.number;
        EXPECT_EQ(results[0], results[2]) << row.number;
    }
}
