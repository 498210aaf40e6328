// The distortions of the transform menu: the row shapes of TransGMirrors by their exact rule,
// the warps (what leaves the picture as it was, what comes back), the sizes of stretching and
// rotation, and results that do not depend on the thread count.
#include "filterpictures.h"
#include "filters/dografic.h"
#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "filters/geometry.h"

using namespace tf;
using namespace filtertest;

namespace {

struct Distortions : FilterSession {
    // Filter `number` (a shape 1000.. runs as 46 with its selector) with the slider values.
    QImage run(int number, QImage img, const std::vector<int> &sliders, FilterArgs a = {})
    {
        const FilterRow &row = *findFilter(number);
        a.selector = defaultArguments(row).selector;
        size_t i = 0;
        for (int v : sliders)
            a.sliders[i++] = v;
        a.argument = a.sliders[0];
        EXPECT_TRUE(DoGraficFilters(s, row.runsAs(), img, a)) << number;
        return img;
    }
};

// A picture whose red channel is the 1-based column and green the row.
QImage columns(int w, int h)
{
    QImage img(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            img.setPixel(x, y, qRgb(x + 1, y, 77));
    return img;
}

// How far row y of a shaped `columns` picture is squeezed in from the right: the last source
// column lands at W - d.
int insetOfRow(const QImage &out, int y)
{
    for (int x = 0; x < out.width(); ++x)
        if (qRed(out.pixel(x, y)) == out.width()) return out.width() - 1 - x;
    return -1;
}

} // namespace

TEST_F(Distortions, TheRowBufferKeepsWhatNoLaterWriteCovers)
{
    // Funnel, value 1 (P = 4) on 6 x 4: row 1 has d = 3, L = 0: every pixel goes to column 3,
    // the last one (6) stays there. Row 2 has d = 6, s = -1: t = 6 - x, raised to 1.
    const QImage out = run(1005, columns(6, 4), {1});
    EXPECT_EQ(reds(out, 0), (std::vector<int>{1, 2, 6, 4, 5, 6}));
    EXPECT_EQ(reds(out, 1), (std::vector<int>{6, 4, 3, 4, 5, 6}));
}

TEST_F(Distortions, TheHourglassSqueezesMostAtTheMiddleAndValueZeroChangesNothing)
{
    const QImage img = columns(200, 40);
    const QImage out = run(1000, img, {10});
    // Row y (1-based) 20 = H/2 is the top of the sine: d = 2P = 80; the last row is not
    // squeezed at all, the first hardly (d = (1 - cos(pi/20)) P = 0.49 -> 0).
    EXPECT_EQ(insetOfRow(out, 19), 80);
    EXPECT_GT(insetOfRow(out, 19), insetOfRow(out, 9));
    EXPECT_GT(insetOfRow(out, 9), insetOfRow(out, 1));
    EXPECT_EQ(insetOfRow(out, 0), 0);
    EXPECT_EQ(insetOfRow(out, 39), 0);
    for (int y = 0; y < 40; ++y)
        EXPECT_LE(insetOfRow(out, y), 80) << y;
    // The flanks keep the picture as it was: the right edge stays, and so does the left half.
    EXPECT_EQ(qRed(out.pixel(199, 19)), 200);
    EXPECT_EQ(qRed(out.pixel(50, 19)), 51);

    const QImage photo = noisy(31, 17);
    for (int shape : {1000, 1001, 1002, 1003})
        EXPECT_EQ(run(shape, photo, {0}), photo) << shape;
    // Selectors 4 and 7 leave every row as it was, whatever the value.
    for (int shape : {1004, 1007})
        EXPECT_EQ(run(shape, photo, {50}), photo) << shape;
    for (int shape : {1005, 1006, 1008, 1009})
        EXPECT_NE(run(shape, photo, {10}), photo) << shape;
}

TEST_F(Distortions, TheCircleShapesSqueezeTheEndsAndLeaveTheWidestRow)
{
    const QImage img = columns(40, 21);
    // Fisheye: H2 = round(10.5) = 10; row y = 11 (0-based 10) lies on the middle: no inset.
    const QImage fish = run(1008, img, {10});
    EXPECT_EQ(insetOfRow(fish, 10), 0);
    EXPECT_GT(insetOfRow(fish, 0), insetOfRow(fish, 5));
    EXPECT_GT(insetOfRow(fish, 20), insetOfRow(fish, 15));
    // Parabola: H2 = H: the first row is the widest, the last the narrowest (d = W2 = 20).
    const QImage parabola = run(1009, img, {10});
    EXPECT_EQ(insetOfRow(parabola, 0), 0);
    EXPECT_GT(insetOfRow(parabola, 20), insetOfRow(parabola, 10));
    EXPECT_EQ(insetOfRow(parabola, 20), 20);
}

TEST_F(Distortions, NeutralValuesLeaveThePicture)
{
    const QImage photo = noisy(23, 19);
    EXPECT_EQ(run(47, photo, {50, 0}), photo);    // a lens of scaling 0
    EXPECT_EQ(run(48, photo, {0, 30, 0}), photo); // no waves, start angle 0
    EXPECT_EQ(run(49, photo, {0}), photo);
    EXPECT_EQ(run(50, photo, {0, 0}), photo);
    EXPECT_EQ(run(51, photo, {0, 0}), photo);
    EXPECT_EQ(run(52, photo, {0, 0}), photo);
    EXPECT_EQ(run(53, photo, {0, 1}), photo);
    EXPECT_EQ(run(53, photo, {360, 1}), photo);
    EXPECT_EQ(run(53, photo, {-360, 0}), photo);
    for (int n = 47; n <= 53; ++n)
        EXPECT_NE(run(n, photo, {40, 40, 40}), photo) << n;
}

TEST_F(Distortions, ALensMagnifiesAroundThePickedPositionAndLeavesTheRestAlone)
{
    const QImage img = columns(60, 60);
    FilterArgs a;
    a.position = QPoint(20, 30);
    const QImage out = run(47, img, {50, 100}, a); // radius 15
    // The centre stays, a pixel 10 to its right comes from nearer the centre.
    EXPECT_EQ(out.pixel(20, 30), img.pixel(20, 30));
    EXPECT_LT(qRed(out.pixel(30, 30)), 31);
    EXPECT_GT(qRed(out.pixel(30, 30)), 21);
    for (const QPoint p : {QPoint(0, 0), QPoint(36, 30), QPoint(59, 59), QPoint(20, 10)})
        EXPECT_EQ(out.pixel(p), img.pixel(p)) << p.x() << "," << p.y();
}

TEST_F(Distortions, RotationTurnsAboutTheMiddleWithTheBackgroundInTheCorners)
{
    const QImage img = noisy(30, 20);
    // Half turns and quarter turns are exact.
    EXPECT_EQ(run(53, run(53, img, {180, 0}), {180, 0}), img);
    EXPECT_EQ(run(53, img, {-180, 1}), turnedQuarters(img, 2));
    FilterArgs fit;
    fit.resizeToFit = true;
    EXPECT_EQ(run(53, img, {90, 0}, fit), turnedQuarters(img, 1));
    EXPECT_EQ(run(53, img, {-90, 1}, fit), turnedQuarters(img, 3));

    // 30 degrees, grown to hold the turned picture: 30 cos + 20 sin = 35.98 -> 36 wide.
    fit.background = RGB(1, 2, 3);
    const QImage grown = run(53, img, {30, 1}, fit);
    EXPECT_EQ(grown.size(), QSize(36, 33));
    EXPECT_EQ(at(grown, 0, 0), RGB(1, 2, 3));
    EXPECT_EQ(at(grown, 35, 32), RGB(1, 2, 3));
    // In the picture's own size the corners take the background, or keep the picture.
    FilterArgs keep;
    keep.background = RGB(1, 2, 3);
    EXPECT_EQ(at(run(53, img, {30, 0}, keep), 0, 0), RGB(1, 2, 3));
    keep.cleanBack = false;
    EXPECT_EQ(run(53, img, {30, 0}, keep).pixel(0, 0), img.pixel(0, 0));
}

TEST_F(Distortions, StretchingScalesAboutTheMiddleAndMayResize)
{
    const QImage img = noisy(20, 12);
    FilterArgs fit;
    fit.resizeToFit = true;
    EXPECT_EQ(run(52, img, {100, -50}, fit).size(), QSize(40, 8));
    EXPECT_EQ(run(52, img, {-200, 300}, fit).size(), QSize(7, 48));
    // In its own size a shrunk picture stands in the middle of the background.
    FilterArgs own;
    own.background = RGB(9, 9, 9);
    const QImage shrunk = run(52, img, {-100, -100}, own);
    EXPECT_EQ(shrunk.size(), img.size());
    EXPECT_EQ(at(shrunk, 0, 0), RGB(9, 9, 9));
    EXPECT_NE(at(shrunk, 10, 6), RGB(9, 9, 9));
}

TEST_F(Distortions, ResultsDoNotDependOnTheThreadCount)
{
    const QImage img = noisy(301, 97);
    const std::vector<std::pair<int, std::vector<int>>> cases = {
        {1000, {20}}, {1008, {10}},   {47, {80, 70}},  {48, {25, 50, 40}}, {49, {150}},
        {49, {-120}}, {50, {60, 90}}, {51, {-90, 70}}, {52, {120, -30}},   {53, {33, 1}}};
    for (const auto &[number, sliders] : cases) {
        s.filters().threads = 1;
        const QImage one = run(number, img, sliders);
        s.filters().threads = 0;
        EXPECT_EQ(run(number, img, sliders), one) << number;
        s.filters().threads = 3;
        EXPECT_EQ(run(number, img, sliders), one) << number;
    }
}

TEST_F(Distortions, AResultPastTheLargestPictureIsAFaultThatLeavesThePicture)
{
    const QImage img = flat(4000, 3, RGB(1, 2, 3));
    FilterArgs fit;
    fit.resizeToFit = true;
    fit.sliders = {300, 0, 0};
    QImage out = img;
    EXPECT_FALSE(DoGraficFilters(s, 52, out, fit));
    EXPECT_EQ(out, img);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("DoGraficFilters [52]  [Overflow]"));
}
