// "PIC-Mosaik" through the Paint command, and the frame-by-frame run: frames filled from
// flat-colour photos at known points, each picture once without duplicates, the messages of a
// missing or empty source and of too few or too small pictures with Cancel, unreadable files
// passed over, the one picture of a file source, and the same bytes on one and two threads.
#include "paintfixture.h"

#include "core/dibsection.h"
#include "files/picturefile.h"
#include "generators/framecanvas.h"
#include "generators/mondrianlayout.h"
#include "generators/picmosaik.h"
#include "paint/painter.h"
#include "support/testdata.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <set>

using namespace tf;

namespace {

constexpr ColorLong Ground = 0x00FF00;
constexpr ColorLong Border = 0x123456;

// RGB(r,g,b) as a colour long 0x00BBGGRR.
constexpr ColorLong rgbLong(int r, int g, int b)
{
    return ColorLong(r | (g << 8) | (b << 16));
}

struct PicMosaikTest : PaintFixture {
    QTemporaryDir dir;

    void SetUp() override
    {
        PaintFixture::SetUp();
        ASSERT_TRUE(dir.isValid());
        size(200, 200);
        fixedColours(0x000000, 0xFFFFFF);
        s.colours().ColorBorder = Border;
        ground(Ground);
        // Two equal columns and rows, no subdivision, every frame a picture in list order,
        // each picture once, a pen of 1 (Val("1") * 1.33 rounds to 1).
        set("XPicMosaik", "1", 0);
        set("XPicMosaik", "1", 1);
        set("XPicMosaik", "0", 2);
        set("YPicMosaik_EachRahmen", "1");
        set("XPicMosaik_Duplikate", "0");
        set("XPicMosaik_MixSlots", "0");
        set("optPicMosaikSource", "1");
        set("cmbPen", "1");
        set("XBorders", "1");
        s.picSources().PicSource = dir.path();
    }
    // A photo of one colour, written as PNG so that its colour stays exact.
    void photo(const char *name, int w, int h, QColor c)
    {
        QImage img(w, h, QImage::Format_RGB32);
        img.fill(c);
        ASSERT_TRUE(savePicture(img, dir.filePath(QLatin1String(name)), QStringLiteral("PNG")).ok());
    }
    QPoint centre(const MondrianFrame &f) const
    {
        return QPoint((f.left + f.right) / 2, (f.top + f.bottom) / 2);
    }
    std::vector<MondrianFrame> frames() { return mondrianFrames(s.mondrian()); }
    QString lastPrompt() const
    {
        return prompter.asked().empty() ? QString() : prompter.asked().back().text;
    }
};

} // namespace

TEST_F(PicMosaikTest, EachFrameTakesItsFlatPhotoOnceInListOrderWithTheFrameLines)
{
    photo("a.png", 150, 120, QColor(200, 0, 0));
    photo("b.png", 120, 150, QColor(0, 0, 200));
    photo("c.png", 300, 300, QColor(250, 250, 0));
    photo("d.png", 100, 100, QColor(0, 100, 100));
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty()) << lastPrompt().toStdString();
    const std::vector<MondrianFrame> fs = frames();
    ASSERT_EQ(fs.size(), 4u);
    const ColorLong expected[] = {rgbLong(200, 0, 0), rgbLong(0, 0, 200), rgbLong(250, 250, 0),
                                  rgbLong(0, 100, 100)};
    for (size_t i = 0; i < fs.size(); ++i) {
        const QPoint c = centre(fs[i]);
        EXPECT_EQ(at(c.x(), c.y()), expected[i]) << "frame " << i;
        // The frame's inner corners are picture too; its top and left lines the border colour.
        EXPECT_EQ(at(fs[i].left + 1, fs[i].top + 1), expected[i]) << "frame " << i;
        EXPECT_EQ(at(fs[i].right - 2, fs[i].bottom - 2), expected[i]) << "frame " << i;
        EXPECT_EQ(at(fs[i].left, c.y()), Border) << "frame " << i;
        EXPECT_EQ(at(c.x(), fs[i].top), Border) << "frame " << i;
    }
    // The closing lines at the right and the bottom.
    EXPECT_EQ(at(199, 50), Border);
    EXPECT_EQ(at(50, 199), Border);
    EXPECT_EQ(s.picSources().PicCount, 4);
    EXPECT_TRUE(s.picSources().ListValid);
}

