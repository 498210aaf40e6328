#include "core/dibits.h"
#include "core/dibsection.h"
#include "pixel_art.h"

#include <QImage>
#include <gtest/gtest.h>

#include <cstring>
#include <tuple>
#include <vector>

using namespace tf;
using tf::test::gradient;

namespace {

// The bytes of picture row y in a DIB buffer described by bi.
const uint8_t *dibRow(const std::vector<uint8_t> &buf, const BITMAPINFOHEADER &bi, int y)
{
    const int h = std::abs(bi.biHeight);
    const int scan = bi.biHeight < 0 ? y : h - 1 - y;
    return buf.data() + size_t(scan) * dibStride(bi);
}

// A w x h DIB of the given bit count and direction (sign -1: top-down) read from `pic`.
std::vector<uint8_t> dibOf(QImage pic, BITMAPINFOHEADER &bi, int bitCount, int sign)
{
    const DeviceContext dc(&pic, false);
    bi = makeDibHeader(pic.width(), pic.height() * sign, bitCount);
    std::vector<uint8_t> buf(dibImageSize(bi), 0xAA);
    EXPECT_EQ(GetDIBits(dc, 0, pic.height(), buf.data(), bi), pic.height());
    return buf;
}

// A black RGB32 picture with its context.
struct Target {
    QImage image;
    DeviceContext dc;
    Target(int w, int h) : image(w, h, QImage::Format_RGB32), dc(&image, false)
    {
        image.fill(Qt::black);
    }
};

} // namespace

TEST(DIBits, GetAndSetDIBitsLayOutRowsBothWaysAndRoundTripThroughBothContexts)
{
    const QImage pic = gradient(3, 2); // a 24-bit row: 9 pixel bytes and 3 of padding
    for (const int bitCount : {24, 32}) {
        for (const int sign : {1, -1}) {
            BITMAPINFOHEADER bi;
            const std::vector<uint8_t> buf = dibOf(pic, bi, bitCount, sign);
            const int bpp = bitCount / 8;
            for (int y = 0; y < 2; ++y) {
                const uint8_t *row = dibRow(buf, bi, y);
                for (int x = 0; x < 3; ++x) {
                    const QRgb c = pic.pixel(x, y);
                    std::vector<int> expected{qBlue(c), qGreen(c), qRed(c)};
                    if (bpp == 4) expected.push_back(0);
                    EXPECT_EQ(std::vector<int>(row + x * bpp, row + x * bpp + bpp), expected)
                        << bitCount << " " << sign << " at " << x << "," << y;
                }
                if (bpp == 3) {
                    EXPECT_EQ(row[9], 0xAA) << "padding is not written";
                }
            }
            Target out(3, 2);
            std::memset(out.image.bits(), 0, size_t(out.image.sizeInBytes()));
            EXPECT_EQ(SetDIBits(out.dc, 0, 2, buf.data(), bi), 2);
            EXPECT_EQ(out.image, pic) << bitCount << " " << sign;
            EXPECT_EQ(out.image.constBits()[3], 0xFF) << "the unused byte of RGB32";
            cDIBSection d;
            ASSERT_TRUE(d.Create(3, 2));
            EXPECT_EQ(SetDIBits(d.dib_hdc(), 0, 2, buf.data(), bi), 2);
            EXPECT_EQ(d.dib_hdc().pixel(2, 0), fromQRgb(pic.pixel(2, 0)));
            EXPECT_EQ(d.dib_hdc().pixel(0, 1), fromQRgb(pic.pixel(0, 1)));
        }
    }
    // A surface's DIB is its own memory.
    cDIBSection d;
    ASSERT_TRUE(d.CreateFromPicture(gradient(5, 3)));
    BITMAPINFOHEADER bi = d.header();
    std::vector<uint8_t> buf(dibImageSize(bi));
    ASSERT_EQ(GetDIBits(d.dib_hdc(), 0, 3, buf.data(), bi), 3);
    EXPECT_EQ(std::memcmp(buf.data(), d.DIBSectionBitsPtr(), buf.size()), 0);
    EXPECT_EQ(dibStride(makeDibHeader(1, -5, 24)), 4u);
}

