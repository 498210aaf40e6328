// The passepartout generator and demo, the printed page and the tile viewer.
#include "support/files.h"
#include "files/passepartoutfile.h"
#include "paint/session.h"
#include "ui/passepdemo.h"
#include "ui/passepgen.h"
#include "ui/printpreview.h"
#include "ui/tileviewer.h"

#include <QComboBox>
#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;
using namespace tf::ui;

namespace {

struct GenFixture : ::testing::Test {
    QTemporaryDir dir;
    Session session;
    ScriptedPrompter prompter;
    QString path;
    void SetUp() override
    {
        session.setPrompter(&prompter);
        path = ppDataPath(dir.path());
    }
};

} // namespace

TEST_F(GenFixture, MakesRenamesAndDeletesSetsAndWritesThemOnOk)
{
    {
        PassepGen gen(session, path);
        EXPECT_EQ(gen.selection()->count(), 2);
        EXPECT_EQ(gen.selection()->currentText(), QStringLiteral("+ Standard"));
        EXPECT_EQ(gen.fields().width, standardPassepartout().width);
        gen.selection()->setCurrentIndex(0);
        PPRecord r = gen.fields();
        EXPECT_TRUE(r.name.isEmpty());
        EXPECT_FALSE(gen.apply());
        EXPECT_EQ(prompter.lastText(),
                  QStringLiteral("Geben Sie bitte einen Namen für das neue Set ein."));
        r.name = QStringLiteral("Galerie");
        r.width = {5, 40, 0, 0, 0, 0, 2};
        r.colour = {RGB(0, 0, 0), RGB(250, 250, 240), 0, 0, 0, 0, RGB(90, 60, 30)};
        gen.showSet(r);
        ASSERT_TRUE(gen.apply());
        EXPECT_EQ(gen.selection()->currentText(), QStringLiteral("Galerie"));
        gen.selection()->setCurrentIndex(0);
        r.name = QStringLiteral("Atelier");
        gen.showSet(r);
        ASSERT_TRUE(gen.apply());
        // Rename "Galerie" to "Zimmer", delete "Atelier".
        gen.selection()->setCurrentIndex(3);
        PPRecord g = gen.fields();
        g.name = QStringLiteral("Zimmer");
        gen.showSet(g);
        ASSERT_TRUE(gen.apply());
        gen.selection()->setCurrentIndex(2);
        EXPECT_EQ(gen.selection()->currentText(), QStringLiteral("Atelier"));
        gen.deleteSet();
        EXPECT_EQ(gen.selection()->count(), 3);
        EXPECT_FALSE(QFile::exists(path)); // nothing reaches the file before OK
        gen.accept();
    }
    const PPReadResult back = Read_PPData(path);
    ASSERT_TRUE(back.read());
    ASSERT_EQ(back.table.size(), 1u);
    EXPECT_EQ(back.table[0].name, QStringLiteral("Zimmer"));
    EXPECT_EQ(back.table[0].width[1], 40);
    EXPECT_EQ(back.table[0].colour[6], RGB(90, 60, 30));
}

TEST_F(GenFixture, ADamagedFileIsReportedAndKeptUnlessTheUserAgrees)
{
    writeBytes(path, QByteArray("\x0c\x00PPData-Tvl25\x05\x00\x00\x00", 18));
    const QByteArray before = bytesOf(path);
    PassepGen gen(session, path);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Die Passepartout-Datei ist beschädigt (5 Sets "
                                                  "angegeben). Sie bleibt, wie sie ist."));
    EXPECT_EQ(gen.selection()->count(), 2);
    prompter.script({Answer::No});
    gen.accept();
    EXPECT_TRUE(prompter.lastText().contains(QStringLiteral("Soll sie durch die Sets")));
    EXPECT_EQ(bytesOf(path), before);
    prompter.script({Answer::Yes});
    gen.accept();
    EXPECT_TRUE(Read_PPData(path).read());
}