TEST_F(PicMosaikTest, AMissingOrEmptySourceSaysSoAndLeavesThePictureCleared)
{
    s.picSources().PicSource.clear();
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_EQ(lastPrompt(), QStringLiteral("Stellen Sie bitte zuerst ein Bildverzeichnis ein!\r\n"
                                           "Verwenden Sie bitte den [...]-Befehl."));
    set("optPicMosaikSource", "0");
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_EQ(lastPrompt(), QStringLiteral("Wählen Sie bitte zuerst ein Bild aus!\r\n"
                                           "Verwenden Sie bitte den [...]-Befehl."));

    // A directory without pictures (a text file is no picture).
    set("optPicMosaikSource", "1");
    QFile text(dir.filePath(QStringLiteral("notes.txt")));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.close();
    s.picSources().PicSource = dir.path();
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_EQ(lastPrompt(), QStringLiteral("Kann keine gültigen Bilder finden in ") + dir.path());
    EXPECT_EQ(prompter.asked().back().icon, Icon::Exclamation);
    for (int y = 0; y < 200; y += 13)
        for (int x = 0; x < 200; x += 13)
            ASSERT_EQ(at(x, y), Ground) << x << "," << y;
}

TEST_F(PicMosaikTest, MoreFramesThanPicturesWithoutDuplicatesIsRefusedBeforeAnyFrame)
{
    photo("a.png", 200, 200, Qt::red);
    photo("b.png", 200, 200, Qt::blue);
    photo("c.png", 200, 200, Qt::yellow);
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_EQ(lastPrompt(),
              QStringLiteral("Anzahl Bilder 3 in Verzeichnisauswahl kleiner als Anzahl Rahmen 4. "
                             "Reduzieren Sie die Splitanzahl oder verwenden Sie die Option [X] "
                             "Duplikate zulassen!"));
    EXPECT_EQ(at(100, 100), Ground);
}

TEST_F(PicMosaikTest, PicturesTooSmallAreSkippedAndCancelEndsWithTheFramesFilledSoFar)
{
    // Frames of 100 x 100: a and d fill theirs, b and c are too small. Frame 1 takes a,
    // frame 2 passes b and c and takes d, frame 3 finds the list used up.
    photo("a.png", 120, 120, QColor(200, 0, 0));
    photo("b.png", 30, 30, QColor(0, 0, 200));
    photo("c.png", 40, 20, QColor(0, 0, 200));
    photo("d.png", 140, 110, QColor(0, 150, 0));
    prompter.script({Answer::Cancel});
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.asked()[0].text,
              QStringLiteral("Die Bilder in ") + dir.path() +
                  QStringLiteral(" sind zu klein für den aktuellen Ausschnitt! Verwenden Sie die "
                                 "Option: Kleine Bilder zulassen."));
    EXPECT_EQ(prompter.asked()[0].buttons, Buttons::RetryCancel);
    const std::vector<MondrianFrame> fs = frames();
    EXPECT_EQ(at(centre(fs[0]).x(), centre(fs[0]).y()), rgbLong(200, 0, 0));
    EXPECT_EQ(at(centre(fs[1]).x(), centre(fs[1]).y()), rgbLong(0, 150, 0));
    EXPECT_EQ(at(centre(fs[2]).x(), centre(fs[2]).y()), Ground);
    EXPECT_EQ(at(centre(fs[3]).x(), centre(fs[3]).y()), Ground);
}

TEST_F(PicMosaikTest, EveryPictureTooSmallWithDuplicatesAsksOnceAndCancelLeavesTheFramesEmpty)
{
    set("XPicMosaik_Duplikate", "1");
    set("XPicMosaik_MixSlots", "1");
    photo("a.png", 20, 20, Qt::red);
    photo("b.png", 30, 30, Qt::blue);
    prompter.script({Answer::Retry, Answer::Retry});
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    // Retry once; a Retry that found nothing is not asked again.
    EXPECT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(at(100, 100), Ground);

    // "Kleine Bilder zulassen" with "Kleine Bilder kacheln" tiles them over the frames.
    set("XPicMosaik_UseSmallPics", "1", 0);
    set("XPicMosaik_UseSmallPics", "1", 1);
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_EQ(prompter.asked().size(), 1u);
    for (const MondrianFrame &f : frames()) {
        const ColorLong c = at(f.left + 2, f.top + 2);
        EXPECT_TRUE(c == rgbLong(255, 0, 0) || c == rgbLong(0, 0, 255));
        EXPECT_EQ(at(f.right - 2, f.bottom - 2), c) << "tiled to the frame's far corner";
    }
}

