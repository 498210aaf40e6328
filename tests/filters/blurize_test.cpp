// The 3-D Blurize family: what each routine does at its ends (sharp in focus, the box mean out
// of it, the two pictures on either side of a blend), the same result on any thread count, and
// the command on the picture now and the picture before, with undo.
#include "filterpictures.h"
#include "filters/blurize.h"
#include "filters/dografic.h"

using namespace tf;
using namespace filtertest;

namespace {

struct Blurize : FilterSession {
    QImage run(int selector, const QImage &first, QImage second, std::vector<int> sliders)
    {
        FilterArgs a = blurizeDefaults(*findBlurize(selector));
        for (size_t i = 0; i < sliders.size(); ++i)
            a.sliders[i] = sliders[i];
        EXPECT_TRUE(DoGraficFilters2(s, selector, first, second, a));
        return second;
    }
};

// A checkerboard of black and white pixels.
QImage checker(int w, int h)
{
    QImage img(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            img.setPixel(x, y, (x + y) % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    return img;
}

} // namespace

TEST_F(Blurize, DepthBlurKeepsTheFocusSharpAndAveragesTheRest)
{
    const QImage picture = checker(9, 9);
    // Depth black everywhere, focus 0: nothing to blur.
    EXPECT_EQ(run(1, flat(9, 9, RGB(0, 0, 0)), picture, {10, 0}), picture);
    // Depth white, focus 0, radius 1: each pixel the mean of its 3 x 3 box (cut at the edges).
    const QImage out = run(1, flat(9, 9, RGB(255, 255, 255)), picture, {1, 0});
    // Inside: 4 white of 9 around a black pixel: 1020 / 9 = 113.3 -> 113.
    EXPECT_EQ(rgb(out, 4, 4), (std::array<int, 3>{113, 113, 113}));
    // A corner's box is 2 x 2 with two white: 127.5 -> 128 (rounded half up).
    EXPECT_EQ(rgb(out, 0, 0), (std::array<int, 3>{128, 128, 128}));
    // The focus on white: the white depth is now sharp.
    EXPECT_EQ(run(1, flat(9, 9, RGB(255, 255, 255)), picture, {10, 255}), picture);
}

TEST_F(Blurize, DepthBetweenShowsTheFrontWhereItIsDarkAndTheBlurredBackWhereItIsBright)
{
    const QImage back = checker(8, 8);
    QImage front(8, 8, QImage::Format_RGB32);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            front.setPixel(x, y, x < 4 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    const QImage out = run(2, front, back, {1, 100});
    EXPECT_EQ(out.pixel(1, 3), front.pixel(1, 3));
    // Right: full depth, the back blurred by radius 1.
    EXPECT_EQ(rgb(out, 6, 4), (std::array<int, 3>{113, 113, 113}));
    // Depth 0: the front everywhere.
    EXPECT_EQ(run(2, front, back, {20, 0}), front);
}

TEST_F(Blurize, TheBlendsGoFromOnePictureToTheOther)
{
    const QImage now = flat(50, 10, RGB(200, 0, 0)), before = flat(50, 10, RGB(0, 0, 200));
    // Soft blend along the width, the band in the middle: the before picture on the left.
    const QImage soft = run(3, now, before, {50, 20, 0});
    EXPECT_EQ(at(soft, 0, 5), RGB(0, 0, 200));
    EXPECT_EQ(at(soft, 49, 5), RGB(200, 0, 0));
    const auto middle = rgb(soft, 25, 5);
    EXPECT_GT(middle[0], 60);
    EXPECT_GT(middle[2], 60);
    // Turned by 90 degrees the blend runs down the picture.
    const QImage down = run(3, now, before, {50, 20, 90});
    EXPECT_EQ(at(down, 25, 0), RGB(0, 0, 200));
    EXPECT_EQ(at(down, 25, 9), RGB(200, 0, 0));

    // The brightness blend lets the before picture through where the now picture is bright.
    QImage key(2, 1, QImage::Format_RGB32);
    key.setPixel(0, 0, qRgb(10, 10, 10));
    key.setPixel(1, 0, qRgb(250, 250, 250));
    const QImage keyed = run(4, key, flat(2, 1, RGB(0, 200, 0)), {128, 64});
    EXPECT_EQ(at(keyed, 0, 0), RGB(10, 10, 10));
    EXPECT_EQ(at(keyed, 1, 0), RGB(0, 200, 0));
}

TEST_F(Blurize, ResultsDoNotDependOnTheThreadCountAndOtherSelectorsChangeNothing)
{
    const QImage a = noisy(203, 71), b = noisy(203, 71).mirrored(true, false);
    for (int selector = 1; selector <= 4; ++selector) {
        s.filters().threads = 1;
        const QImage one = run(selector, a, b, {25, 60, 30});
        s.filters().threads = 3;
        EXPECT_EQ(run(selector, a, b, {25, 60, 30}), one) << selector;
        EXPECT_NE(one, b) << selector;
    }
    QImage other = b;
    EXPECT_TRUE(DoGraficFilters2(s, 7, a, other, {}));
    EXPECT_EQ(other, b);
}

TEST_F(Blurize, TheCommandTakesThePictureBeforeAndUndoGivesThePictureNowBack)
{
    Workspace &ws = s.workspace();
    ws.New_BildSize(20, 10);
    ws.Bild.setPicture(flat(20, 10, RGB(0, 0, 200)));
    EXPECT_FALSE(Menu_Blurize(s, 3, blurizeDefaults(*findBlurize(3))));
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Es gibt noch kein Bild vor der letzten Änderung: laden "
                             "oder malen Sie zuerst zwei Bilder nacheinander."));
    ws.Bild_nachUndo();
    const QImage now = flat(20, 10, RGB(200, 0, 0));
    ws.Bild.setPicture(now);
    ASSERT_TRUE(Menu_Blurize(s, 3, blurizeDefaults(*findBlurize(3))));
    EXPECT_EQ(at(ws.Bild.Image(), 0, 5), RGB(0, 0, 200));
    EXPECT_EQ(at(ws.Bild.Image(), 19, 5), RGB(200, 0, 0));
    ws.Menu_UndoRedo();
    EXPECT_EQ(ws.Bild.Image(), now);
}
