// The photo cube's paint: the Superformat size check, the picture and the Superformat giving
// the same pixels, a source without photos leaving everything as it was, and Stop.
#include "generators/photocubepaint.h"
#include "generators/photocubepanel.h"
#include "paint/typepanels.h"
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

// ---- the cube from the panel's photo source -------------------------------------------------

#include "support/testdata.h"

#include <QTemporaryDir>

namespace {

// The look a paint with random values off takes from the panel.
tf::CubeLook cubeLookOfPaintFor(tf::Session &s)
{
    tf::PaintContext ctx{s, s.workspace().Bild, s.workspace().BildUndo, s.workspace().BildWork,
                         tf::readOptionVariables(s.controls(), 1, 1)};
    return tf::cubeLookOfPaint(ctx);
}

struct PhotoCubeSourceTest : PaintFixture {
    void source(const QString &path, bool file)
    {
        s.picSources().PicSource = path;
        set("optPicMosaikSource", file ? QStringLiteral("0") : QStringLiteral("1"));
    }
    void superSize(int w, int h)
    {
        set("txtSuperSize", QString::number(w), 0);
        set("txtSuperSize", QString::number(h), 1);
    }
};

TEST_F(PhotoCubeSourceTest, MissingSourcesSayWhatToDoAndLeaveThePicture)
{
    size(160, 120);
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    ground(RGB(9, 99, 199));
    const QImage before = image().copy();
    source(QString(), false);
    paint("Photo-CUBE");
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Stellen Sie bitte zuerst ein Bildverzeichnis "
                                                  "ein!\r\nVerwenden Sie bitte den [...]-Befehl."));
    source(QString(), true);
    paint("Photo-CUBE");
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Wählen Sie bitte zuerst ein Bild aus!\r\nVerwenden Sie bitte den [...]-Befehl."));
    QTemporaryDir empty;
    source(empty.path(), false);
    paint("Photo-CUBE");
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Kann keine gültigen Bilder finden in ") + empty.path());
    EXPECT_EQ(image(), before);
}

TEST_F(PhotoCubeSourceTest, AOnePixelPhotoCoversEveryFace)
{
    QTemporaryDir dir;
    QImage one(1, 1, QImage::Format_RGB32);
    one.fill(qRgb(200, 120, 40));
    ASSERT_TRUE(one.save(dir.filePath(QStringLiteral("one.png"))));
    size(240, 200);
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    set("XPhotoCubeShadow", QStringLiteral("0"));
    for (bool file : {true, false}) {
        source(file ? dir.filePath(QStringLiteral("one.png")) : dir.path(), file);
        ASSERT_EQ(paint("Photo-CUBE"), PaintOutcome::Painted);
        EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
        const CubeScene scene({240, 200}, cubeLookOfPaintFor(s));
        for (CubeFace f : {CubeFace::Top, CubeFace::Left, CubeFace::Right}) {
            const QPointF p = scene.pointOf(f, 0.5, 0.5);
            const QRgb c = image().pixel(int(p.x()), int(p.y()));
            const double k = scene.shade(f, 0.5, 0.5);
            EXPECT_NEAR(qRed(c), 200 * k, 1.5);
            EXPECT_NEAR(qGreen(c), 120 * k, 1.5);
            EXPECT_NEAR(qBlue(c), 40 * k, 1.5);
        }
    }
}

