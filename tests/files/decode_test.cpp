// The decoders on the shared test files, against Qt's own readers, and the size rules of the
// load pipeline.
#include "support/files.h"
#include "support/testdata.h"

#include "core/dibsection.h"
#include "files/decode.h"
#include "files/jpegcodec.h"
#include "files/picturefile.h"
#include "files/pngcodec.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

using namespace tf;

namespace {

QStringList filesIn(const QString &relative)
{
    QStringList out;
    QDirIterator it(testdataPath(relative), QDir::Files);
    while (it.hasNext())
        out << it.next();
    out.sort();
    return out;
}

// What Qt's reader shows, alpha stripped as ours strips it. A pixel that is wholly
// transparent carries no colour of its own in Qt's picture (a tRNS key colour comes back as
// transparent black): it is given the colour of ours, so that it does not count.
QImage qtDecode(const QString &path, bool autoTransform, const QImage &ours)
{
    QImageReader reader(path);
    reader.setAutoTransform(autoTransform);
    reader.setAllocationLimit(1024);
    QImage image = reader.read();
    if (image.isNull())
        return image;
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = qAlpha(row[x]) == 0 && ours.size() == image.size() ? ours.pixel(x, y)
                                                                         : row[x] | 0xFF000000u;
    }
    return image.convertToFormat(QImage::Format_RGB32);
}

// The largest difference of one colour channel between two pictures of one size.
int maxDifference(const QImage &a, const QImage &b)
{
    int worst = 0;
    for (int y = 0; y < a.height(); ++y) {
        const auto *ra = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *rb = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            worst = std::max({worst, std::abs(qRed(ra[x]) - qRed(rb[x])),
                              std::abs(qGreen(ra[x]) - qGreen(rb[x])),
                              std::abs(qBlue(ra[x]) - qBlue(rb[x]))});
        }
    }
    return worst;
}

double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const auto *ra = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *rb = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qRed(ra[x]) - qRed(rb[x])) + std::abs(qGreen(ra[x]) - qGreen(rb[x])) +
                   std::abs(qBlue(ra[x]) - qBlue(rb[x]));
    }
    return sum / (3.0 * a.width() * a.height());
}

QByteArray pngOf(const QImage &image)
{
    cDIBSection dib;
    dib.CreateFromPicture(image);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(SavePNG(dib, buffer));
    return buffer.data();
}

// A picture whose every pixel is told apart from its neighbours.
QImage ramp(int w, int h)
{
    QImage image(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            image.setPixel(x, y, qRgb(x * 255 / std::max(1, w - 1), y * 255 / std::max(1, h - 1), (x ^ y) & 0xFF));
    return image;
}

} // namespace

TEST(Decoders, EveryGoodFileLoadsAsQtShowsIt)
{
    TF_REQUIRE_TESTDATA();
    // The most a channel may differ: PNG's 16-bit samples are rounded a little differently.
    const struct {
        const char *folder;
        int tolerance;
        bool upright;
    } kinds[] = {
        {"images/png/good", 1, false},
        {"images/bmp/good", 0, false},
        {"images/gif/good", 0, false},
        {"images/jpeg/good", 2, true},
    };
    int compared = 0;
    for (const auto &k : kinds) {
        const QStringList files = filesIn(QString::fromLatin1(k.folder));
        EXPECT_FALSE(files.isEmpty()) << k.folder;
        for (const QString &path : files) {
            const LoadResult r = LoadImage(path, LoadLimit::KeepSize);
            ASSERT_TRUE(r.loaded()) << path.toStdString() << ": " << r.detail.toStdString();
            ASSERT_EQ(r.image.format(), QImage::Format_RGB32);
            // Qt's reader gives 16-bit RGB files with a tRNS key colour partly transparent
            // pixels one place off (libpng's own expansion, which ours is, does not); those two
            // are seen to load, not compared.
            if (path.endsWith(QLatin1String("tbbn2c16.png")) ||
                path.endsWith(QLatin1String("tbgn2c16.png")))
                continue;
            const QImage qt = qtDecode(path, k.upright, r.image);
            if (qt.isNull())
                continue; // a file Qt's reader leaves out
            ASSERT_EQ(r.image.size(), qt.size()) << path.toStdString();
            EXPECT_LE(maxDifference(r.image, qt), k.tolerance) << path.toStdString();
            ++compared;
        }
    }
    EXPECT_GT(compared, 250);
}