TEST(DIBits, GetDIBitsWithoutABufferFillsTheHeaderAndBandsCountFromTheBottom)
{
    QImage pic = gradient(2, 4);
    const DeviceContext dc(&pic, false);
    BITMAPINFOHEADER bi{};
    bi.biBitCount = 0;
    EXPECT_EQ(GetDIBits(dc, 0, 4, nullptr, bi), 4);
    EXPECT_EQ(std::tuple(bi.biWidth, bi.biHeight, bi.biBitCount, bi.biSizeImage),
              std::tuple(2, 4, uint16_t(32), 32u));

    bi = makeDibHeader(2, 4, 24);
    std::vector<uint8_t> band(dibStride(bi) * 2);
    // Scan lines 1 and 2: picture rows 2 and 1.
    ASSERT_EQ(GetDIBits(dc, 1, 2, band.data(), bi), 2);
    EXPECT_EQ(band[2], qRed(pic.pixel(0, 2)));
    EXPECT_EQ(band[8 + 2], qRed(pic.pixel(0, 1)));
    EXPECT_EQ(GetDIBits(dc, 3, 5, band.data(), bi), 1) << "clipped to the DIB";
    EXPECT_EQ(GetDIBits(dc, 4, 1, band.data(), bi), 0);
}

TEST(DIBits, RefusesHeadersItCannotServe)
{
    QImage pic = gradient(2, 2);
    DeviceContext dc(&pic, false);
    std::vector<uint8_t> buf(64);
    BITMAPINFOHEADER bi = makeDibHeader(2, 2, 16);
    EXPECT_EQ(GetDIBits(dc, 0, 2, buf.data(), bi), 0);
    EXPECT_EQ(SetDIBits(dc, 0, 2, buf.data(), bi), 0);
    bi = makeDibHeader(2, 2, 24);
    bi.biCompression = 1;
    EXPECT_EQ(GetDIBits(dc, 0, 2, buf.data(), bi), 0);
    bi = makeDibHeader(2, 0, 24);
    EXPECT_EQ(SetDIBits(dc, 0, 2, buf.data(), bi), 0);
    DeviceContext none;
    bi = makeDibHeader(2, 2, 24);
    EXPECT_EQ(GetDIBits(none, 0, 2, buf.data(), bi), 0);
    EXPECT_EQ(SetDIBits(dc, 0, 2, nullptr, bi), 0);
}

TEST(DIBits, SetDIBitsToDeviceCopiesARectangleByItsTopLeftAsShown)
{
    const QImage pic = gradient(4, 4);
    for (const int sign : {1, -1}) {
        BITMAPINFOHEADER bi;
        const std::vector<uint8_t> buf = dibOf(pic, bi, 24, sign);
        Target out(5, 5);
        // Source (1,2) 2x2 to (3,0).
        EXPECT_EQ(SetDIBitsToDevice(out.dc, 3, 0, 2, 2, 1, 2, 0, 4, buf.data(), bi), 2);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 5; ++x) {
                const bool inside = x >= 3 && y < 2;
                EXPECT_EQ(out.image.pixel(x, y), inside ? pic.pixel(x - 2, y + 2) : qRgb(0, 0, 0))
                    << x << "," << y << " sign " << sign;
            }
    }
    // A band of scan lines 0 and 1 of a bottom-up DIB: the two bottom rows as shown.
    BITMAPINFOHEADER bi;
    const std::vector<uint8_t> buf = dibOf(pic, bi, 24, 1);
    Target out(4, 4);
    EXPECT_EQ(SetDIBitsToDevice(out.dc, 0, 0, 4, 4, 0, 0, 0, 2, buf.data(), bi), 2);
    EXPECT_EQ(out.image.pixel(3, 3), pic.pixel(3, 3));
    EXPECT_EQ(out.image.pixel(0, 2), pic.pixel(0, 2));
    EXPECT_EQ(out.image.pixel(3, 1), qRgb(0, 0, 0));
}

TEST(DIBits, StretchDIBitsScalesByTheContextsMode)
{
    const QImage pic = gradient(2, 2);
    BITMAPINFOHEADER bi;
    const std::vector<uint8_t> buf = dibOf(pic, bi, 32, 1);
    Target out(4, 4);
    SetStretchBltMode(out.dc, COLORONCOLOR);
    EXPECT_EQ(
        StretchDIBits(out.dc, 0, 0, 4, 4, 0, 0, 2, 2, buf.data(), bi, DIB_RGB_COLORS, SRCCOPY), 2);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(out.image.pixel(x, y), pic.pixel(x / 2, y / 2));
}