TEST_F(PicMosaikTest, WithoutDuplicatesTheMixUsesEveryPictureOnce)
{
    set("XPicMosaik_MixSlots", "1");
    const QColor colours[] = {QColor(250, 0, 0), QColor(0, 250, 0), QColor(0, 0, 250),
                              QColor(250, 250, 0)};
    const char *names[] = {"a.png", "b.png", "c.png", "d.png"};
    for (int i = 0; i < 4; ++i)
        photo(names[i], 110, 110, colours[i]);
    ASSERT_EQ(paint("PIC-Mosaik", 7), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    std::set<ColorLong> seen;
    for (const MondrianFrame &f : frames())
        seen.insert(at(centre(f).x(), centre(f).y()));
    EXPECT_EQ(seen.size(), 4u);
}

TEST_F(PicMosaikTest, AnUnreadableFileIsPassedOverWithItsNameInTheStatusBar)
{
    TF_REQUIRE_TESTDATA();
    set("XPicMosaik_Duplikate", "1");
    // A JPEG cut short: its header promises a picture its data does not hold.
    QFile full(testdataPath(QStringLiteral("photos/kodak/landscape/kodim01.jpg")));
    ASSERT_TRUE(full.open(QIODevice::ReadOnly));
    const QByteArray bytes = full.readAll();
    QFile cut(dir.filePath(QStringLiteral("a.jpg")));
    ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
    cut.write(bytes.left(bytes.size() / 3));
    cut.close();
    QFile garbage(dir.filePath(QStringLiteral("b.jpg")));
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
    garbage.write("not a picture at all");
    garbage.close();
    photo("c.png", 120, 120, QColor(0, 0, 200));
    RecordingStatus status;
    s.setStatus(&status);
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    for (const MondrianFrame &f : frames())
        EXPECT_EQ(at(centre(f).x(), centre(f).y()), rgbLong(0, 0, 200));
    s.setStatus(nullptr);
}

TEST_F(PicMosaikTest, AFileSourceShowsEachFrameItsOwnPartOfThePicture)
{
    // The left half red, the right half blue: laid over the layout, the left frames are red.
    QImage img(400, 400, QImage::Format_RGB32);
    img.fill(QColor(255, 0, 0));
    for (int y = 0; y < 400; ++y)
        for (int x = 200; x < 400; ++x)
            img.setPixelColor(x, y, QColor(0, 0, 255));
    const QString file = dir.filePath(QStringLiteral("one.png"));
    ASSERT_TRUE(savePicture(img, file, QStringLiteral("PNG")).ok());
    set("optPicMosaikSource", "0");
    s.picSources().PicSource = file;
    ASSERT_EQ(paint("PIC-Mosaik"), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_EQ(at(40, 50), rgbLong(255, 0, 0));
    EXPECT_EQ(at(40, 150), rgbLong(255, 0, 0));
    EXPECT_EQ(at(160, 50), rgbLong(0, 0, 255));
    EXPECT_EQ(at(160, 150), rgbLong(0, 0, 255));
}

namespace {

// A layout of real photos painted by the run itself into a surface.
QByteArray runOnThreads(Session &s, int threads, int lookahead)
{
    Workspace &ws = s.workspace();
    PaintContext ctx{s, ws.Bild, ws.BildUndo, ws.BildWork, {}};
    cDIBSection dib;
    EXPECT_TRUE(dib.Create(420, 300, 0xFFFFFF));
    DibCanvas canvas(dib);
    s.seed(99);
    PicMosaikCall call = picMosaikCallFromPanel(ctx, QSize(420, 300), false);
    PicMosaikRun run(ctx, call);
    run.setThreads(threads);
    run.setLookahead(lookahead);
    EXPECT_TRUE(run.start(canvas));
    int painted = 0;
    while (run.paintNext(canvas))
        ++painted;
    run.finish(canvas);
    EXPECT_TRUE(run.full());
    EXPECT_GT(painted, 20);
    const DibView v = dib.view();
    return QByteArray(reinterpret_cast<const char *>(v.data), qsizetype(v.byteCount()));
}

} // namespace

TEST_F(PicMosaikTest, TheSameSeedGivesTheSameBytesOnOneAndTwoThreads)
{
    TF_REQUIRE_TESTDATA();
    s.picSources().PicSource = testdataPath(QStringLiteral("photos/kodak"));
    set("XPicMosaikSubDirs", "1");
    set("XPicMosaik_Duplikate", "1");
    set("XPicMosaik_MixSlots", "1");
    set("XPicMosaikCenterPics", "0");
    set("XPicMosaik", "0", 0);
    set("XPicMosaik", "1", 2);
    set("txtPMKachel", "6", 0);
    set("txtPMKachel", "5", 1);
    set("cmbPicMosaik_Options", "4");
    const QByteArray one = runOnThreads(s, 1, 48);
    const QByteArray two = runOnThreads(s, 2, 48);
    const QByteArray stepwise = runOnThreads(s, 2, 1);
    EXPECT_TRUE(one == two);
    EXPECT_TRUE(one == stepwise);
}

namespace {

struct RefusingMemory : SurfaceAllocator {
    bool create(cDIBSection &, int, int, ColorLong) override { return false; }
};

} // namespace

TEST_F(PicMosaikTest, TheSuperformatAsksAboutLargeFramesAndLargeSizesAndHoldsTheSize)
{
    photo("a.png", 120, 120, QColor(200, 0, 0));
    set("XPicMosaik_Duplikate", "1");
    set("XPicMosaik", "0", 0);
    set("XPicMosaik", "0", 1);
    set("XBorders", "0");
    set("txtSuperSize", "0", 0);
    set("txtSuperSize", "300", 1);
    ASSERT_EQ(paint("PIC-MosaikSuper"), PaintOutcome::Painted);
    EXPECT_EQ(lastPrompt(), QStringLiteral("0 - sizes not allowed"));

    // 5000 x 3000 in 2 x 2 splits: frames of 2500 x 1500 pixels. Yes ends before a surface.
    set("txtSuperSize", "5000", 0);
    set("txtSuperSize", "3000", 1);
    prompter.script({Answer::Yes});
    ASSERT_EQ(paint("PIC-MosaikSuper"), PaintOutcome::Painted);
    EXPECT_EQ(lastPrompt(), QStringLiteral("Diese Aufteilung ergibt sehr große Einzelbildgrößen."
                                           "\r\nSplitvorschlag: H-Splits = 7 / V-Splits = 5\r\n"
                                           "Wollen Sie abbrechen?"));
    EXPECT_FALSE(s.superformat().hasPicture());
    // No: then the confirmation of a side above 4600; Cancel ends.
    prompter.script({Answer::No, Answer::Cancel});
    const size_t before = prompter.asked().size();
    ASSERT_EQ(paint("PIC-MosaikSuper"), PaintOutcome::Painted);
    ASSERT_EQ(prompter.asked().size(), before + 2);
    EXPECT_TRUE(lastPrompt().startsWith(QStringLiteral("Diese Bildgröße erfordert einige "
                                                       "Berechnungszeit.")));
    EXPECT_FALSE(s.superformat().hasPicture());

    // A small size is held to 128 a side, and the frames are painted into the surface.
    set("txtSuperSize", "40", 0);
    set("txtSuperSize", "600", 1);
    ASSERT_EQ(paint("PIC-MosaikSuper"), PaintOutcome::Painted);
    ASSERT_TRUE(s.superformat().hasPicture());
    const cDIBSection &dib = s.superformat().SuperDIB;
    EXPECT_EQ(dib.dib_width(), 128);
    EXPECT_EQ(dib.dib_height(), 600);
    const ConstDibView v = dib.view();
    const uint8_t *middle = v.row(150) + 30 * 3; // a point inside the bottom left frame
    EXPECT_EQ(middle[2], 200);
    EXPECT_EQ(middle[1], 0);
    EXPECT_EQ(middle[0], 0);

    // No memory for the surface: the Superformat's own message.
    RefusingMemory refusing;
    s.superformat().setAllocator(&refusing);
    set("txtSuperSize", "300", 0);
    ASSERT_EQ(paint("PIC-MosaikSuper"), PaintOutcome::Painted);
    EXPECT_EQ(lastPrompt(), QStringLiteral("Memory problem creating Superimage!"));
    s.superformat().setAllocator(nullptr);
}