TEST(Decoders, BadAndQuestionableFilesLoadOrAreRefusedWithAReason)
{
    TF_REQUIRE_TESTDATA();
    int refused = 0;
    for (const char *folder :
         {"images/png/bad", "images/png/questionable", "images/bmp/bad", "images/bmp/questionable",
          "images/jpeg/bad", "images/jpeg/questionable", "images/gif/bad",
          "images/gif/questionable"}) {
        for (const QString &path : filesIn(QString::fromLatin1(folder))) {
            for (LoadLimit limit : {LoadLimit::Box, LoadLimit::KeepSize}) {
                const LoadResult r = LoadImage(path, limit);
                if (r.loaded()) {
                    EXPECT_LE(r.image.width(), 14000) << path.toStdString();
                    EXPECT_LE(r.image.height(), 14000) << path.toStdString();
                } else {
                    EXPECT_EQ(r.status, LoadResult::Status::Corrupt) << path.toStdString();
                    EXPECT_FALSE(r.detail.isEmpty()) << path.toStdString();
                    ++refused;
                }
            }
        }
    }
    EXPECT_GT(refused, 60);
}

TEST(Decoders, DeclaredSizesAreCheckedBeforeAnythingIsMade)
{
    TF_REQUIRE_TESTDATA();
    // 65535 x 65535 in 186 bytes.
    const LoadResult huge = LoadImage(testdataPath(QStringLiteral("images/jpeg/bad/jd-max_size.jpg")));
    EXPECT_EQ(huge.status, LoadResult::Status::Corrupt);

    // A good PNG whose header is made to claim 20000 pixels a side, and one claiming more rows
    // than its data can hold.
    QByteArray png = pngOf(ramp(40, 30));
    QByteArray wide = png;
    qToBigEndian<quint32>(20000, wide.data() + 16);
    const Decoded d = decodePng(wide);
    EXPECT_FALSE(d.ok());
    EXPECT_EQ(d.detail, decodetext::tooLarge(QSize(20000, 30)));
    QByteArray tall = png;
    qToBigEndian<quint32>(12000, tall.data() + 16);
    qToBigEndian<quint32>(12000, tall.data() + 20);
    EXPECT_EQ(decodePng(tall).detail, decodetext::claimsTooMuch(QSize(12000, 12000)));

    // A BMP claiming 5000 x 5000 uncompressed pixels in a few bytes.
    QByteArray bmp(64, '\0');
    bmp[0] = 'B';
    bmp[1] = 'M';
    qToLittleEndian<quint32>(40, bmp.data() + 14);
    qToLittleEndian<qint32>(5000, bmp.data() + 18);
    qToLittleEndian<qint32>(5000, bmp.data() + 22);
    qToLittleEndian<quint16>(24, bmp.data() + 28);
    EXPECT_EQ(decodeBmp(bmp).detail, decodetext::claimsTooMuch(QSize(5000, 5000)));

    EXPECT_EQ(decodePicture(QByteArray("no picture at all")).detail, decodetext::noPicture());
    EXPECT_EQ(decodePicture(QByteArray()).detail, decodetext::noPicture());
}

TEST(Decoders, TheLimitIsTakenWholeOnePixelMoreIsReducedIntoTheBox)
{
    const QByteArray exact = pngOf(ramp(1600, 1600));
    const Decoded whole = decodePng(exact);
    ASSERT_TRUE(whole.ok());
    EXPECT_EQ(whole.image.size(), QSize(1600, 1600));
    EXPECT_EQ(whole.image, ramp(1600, 1600));

    const Decoded reduced = decodePng(pngOf(ramp(1601, 1600)));
    ASSERT_TRUE(reduced.ok());
    EXPECT_EQ(reduced.stored, QSize(1601, 1600));
    EXPECT_EQ(reduced.image.size(), QSize(1600, 1599));

    DecodeRequest keep;
    keep.reduce = false;
    EXPECT_EQ(decodePng(pngOf(ramp(1601, 1600)), keep).image.size(), QSize(1601, 1600));
}

