// The photo cube's paint: the Superformat size check, the picture and the Superformat giving
// the same pixels, a source without photos leaving everything as it was, and Stop.
#include "generators/photocubepaint.h"
#include "generators/photocubepanel.h"
#include "paint/painter.h"

#include "paintfixture.h"

using namespace tf;

namespace {

// Three flat photos, counted.
struct FlatPhotos : CubePhotoSource {
    bool give = true;
    int asked = 0;
    int lastSide = 0;
    bool facesFor(PaintContext &, int faceSide, std::array<QImage, 3> &faces) override
    {
        ++asked;
        lastSide = faceSide;
        if (!give) return false;
        const QRgb colours[3] = {qRgb(220, 200, 60), qRgb(40, 160, 90), qRgb(60, 90, 200)};
        for (int i = 0; i < 3; ++i) {
            faces[size_t(i)] = QImage(4, 4, QImage::Format_RGB32);
            faces[size_t(i)].fill(colours[i]);
            faces[size_t(i)].setPixel(1, 2, qRgb(255, 255, 255)); // not quite flat
        }
        return true;
    }
};

// Asks to stop at the first look at the input.
struct StopAtOnce : YieldHook {
    bool yield() override { return true; }
};

struct PhotoCubePaintTest : PaintFixture {
    FlatPhotos photos;

    PaintContext context(int w, int h)
    {
        return PaintContext{s, s.workspace().Bild, s.workspace().BildUndo, s.workspace().BildWork,
                            readOptionVariables(s.controls(), w, h)};
    }
    void superSize(const QString &w, const QString &h)
    {
        set("txtSuperSize", w, 0);
        set("txtSuperSize", h, 1);
    }
    const QString longPaintText = QStringLiteral(
        "Diese Bildgröße erfordert einige Berechnungszeit. Sorgen Sie bitte unbedingt dafür, daß "
        "die Quellbilder groß genug für dieses Mosaik sind, oder aktivieren Sie die Option [] "
        "Kleine Bilder zulassen!");
};

TEST_F(PhotoCubePaintTest, PictureAndSuperformatGiveTheSamePixelsAtTheSameSize)
{
    size(300, 220);
    fixedColours(RGB(0, 0, 0), RGB(235, 230, 220));
    s.colours().RandomValues = true; // the same random look both times
    s.seed(11);
    PaintContext ctx = context(300, 220);
    Draw_Photo_CUBE(ctx, photos, false);
    const QImage picture = image().copy();
    s.seed(11);
    PaintContext superCtx = context(300, 220);
    Draw_Photo_CUBE(superCtx, photos, true, QSize(300, 220));
    const cDIBSection &dib = s.superformat().SuperDIB;
    ASSERT_EQ(dib.dib_width(), 300);
    ASSERT_EQ(dib.dib_height(), 220);
    int differ = 0;
    for (int y = 0; y < 220; ++y)
        for (int x = 0; x < 300; ++x)
            differ += fromQRgb(picture.pixel(x, y)) != dib.dib_hdc().pixel(x, y);
    EXPECT_EQ(differ, 0);
    EXPECT_EQ(photos.asked, 2);
    EXPECT_GT(photos.lastSide, 40);
    // The cube stands on the ground colour.
    EXPECT_EQ(picture.pixel(0, 0), qRgb(235, 230, 220));
    EXPECT_TRUE(prompter.asked().empty());
    // The picture on screen was not touched by the Superformat paint.
    EXPECT_EQ(image(), picture);
}

TEST_F(PhotoCubePaintTest, SuperformatSizesAreCheckedAsTheMosaicChecksThem)
{
    // A side below 1: the message, nothing painted, no photo asked for.
    superSize(QStringLiteral("0"), QStringLiteral("600"));
    EXPECT_FALSE(checkPhotoCubeSuperSize(s).has_value());
    EXPECT_EQ(prompter.lastText(), QStringLiteral("0 - sizes not allowed"));
    // Above 4600 a side: a confirmation; Cancel ends.
    prompter.clear();
    superSize(QStringLiteral("5000"), QStringLiteral("100"));
    prompter.script({Answer::Cancel});
    EXPECT_FALSE(checkPhotoCubeSuperSize(s).has_value());
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.asked()[0].text, longPaintText);
    EXPECT_EQ(prompter.asked()[0].buttons, Buttons::OkCancel);
    // OK goes on, with each side clamped to 128..14000.
    prompter.clear();
    prompter.script({Answer::Ok});
    superSize(QStringLiteral("20000"), QStringLiteral("100"));
    const auto size = checkPhotoCubeSuperSize(s);
    ASSERT_TRUE(size.has_value());
    EXPECT_EQ(*size, QSize(14000, 128));
    // Sizes up to 4600 go without a question.
    prompter.clear();
    superSize(QStringLiteral("4600"), QStringLiteral("4600"));
    EXPECT_EQ(checkPhotoCubeSuperSize(s), QSize(4600, 4600));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(PhotoCubePaintTest, NoPhotosLeaveThePictureAndTheSurfaceAsTheyWere)
{
    size(200, 150);
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    ground(RGB(12, 34, 56));
    const QImage before = image().copy();
    photos.give = false;
    PaintContext ctx = context(200, 150);
    Draw_Photo_CUBE(ctx, photos, false);
    EXPECT_EQ(image(), before);
    Draw_Photo_CUBE(ctx, photos, true, QSize(200, 150));
    EXPECT_EQ(s.superformat().SuperDIB.hDIB(), 0u);
    EXPECT_EQ(photos.asked, 2);
}

TEST_F(PhotoCubePaintTest, StopLeavesTheRowsPaintedSoFar)
{
    size(200, 140);
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    set("scrollPhotoCube", QStringLiteral("90"), 0); // a cube over all three bands of rows
    set("XPhotoCubeShadow", QStringLiteral("0"));
    StopAtOnce stop;
    s.setYieldHook(&stop);
    PaintContext ctx = context(200, 140);
    Draw_Photo_CUBE(ctx, photos, false);
    s.setYieldHook(nullptr);
    // The first band is painted (the cube's top reaches into it), the rest is the cleared
    // picture.
    bool firstBandPainted = false;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 200; ++x)
            firstBandPainted = firstBandPainted || image().pixel(x, y) != qRgb(255, 255, 255);
    EXPECT_TRUE(firstBandPainted);
    for (int y = 64; y < 140; ++y)
        for (int x = 0; x < 200; ++x)
            ASSERT_EQ(image().pixel(x, y), qRgb(255, 255, 255)) << x << "," << y;
}

} // namespace
