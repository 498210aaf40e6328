#include "core/dibsection.h"
#include "core/mbitmap.h"

#include <QImage>
#include <gtest/gtest.h>

using namespace tf;

namespace {

QImage picture(int w, int h)
{
    QImage pic(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            pic.setPixel(x, y, qRgb(40 * x + 3, 50 * y + 7, 11 * x + 13 * y + 1));
    return pic;
}

} // namespace

TEST(MBitmap, TakeBitsFromPictureGivesByteColumnRowTopDown)
{
    const QImage pic = picture(3, 2);
    PictureBits bits = TakeBitsFromPicture(pic, 3, 2);
    ASSERT_EQ(bits.width(), 3);
    ASSERT_EQ(bits.height(), 2);
    EXPECT_EQ(bits.stride(), 12);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) {
            const QRgb c = pic.pixel(x, y);
            EXPECT_EQ(bits(0, x, y), qBlue(c));
            EXPECT_EQ(bits(1, x, y), qGreen(c));
            EXPECT_EQ(bits(2, x, y), qRed(c));
            EXPECT_EQ(bits(3, x, y), 0) << "the unused byte";
            for (int b = 0; b < 4; ++b)
                EXPECT_EQ(&bits(b, x, y), bits.data() + (y * 3 + x) * 4 + b);
        }
    EXPECT_EQ(bits.row(1), bits.data() + 12);
    const BITMAPINFOHEADER bi = bits.header();
    EXPECT_EQ(bi.biSize, 40u);
    EXPECT_EQ(bi.biWidth, 3);
    EXPECT_EQ(bi.biHeight, -2);
    EXPECT_EQ(bi.biPlanes, 1);
    EXPECT_EQ(bi.biBitCount, 32);
    EXPECT_EQ(bi.biSizeImage, 24u);
}

TEST(MBitmap, CheckedAccessFaultsOutsideTheBounds)
{
    PictureBits bits(2, 2);
    EXPECT_EQ(bits.at(3, 1, 1), 0);
    EXPECT_THROW(bits.at(4, 0, 0), Fault);
    EXPECT_THROW(bits.at(0, 2, 0), Fault);
    EXPECT_THROW(bits.at(0, 0, -1), Fault);
    EXPECT_TRUE(PictureBits(0, 5).empty());
    EXPECT_TRUE(TakeBitsFromPicture(picture(2, 2), -1, 2).empty());
}

TEST(MBitmap, AnArrayLargerThanThePictureKeepsZerosOutside)
{
    const QImage pic = picture(2, 2);
    const PictureBits bits = TakeBitsFromPicture(pic, 3, 4);
    EXPECT_EQ(bits(2, 1, 1), qRed(pic.pixel(1, 1)));
    for (int b = 0; b < 4; ++b) {
        EXPECT_EQ(bits(b, 2, 0), 0);
        EXPECT_EQ(bits(b, 0, 3), 0);
    }
}

TEST(MBitmap, OtherFormatsAreConverted)
{
    const QImage pic = picture(3, 3);
    const PictureBits a = TakeBitsFromPicture(pic, 3, 3);
    const PictureBits b = TakeBitsFromPicture(pic.convertToFormat(QImage::Format_RGB888), 3, 3);
    const PictureBits c = TakeBitsFromPicture(pic.convertToFormat(QImage::Format_BGR888), 3, 3);
    EXPECT_TRUE(std::equal(a.data(), a.data() + 36, b.data()));
    EXPECT_TRUE(std::equal(a.data(), a.data() + 36, c.data()));
}

TEST(MBitmap, RoundTripThroughThePainter)
{
    const QImage pic = picture(5, 4);
    PictureBits bits = TakeBitsFromPicture(pic, 5, 4);
    // Invert the red of every pixel, as a filter would.
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x)
            bits(2, x, y) = uint8_t(255 - bits(2, x, y));

    QImage out(5, 4, QImage::Format_RGB32);
    out.fill(Qt::black);
    DeviceContext dc(&out, false);
    EXPECT_EQ(PaintBitsToPicture(dc, bits), 4);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) {
            const QRgb c = pic.pixel(x, y);
            EXPECT_EQ(out.pixel(x, y), qRgb(255 - qRed(c), qGreen(c), qBlue(c)));
        }

    // The same onto a bottom-up surface.
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(5, 4));
    EXPECT_EQ(PaintBitsToPicture(dib.dib_hdc(), bits), 4);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x)
            EXPECT_EQ(dib.dib_hdc().pixel(x, y), fromQRgb(out.pixel(x, y)));
    // And back from the surface's context.
    const PictureBits again = TakeBitsFromPicture(dib.dib_hdc(), 5, 4);
    EXPECT_TRUE(std::equal(bits.data(), bits.data() + 80, again.data()));
}
