#include "core/dibsection.h"
#include "core/mbitmap.h"
#include "pixel_art.h"

#include <QImage>
#include <gtest/gtest.h>

using namespace tf;
using tf::test::gradient;

TEST(MBitmap, TakeBitsFromPictureGivesByteColumnRowTopDownFromAnyFormat)
{
    const QImage pic = gradient(3, 2);
    PictureBits bits = TakeBitsFromPicture(pic, 3, 2);
    ASSERT_EQ(bits.width(), 3);
    ASSERT_EQ(bits.height(), 2);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) {
            const QRgb c = pic.pixel(x, y);
            EXPECT_EQ(bits(0, x, y), qBlue(c));
            EXPECT_EQ(bits(1, x, y), qGreen(c));
            EXPECT_EQ(bits(2, x, y), qRed(c));
            EXPECT_EQ(bits(3, x, y), 0) << "the unused byte";
        }
    EXPECT_EQ(&bits(1, 2, 1), bits.data() + (1 * 3 + 2) * 4 + 1);
    EXPECT_EQ(bits.header().biHeight, -2);
    EXPECT_EQ(bits.header().biBitCount, 32);
    for (const QImage::Format f : {QImage::Format_RGB888, QImage::Format_BGR888}) {
        const PictureBits other = TakeBitsFromPicture(pic.convertToFormat(f), 3, 2);
        EXPECT_TRUE(std::equal(bits.data(), bits.data() + 24, other.data())) << f;
    }
}

TEST(MBitmap, CheckedAccessFaultsOutsideAndALargerArrayKeepsZeros)
{
    const QImage pic = gradient(2, 2);
    const PictureBits bits = TakeBitsFromPicture(pic, 3, 4);
    EXPECT_EQ(bits(2, 1, 1), qRed(pic.pixel(1, 1)));
    for (int b = 0; b < 4; ++b) {
        EXPECT_EQ(bits.at(b, 2, 0), 0);
        EXPECT_EQ(bits.at(b, 0, 3), 0);
    }
    EXPECT_THROW(bits.at(4, 0, 0), Fault);
    EXPECT_THROW(bits.at(0, 3, 0), Fault);
    EXPECT_THROW(bits.at(0, 0, -1), Fault);
    EXPECT_TRUE(PictureBits(0, 5).empty());
    EXPECT_TRUE(TakeBitsFromPicture(pic, -1, 2).empty());
}

TEST(MBitmap, RoundTripThroughThePainter)
{
    const QImage pic = gradient(5, 4);
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

    // The same onto a bottom-up surface, and back from the surface's context.
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(5, 4));
    EXPECT_EQ(PaintBitsToPicture(dib.dib_hdc(), bits), 4);
    const PictureBits again = TakeBitsFromPicture(dib.dib_hdc(), 5, 4);
    EXPECT_TRUE(std::equal(bits.data(), bits.data() + 80, again.data()));
}
