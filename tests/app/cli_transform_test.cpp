// The command line's picture commands and distortions, run as the built program on a real
// photo: sizes and pixels of what it writes, and its messages for bad arguments.
#include "forgeprocess.h"
#include "support/testdata.h"

#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using forgetest::Outcome;

struct CliTransform : ::testing::Test {
    QTemporaryDir dir;
    QString photo = testdataPath(QStringLiteral("photos/kodak/landscape/kodim01.jpg"));

    QString file(const char *name) const { return dir.filePath(QString::fromLatin1(name)); }
    Outcome forge(const QStringList &args) const
    {
        return forgetest::forge(args + QStringList{QStringLiteral("--lang"), QStringLiteral("en")});
    }
};

} // namespace

TEST_F(CliTransform, TurnsMirrorsSizesAndCropsAPhoto)
{
    TF_REQUIRE_TESTDATA();
    const QImage in = QImage(photo).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(in.size(), QSize(768, 512));
    ASSERT_EQ(forge({"transform", "turn-right", photo, "-o", file("r.png")}).code, 0);
    const QImage turned(file("r.png"));
    EXPECT_EQ(turned.size(), QSize(512, 768));
    ASSERT_EQ(forge({"transform", "turn-left", file("r.png"), "-o", file("back.png")}).code, 0);
    // PNG keeps the pixels: a turn there and back gives the photo.
    EXPECT_EQ(QImage(file("back.png")).convertToFormat(QImage::Format_RGB32), in);

    ASSERT_EQ(forge({"transform", "mirror-v", photo, "-o", file("m.png")}).code, 0);
    EXPECT_EQ(QImage(file("m.png")).pixel(0, 100), in.pixel(767, 100));
    ASSERT_EQ(forge({"transform", "size", "300x200", photo, "-o", file("s.png")}).code, 0);
    EXPECT_EQ(QImage(file("s.png")).size(), QSize(300, 200));
    ASSERT_EQ(forge({"transform", "canvas", "800x600", photo, "--anchor", "top-left", "--back",
                     "#ff0000", "-o", file("c.png")})
                  .code,
              0);
    const QImage canvas(file("c.png"));
    EXPECT_EQ(canvas.size(), QSize(800, 600));
    EXPECT_EQ(canvas.pixel(799, 599), qRgb(255, 0, 0));
    EXPECT_EQ(canvas.pixel(5, 5), in.pixel(5, 5));
    ASSERT_EQ(forge({"transform", "crop", "100,50,200,150", photo, "-o", file("k.png")}).code, 0);
    EXPECT_EQ(QImage(file("k.png")).convertToFormat(QImage::Format_RGB32),
              in.copy(100, 50, 200, 150));
}

TEST_F(CliTransform, DistortionsByNameWithTheirCheckBoxes)
{
    TF_REQUIRE_TESTDATA();
    ASSERT_EQ(forge({"filter", "rotate", photo, "--set", "Angle=30", "--set", "resize=1", "--back",
                     "#00ff00", "-o", file("rot.png")})
                  .code,
              0);
    const QImage rotated(file("rot.png"));
    EXPECT_EQ(rotated.size(), QSize(922, 828));
    EXPECT_EQ(rotated.pixel(0, 0), qRgb(0, 255, 0));
    ASSERT_EQ(forge({"filter", "hourglass", photo, "--set", "Factor=20", "-o", file("h.png")}).code,
              0);
    EXPECT_NE(QImage(file("h.png")).convertToFormat(QImage::Format_RGB32),
              QImage(photo).convertToFormat(QImage::Format_RGB32));
}

TEST_F(CliTransform, BadArgumentsEndWithTheirMessageAndExitCodeTwo)
{
    const Outcome unknown = forge({"transform", "spin", "a.png", "-o", file("x.png")});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err,
              QStringLiteral("tarvelle-forge: Unknown transformation: spin (see --help)\n"));
    const Outcome size = forge({"transform", "size", "300by200", "a.png", "-o", file("x.png")});
    EXPECT_EQ(size.code, 2);
    EXPECT_EQ(size.err, QStringLiteral("tarvelle-forge: Invalid size: 300by200 (WxH)\n"));
    const Outcome box =
        forge({"filter", "rotate", "a.png", "--set", "resize=2", "-o", file("x.png")});
    EXPECT_EQ(box.code, 2);
    const Outcome missing =
        forge({"transform", "turn-right", file("none.png"), "-o", file("x.png")});
    EXPECT_EQ(missing.code, 1);
}