TEST_F(GenFixture, TheDemoShowsThePictureInTheMatAndSavesIt)
{
    session.workspace().Bild.Image(); // the work picture is the demo's picture
    PassepGen gen(session, path);
    EXPECT_TRUE(gen.demoPicture().size() == session.workspace().Bild.Image().size());

    QImage picture(300, 200, QImage::Format_RGB32);
    picture.fill(qRgb(200, 10, 10));
    PasseDemo demo(prompter, 300);
    PPRecord set = standardPassepartout(); // 3 + 56 + 4 = 63 a side
    demo.setPassepartout(set);
    demo.new_PicWidth(150);
    demo.use_ABILD(picture);
    ASSERT_TRUE(demo.paintMat());
    EXPECT_EQ(demo.framed().size(), QSize(150 + 126, 100 + 126));
    EXPECT_EQ(demo.framed().pixel(0, 0), toQRgb(set.colour[6]));
    EXPECT_EQ(demo.framed().pixel(138, 113), qRgb(200, 10, 10));

    const QString out = dir.filePath(QStringLiteral("mat.png"));
    ASSERT_TRUE(demo.saveTo(out, QStringLiteral("PNG")));
    EXPECT_EQ(QImage(out).size(), demo.framed().size());
    // An existing file is overwritten only after a Yes.
    prompter.script({Answer::No});
    EXPECT_FALSE(demo.saveTo(out, QStringLiteral("JPG"), 80));
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Soll die Datei %1 überschrieben werden?").arg(out));
}

TEST(PrintPage, ThePictureTakesTheSizeItsDpiGivesCentredOnThePage)
{
    const QRectF page(0, 0, 2400, 3000); // 8 x 10 inches at 300 dpi
    // 600 x 300 pixels at 150 dpi: 4 x 2 inches.
    EXPECT_EQ(pictureRectOnPage(page, 300, 300, QSize(600, 300), 150, false),
              QRectF(600, 1200, 1200, 600));
    // Fitted to the page: as wide as the page.
    EXPECT_EQ(pictureRectOnPage(page, 300, 300, QSize(600, 300), 150, true),
              QRectF(0, 900, 2400, 1200));
    // Larger than the page at its dpi: brought onto it.
    EXPECT_EQ(pictureRectOnPage(page, 300, 300, QSize(3000, 6000), 300, false),
              QRectF(450, 0, 1500, 3000));
    EXPECT_TRUE(pictureRectOnPage(page, 300, 300, QSize(), 300, false).isEmpty());
}

TEST(PrintPage, APdfPageHoldsThePictureAtItsDpi)
{
    QTemporaryDir dir;
    QImage picture(720, 360, QImage::Format_RGB32);
    picture.fill(qRgb(0, 0, 255));
    PrintJob job;
    job.picture = picture;
    job.dpi = 72; // 10 x 5 inches would not fit a page less margins: brought onto it
    job.title = QStringLiteral("test");
    const QString pdf = dir.filePath(QStringLiteral("page.pdf"));
    ASSERT_TRUE(printJobToPdf(job, pdf));
    const QByteArray bytes = bytesOf(pdf);
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_TRUE(bytes.contains("/Type /Page"));

    // On a writer of 100 dpi without margins a 100 x 50 picture at 50 dpi covers 200 x 100.
    QPdfWriter writer(dir.filePath(QStringLiteral("small.pdf")));
    writer.setResolution(100);
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    job.picture = picture.scaled(100, 50);
    job.dpi = 50;
    const QRectF page(0, 0, writer.width(), writer.height());
    const QRectF at = pictureRectOnPage(page, writer.logicalDpiX(), writer.logicalDpiY(),
                                        job.picture.size(), job.dpi, false);
    EXPECT_DOUBLE_EQ(at.width(), 200);
    EXPECT_DOUBLE_EQ(at.height(), 100);
    EXPECT_DOUBLE_EQ(at.center().x(), writer.width() / 2.0);
    EXPECT_TRUE(paintPrintJob(writer, job));
}

TEST(TileViewer, RepeatsTheWorkPictureFromTheTopLeft)
{
    Session s;
    QImage tile(3, 2, QImage::Format_RGB32);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            tile.setPixel(x, y, qRgb(x * 80, y * 100, 7));
    TileViewer viewer(s);
    viewer.area()->setTile(tile);
    const QImage shown = viewer.area()->render(QSize(10, 7));
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 10; ++x)
            ASSERT_EQ(shown.pixel(x, y), tile.pixel(x % 3, y % 2)) << x << "," << y;
    viewer.area()->setHalfOffset(true);
    EXPECT_EQ(viewer.area()->render(QSize(4, 4)).pixel(0, 0), tile.pixel(1, 1));
    viewer.refresh();
    EXPECT_EQ(viewer.area()->tile().size(), s.workspace().Bild.Image().size());
}