TEST(Decoders, AReducedJpegLooksAsTheFullDecodeWould)
{
    // A smooth picture of 3400 x 2000, saved as JPEG: the load decodes it at 1/2 and resamples
    // into 1600 x 941; the full decode resampled the same way is the yardstick.
    QImage big(3400, 2000, QImage::Format_RGB32);
    for (int y = 0; y < big.height(); ++y)
        for (int x = 0; x < big.width(); ++x)
            big.setPixel(x, y, qRgb((x / 7) & 0xFF, (y / 5) & 0xFF, ((x + y) / 13) & 0xFF));
    cDIBSection dib;
    dib.CreateFromPicture(big);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(SaveJPG(dib, buffer, 95));

    EXPECT_EQ(jpegScaleFor(QSize(3400, 2000), QSize(1600, 941)), 2);
    EXPECT_EQ(jpegScaleFor(QSize(6000, 4000), QSize(1600, 1067)), 2);
    EXPECT_EQ(jpegScaleFor(QSize(12800, 12800), QSize(1600, 1600)), 8);
    EXPECT_EQ(jpegScaleFor(QSize(12792, 12800), QSize(1600, 1600)), 4);

    const Decoded reduced = decodeJpeg(buffer.data());
    ASSERT_TRUE(reduced.ok());
    EXPECT_EQ(reduced.image.size(), QSize(1600, 941));
    DecodeRequest keep;
    keep.reduce = false;
    const Decoded full = decodeJpeg(buffer.data(), keep);
    ASSERT_EQ(full.image.size(), QSize(3400, 2000));
    cDIBSection fullDib;
    fullDib.CreateFromPicture(full.image);
    const auto yardstick = fullDib.Resample(1600, 941);
    QImage expected(1600, 941, QImage::Format_RGB32);
    DeviceContext to(&expected, false);
    yardstick->PaintPicture(to, 0, 0);
    EXPECT_LT(meanDifference(reduced.image, expected), 1.5);
}

TEST(Decoders, ExifOrientationTurnsThePictureUpright)
{
    TF_REQUIRE_TESTDATA();
    const QImage upright = LoadImage(testdataPath(QStringLiteral("images/jpeg/good/pillow-hopper.jpg"))).image;
    for (const char *name : {"pillow-hopper_orientation_3.jpg", "pillow-hopper_orientation_6.jpg",
                             "pillow-hopper_orientation_8.jpg"}) {
        const QImage turned =
            LoadImage(testdataPath(QStringLiteral("images/jpeg/good/") + QLatin1String(name))).image;
        ASSERT_EQ(turned.size(), upright.size()) << name;
        EXPECT_LT(meanDifference(turned, upright), 6.0) << name;
    }
}

TEST(Decoders, TheContentTellsTheKindNotTheName)
{
    const QByteArray png = pngOf(ramp(6, 6));
    EXPECT_EQ(sniffPicture(png), PictureKind::Png);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("really-png.jpg"));
    writeBytes(path, png);
    const LoadResult r = LoadImage(path);
    ASSERT_TRUE(r.loaded());
    EXPECT_EQ(r.image, ramp(6, 6));
    EXPECT_EQ(LoadImage(dir.filePath(QStringLiteral("gone.png"))).status,
              LoadResult::Status::Missing);
}

TEST(Decoders, PngHeaderSizeWithoutRows)
{
    TF_REQUIRE_TESTDATA();
    int w = 0, h = 0;
    EXPECT_TRUE(PNG_GetSize(testdataPath(QStringLiteral("images/png/good/PngSuite.png")), w, h));
    EXPECT_EQ(QSize(w, h), QSize(256, 256));
    EXPECT_FALSE(PNG_GetSize(testdataPath(QStringLiteral("images/jpeg/good/pillow-hopper.jpg")), w, h));
    QImage image;
    EXPECT_TRUE(PNG_Read(testdataPath(QStringLiteral("images/png/good/basn2c08.png")), image));
    cDIBSection dib;
    EXPECT_TRUE(PNG_ReadDIB(dib, testdataPath(QStringLiteral("images/png/good/basn2c08.png"))));
    ASSERT_EQ(QSize(dib.dib_width(), dib.dib_height()), image.size());
    // The surface is bottom-up: its last memory row is the picture's top row.
    const uint8_t *top = dib.view().row(dib.dib_height() - 1);
    EXPECT_EQ(qRgb(top[2], top[1], top[0]), image.pixel(0, 0));
}
