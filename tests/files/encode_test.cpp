// The encoders: the bytes of the files they write.
#include "support/pngchunks.h"
#include "core/dibsection.h"
#include "files/bmpwriter.h"
#include "files/decode.h"
#include "files/jpegcodec.h"
#include "files/picturefile.h"
#include "files/pngcodec.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

using namespace tf;
using pngtest::Chunk;
using pngtest::chunksOf;

namespace {

QImage testPicture(int w, int h)
{
    QImage image(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            image.setPixel(x, y, qRgb(x * 40 % 256, y * 60 % 256, (x + y) * 25 % 256));
    return image;
}

PictureMeta sampleMeta()
{
    PictureMeta meta;
    meta.dpi = 300;
    meta.software = QStringLiteral("tarvelle-forge 9.9.9");
    meta.recipe = {QStringLiteral("tarvelle-forge paint Backgroundcolor --size 5x3 --seed 1"),
                   QStringLiteral("tarvelle-forge paint Backgroundcolor --size 5x3 --transparency 50 --seed 2")};
    return meta;
}

} // namespace

TEST(Encoders, BitmapRecordsAsTheSystemFillsThem)
{
    EXPECT_EQ(IJL_DIB_PAD_BYTES(1, 3), 1);
    EXPECT_EQ(IJL_DIB_PAD_BYTES(4, 3), 0);
    EXPECT_EQ(IJL_DIB_PAD_BYTES(5, 3), 1);
    EXPECT_EQ(IJL_DIB_PAD_BYTES(7, 3), 3);
    EXPECT_EQ(IJL_DIB_PAD_BYTES(3, 4), 0);

    const BITMAPINFOHEADER bi = FillBMPStruc(100, -30);
    EXPECT_EQ(bi.biSize, 40u);
    EXPECT_EQ(bi.biWidth, 100);
    EXPECT_EQ(bi.biHeight, -30);
    EXPECT_EQ(bi.biPlanes, 1);
    EXPECT_EQ(bi.biBitCount, 32);
    EXPECT_EQ(bi.biCompression, 0u);
    EXPECT_EQ(bi.biSizeImage, 30u * 100u * 128u); // width << 7, not a row stride
}

TEST(Encoders, BmpHeaderBytesAndRows)
{
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    ASSERT_TRUE(writeBmp(testPicture(5, 3), out, 300));
    const QByteArray b = out.data();
    const int row = 16; // 5 * 3 = 15 bytes, padded to 16
    ASSERT_EQ(b.size(), 54 + row * 3);
    const auto *p = reinterpret_cast<const uchar *>(b.constData());
    EXPECT_EQ(b.left(2), QByteArray("BM"));
    EXPECT_EQ(qFromLittleEndian<quint32>(p + 2), quint32(b.size()));
    EXPECT_EQ(qFromLittleEndian<quint32>(p + 6), 0u);
    EXPECT_EQ(qFromLittleEndian<quint32>(p + 10), 54u);
    EXPECT_EQ(qFromLittleEndian<quint32>(p + 14), 40u);
    EXPECT_EQ(qFromLittleEndian<qint32>(p + 18), 5);
    EXPECT_EQ(qFromLittleEndian<qint32>(p + 22), 3);
    EXPECT_EQ(qFromLittleEndian<quint16>(p + 26), 1);
    EXPECT_EQ(qFromLittleEndian<quint16>(p + 28), 24);
    EXPECT_EQ(qFromLittleEndian<quint32>(p + 30), 0u);
    EXPECT_EQ(qFromLittleEndian<quint32>(p + 34), quint32(row * 3));
    EXPECT_EQ(qFromLittleEndian<qint32>(p + 38), 11811); // 300 dpi in pixels per metre
    EXPECT_EQ(qFromLittleEndian<qint32>(p + 42), 11811);
    // The first row in the file is the bottom row: pixel (0, 2) = (0, 120, 50), blue first.
    EXPECT_EQ(b.mid(54, 3), QByteArray("\x32\x78\x00", 3));
    EXPECT_EQ(b.at(54 + 15), '\0'); // padding
    EXPECT_EQ(decodeBmp(b).image, testPicture(5, 3));
}

TEST(Encoders, PngChunksInTheirOrderAndARoundTrip)
{
    cDIBSection dib;
    ASSERT_TRUE(dib.CreateFromPicture(testPicture(5, 3)));
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    ASSERT_TRUE(SavePNG(dib, out, sampleMeta()));
    const QByteArray png = out.data();
    const auto chunks = chunksOf(png);
    QList<QByteArray> types;
    for (const Chunk &c : chunks)
        types << c.type;
    EXPECT_EQ(types, (QList<QByteArray>{"IHDR", "sBIT", "pHYs", "tEXt", "iTXt", "IDAT", "IEND"}));
    // 5 x 3, 8 bits, colour type 2 (RGB), compression 0, filter 0, no interlace.
    EXPECT_EQ(chunks[0].data, QByteArray("\0\0\0\x05\0\0\0\x03\x08\x02\0\0\0", 13));
    EXPECT_EQ(chunks[1].data, QByteArray("\x08\x08\x08"));
    EXPECT_EQ(chunks[2].data, QByteArray("\0\0\x2e\x23\0\0\x2e\x23\x01", 9));
    EXPECT_EQ(chunks[3].data, QByteArray("Software\0tarvelle-forge 9.9.9", 29));
    EXPECT_TRUE(chunks[4].data.startsWith(QByteArray("Recipe\0\0\0\0\0", 11)));

    EXPECT_EQ(decodePng(png).image, testPicture(5, 3));
    const PictureMeta back = readPngMeta(png);
    EXPECT_EQ(back.dpi, 300);
    EXPECT_EQ(back.software, sampleMeta().software);
    EXPECT_EQ(back.recipe, sampleMeta().recipe);
}

TEST(Encoders, JpegHeaderCarriesDensitySubsamplingAndComment)
{
    cDIBSection dib;
    ASSERT_TRUE(dib.CreateFromPicture(testPicture(33, 17)));
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    ASSERT_TRUE(SaveJPG(dib, out, 100, sampleMeta()));
    const QByteArray jpg = out.data();
    // JFIF APP0 right after SOI: version 1.01, unit 1 (dots per inch), 300 x 300.
    EXPECT_EQ(jpg.mid(2, 18), QByteArray("\xFF\xE0\0\x10JFIF\0\x01\x01\x01\x01\x2C\x01\x2C\0\0", 18));
    // The frame: 3 components, the luminance sampled 2 x 2, the colours 1 x 1 (4:2:0).
    const qsizetype sof = jpg.indexOf(QByteArray("\xFF\xC0", 2));
    ASSERT_GT(sof, 0);
    EXPECT_EQ(jpg.at(sof + 9), 3);
    EXPECT_EQ(uchar(jpg.at(sof + 11)), 0x22);
    EXPECT_EQ(uchar(jpg.at(sof + 14)), 0x11);
    EXPECT_EQ(uchar(jpg.at(sof + 17)), 0x11);

    const PictureMeta back = readJpegMeta(jpg);
    EXPECT_EQ(back.dpi, 300);
    EXPECT_EQ(back.software, sampleMeta().software);
    EXPECT_EQ(back.recipe, sampleMeta().recipe);
    const Decoded d = decodeJpeg(jpg);
    ASSERT_EQ(d.image.size(), QSize(33, 17));
}

TEST(Encoders, APictureEncodesAsItsSurfaceWould)
{
    // Encoding straight from the picture's own 4-byte pixels spares the surface copy; the
    // files must be the same byte for byte.
    const QImage picture = testPicture(37, 11);
    cDIBSection dib;
    ASSERT_TRUE(dib.CreateFromPicture(picture));
    QBuffer fromDib, fromImage;
    fromDib.open(QIODevice::WriteOnly);
    fromImage.open(QIODevice::WriteOnly);
    ASSERT_TRUE(SavePNG(dib, fromDib, sampleMeta()));
    ASSERT_TRUE(SavePNG(picture, fromImage, sampleMeta()));
    EXPECT_EQ(fromImage.data(), fromDib.data());

    QBuffer jpgDib, jpgImage;
    jpgDib.open(QIODevice::WriteOnly);
    jpgImage.open(QIODevice::WriteOnly);
    ASSERT_TRUE(SaveJPG(dib, jpgDib, 90, sampleMeta()));
    ASSERT_TRUE(SaveJPG(picture.convertToFormat(QImage::Format_ARGB32), jpgImage, 90, sampleMeta()));
    EXPECT_EQ(jpgImage.data(), jpgDib.data());

    QBuffer none;
    none.open(QIODevice::WriteOnly);
    QString why;
    EXPECT_FALSE(SavePNG(QImage(), none, {}, &why));
    EXPECT_EQ(why, QStringLiteral("PNG: no picture"));
}

TEST(Encoders, SavedFilesOfEveryTypeReadBack)
{
    QTemporaryDir dir;
    const QImage picture = testPicture(9, 7);
    for (const char *tag : {"PNG", "BMP", "JPG"}) {
        const QString path = dir.filePath(QStringLiteral("bild.") + QString::fromLatin1(tag).toLower());
        ASSERT_TRUE(savePicture(picture, path, QString::fromLatin1(tag), sampleMeta()).ok()) << tag;
        const LoadResult r = LoadImage(path);
        ASSERT_TRUE(r.loaded()) << tag;
        if (QLatin1String(tag) != QLatin1String("JPG")) {
            EXPECT_EQ(r.image, picture) << tag;
        }
        EXPECT_EQ(readPictureMeta(path).dpi, QLatin1String(tag) == QLatin1String("BMP") ? 0 : 300);
    }
}