TEST_F(PhotoCubeSourceTest, UnreadablePhotosAreNamedAndPassedOver)
{
    QTemporaryDir dir;
    QFile bad(dir.filePath(QStringLiteral("a_broken.jpg")));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("\xFF\xD8\xFF not a picture");
    bad.close();
    QImage good(8, 8, QImage::Format_RGB32);
    good.fill(qRgb(30, 200, 30));
    ASSERT_TRUE(good.save(dir.filePath(QStringLiteral("b_good.png"))));
    size(160, 120);
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    source(dir.path(), false);
    ASSERT_EQ(paint("Photo-CUBE"), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
    // Every face shows the one photo that could be read.
    const QRgb top = image().pixel(80, 45);
    EXPECT_GT(qGreen(top), 2 * qRed(top));
    // Only broken photos: the message of an empty directory.
    QFile::remove(dir.filePath(QStringLiteral("b_good.png")));
    s.picSources().clear();
    paint("Photo-CUBE");
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Kann keine gültigen Bilder finden in ") + dir.path());
}

TEST_F(PhotoCubeSourceTest, PhotosOfADirectoryPaintTheSameInThePictureAndInSuperformat)
{
    TF_REQUIRE_TESTDATA();
    size(320, 240);
    fixedColours(RGB(0, 0, 0), RGB(240, 236, 228));
    s.colours().RandomValues = true;
    source(testdataPath(QStringLiteral("photos/kodak/landscape")), false);
    ASSERT_EQ(paint("Photo-CUBE", 21), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_EQ(s.picSources().PicCount, 18);
    const QImage picture = image().copy();
    EXPECT_NE(picture.pixel(160, 120), qRgb(240, 236, 228)); // the cube stands in the middle
    EXPECT_EQ(picture.pixel(1, 1), qRgb(240, 236, 228));
    superSize(320, 240);
    ASSERT_EQ(paint("Photo-CUBESuper", 21), PaintOutcome::Painted);
    const cDIBSection &dib = s.superformat().SuperDIB;
    ASSERT_EQ(dib.dib_width(), 320);
    int differ = 0;
    for (int y = 0; y < 240; ++y)
        for (int x = 0; x < 320; ++x)
            differ += fromQRgb(picture.pixel(x, y)) != dib.dib_hdc().pixel(x, y);
    EXPECT_EQ(differ, 0);
    // The same seed paints the same picture again; another seed another one.
    ASSERT_EQ(paint("Photo-CUBE", 21), PaintOutcome::Painted);
    EXPECT_EQ(image(), picture);
    ASSERT_EQ(paint("Photo-CUBE", 22), PaintOutcome::Painted);
    EXPECT_NE(image(), picture);
}

TEST_F(PhotoCubeSourceTest, TheCubeAndTheMosaicReadThePhotoSource)
{
    for (const char *key : {"Photo-CUBE", "Photo-CUBESuper", "PIC-Mosaik", "PIC-MosaikSuper"})
        EXPECT_TRUE(readsPhotoSource(QString::fromLatin1(key))) << key;
    for (const char *key : {"ART-Mondrian", "Backgroundcolor", "Plasma"})
        EXPECT_FALSE(readsPhotoSource(QString::fromLatin1(key))) << key;
}

TEST_F(PhotoCubeSourceTest, AStopDuringTheScanEndsQuietly)
{
    QTemporaryDir dir;
    QImage photo(4, 4, QImage::Format_RGB32);
    photo.fill(qRgb(1, 2, 3));
    ASSERT_TRUE(photo.save(dir.filePath(QStringLiteral("p.png"))));
    size(120, 90);
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    ground(RGB(70, 80, 90));
    const QImage before = image().copy();
    source(dir.path(), false);
    StopAtOnce stop;
    s.setYieldHook(&stop);
    paint("Photo-CUBE");
    s.setYieldHook(nullptr);
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_FALSE(s.picSources().ListValid);
    EXPECT_EQ(image(), before);
}

TEST_F(PhotoCubeSourceTest, SuperformatChecksItsSizeBeforeItLooksForPhotos)
{
    source(QString(), false);
    superSize(0, 500);
    paint("Photo-CUBESuper");
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("0 - sizes not allowed"));
    prompter.clear();
    superSize(6000, 500);
    prompter.script({Answer::Cancel});
    paint("Photo-CUBESuper");
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_TRUE(prompter.lastText().startsWith(QStringLiteral("Diese Bildgröße erfordert")));
    EXPECT_EQ(s.superformat().SuperDIB.hDIB(), 0u);
}

} // namespace
