#include "core/dibits.h"
#include "core/dibsection.h"

#include <QImage>
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

using namespace tf;

namespace {

QImage picture(int w, int h)
{
    QImage pic(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            pic.setPixel(x, y, qRgb(30 * x + 5, 40 * y + 9, 17 * x + 29 * y + 2));
    return pic;
}

// The bytes of picture row y in a DIB buffer described by bi.
const uint8_t *dibRow(const std::vector<uint8_t> &buf, const BITMAPINFOHEADER &bi, int y)
{
    const int h = std::abs(bi.biHeight);
    const int scan = bi.biHeight < 0 ? y : h - 1 - y;
    return buf.data() + size_t(scan) * dibStride(bi);
}

} // namespace

TEST(DIBits, HeaderHelpers)
{
    const BITMAPINFOHEADER a = makeDibHeader(3, 2, 24);
    EXPECT_EQ(dibStride(a), 12u);
    EXPECT_EQ(a.biSizeImage, 24u);
    const BITMAPINFOHEADER b = makeDibHeader(1, -5, 24);
    EXPECT_EQ(dibStride(b), 4u);
    EXPECT_EQ(dibImageSize(b), 20u);
    EXPECT_EQ(makeDibHeader(3, -2, 32).biSizeImage, 24u);
}

TEST(DIBits, GetDIBitsLaysOutBottomUpAndTopDownRows)
{
    QImage pic = picture(3, 2);
    const DeviceContext dc(&pic, false);
    for (const int bitCount : {24, 32}) {
        for (const int sign : {1, -1}) {
            BITMAPINFOHEADER bi = makeDibHeader(3, 2 * sign, bitCount);
            std::vector<uint8_t> buf(dibImageSize(bi), 0xAA);
            ASSERT_EQ(GetDIBits(dc, 0, 2, buf.data(), bi), 2);
            const int bpp = bitCount / 8;
            for (int y = 0; y < 2; ++y) {
                const uint8_t *row = dibRow(buf, bi, y);
                for (int x = 0; x < 3; ++x) {
                    const QRgb c = pic.pixel(x, y);
                    EXPECT_EQ(row[x * bpp], qBlue(c));
                    EXPECT_EQ(row[x * bpp + 1], qGreen(c));
                    EXPECT_EQ(row[x * bpp + 2], qRed(c));
                    if (bpp == 4) {
                        EXPECT_EQ(row[x * bpp + 3], 0);
                    }
                }
                if (bpp == 3) {
                    for (int i = 9; i < 12; ++i)
                        EXPECT_EQ(row[i], 0xAA) << "padding is not written";
                }
            }
        }
    }
}

TEST(DIBits, GetDIBitsOfASurfaceIsItsMemory)
{
    cDIBSection d;
    ASSERT_TRUE(d.CreateFromPicture(picture(5, 3)));
    BITMAPINFOHEADER bi = d.header();
    std::vector<uint8_t> buf(dibImageSize(bi));
    ASSERT_EQ(GetDIBits(d.dib_hdc(), 0, 3, buf.data(), bi), 3);
    EXPECT_EQ(std::memcmp(buf.data(), d.DIBSectionBitsPtr(), buf.size()), 0);
}

TEST(DIBits, GetDIBitsWithoutABufferFillsTheHeader)
{
    QImage pic = picture(7, 4);
    const DeviceContext dc(&pic, false);
    BITMAPINFOHEADER bi{};
    bi.biBitCount = 0;
    EXPECT_EQ(GetDIBits(dc, 0, 4, nullptr, bi), 4);
    EXPECT_EQ(bi.biWidth, 7);
    EXPECT_EQ(bi.biHeight, 4);
    EXPECT_EQ(bi.biBitCount, 32);
    EXPECT_EQ(bi.biSizeImage, 7u * 4u * 4u);
    BITMAPINFOHEADER b24 = makeDibHeader(1, 1, 24);
    EXPECT_EQ(GetDIBits(dc, 0, 4, nullptr, b24), 4);
    EXPECT_EQ(b24.biSizeImage, 24u * 4u);
}

TEST(DIBits, BandsCountScanLinesFromTheBottomOfABottomUpDib)
{
    QImage pic = picture(2, 4);
    const DeviceContext dc(&pic, false);
    const BITMAPINFOHEADER whole = makeDibHeader(2, 4, 24);
    BITMAPINFOHEADER bi = whole;
    std::vector<uint8_t> band(dibStride(bi) * 2);
    // Scan lines 1 and 2: picture rows 2 and 1.
    ASSERT_EQ(GetDIBits(dc, 1, 2, band.data(), bi), 2);
    EXPECT_EQ(band[2], qRed(pic.pixel(0, 2)));
    EXPECT_EQ(band[8 + 2], qRed(pic.pixel(0, 1)));
    EXPECT_EQ(GetDIBits(dc, 3, 5, band.data(), bi), 1) << "clipped to the DIB";
    EXPECT_EQ(GetDIBits(dc, 4, 1, band.data(), bi), 0);
}

TEST(DIBits, SetDIBitsRoundTripsInBothDirectionsAndBothContexts)
{
    const QImage pic = picture(5, 3);
    for (const int bitCount : {24, 32}) {
        for (const int sign : {1, -1}) {
            QImage src = pic;
            const DeviceContext srcDc(&src, false);
            BITMAPINFOHEADER bi = makeDibHeader(5, 3 * sign, bitCount);
            std::vector<uint8_t> buf(dibImageSize(bi));
            ASSERT_EQ(GetDIBits(srcDc, 0, 3, buf.data(), bi), 3);

            QImage out(5, 3, QImage::Format_RGB32);
            out.fill(Qt::black);
            DeviceContext outDc(&out, false);
            EXPECT_EQ(SetDIBits(outDc, 0, 3, buf.data(), bi), 3);
            EXPECT_EQ(out, pic) << bitCount << " " << sign;

            cDIBSection d;
            ASSERT_TRUE(d.Create(5, 3));
            EXPECT_EQ(SetDIBits(d.dib_hdc(), 0, 3, buf.data(), bi), 3);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < 5; ++x)
                    EXPECT_EQ(d.dib_hdc().pixel(x, y), fromQRgb(pic.pixel(x, y)));
        }
    }
}

TEST(DIBits, SetDIBitsSetsTheUnusedByteOfAnRgb32Picture)
{
    QImage out(1, 1, QImage::Format_RGB32);
    out.fill(0);
    std::memset(out.bits(), 0, 4);
    DeviceContext dc(&out, false);
    const BITMAPINFOHEADER bi = makeDibHeader(1, 1, 32);
    const uint8_t px[4] = {1, 2, 3, 0};
    EXPECT_EQ(SetDIBits(dc, 0, 1, px, bi), 1);
    EXPECT_EQ(out.pixel(0, 0), 0xFF030201u);
}

TEST(DIBits, RefusesHeadersItCannotServe)
{
    QImage pic = picture(2, 2);
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
    const QImage pic = picture(4, 4);
    QImage src = pic;
    const DeviceContext srcDc(&src, false);
    for (const int sign : {1, -1}) {
        BITMAPINFOHEADER bi = makeDibHeader(4, 4 * sign, 24);
        std::vector<uint8_t> buf(dibImageSize(bi));
        ASSERT_EQ(GetDIBits(srcDc, 0, 4, buf.data(), bi), 4);
        QImage out(5, 5, QImage::Format_RGB32);
        out.fill(Qt::black);
        DeviceContext dc(&out, false);
        // Source (1,2) 2x2 to (3,0).
        EXPECT_EQ(SetDIBitsToDevice(dc, 3, 0, 2, 2, 1, 2, 0, 4, buf.data(), bi), 2);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 5; ++x) {
                const bool inside = x >= 3 && y < 2;
                EXPECT_EQ(out.pixel(x, y), inside ? pic.pixel(x - 2, y + 2) : qRgb(0, 0, 0))
                    << x << "," << y << " sign " << sign;
            }
    }
}

TEST(DIBits, SetDIBitsToDeviceWithABand)
{
    const QImage pic = picture(3, 4);
    QImage src = pic;
    const DeviceContext srcDc(&src, false);
    BITMAPINFOHEADER bi = makeDibHeader(3, 4, 24); // bottom-up
    std::vector<uint8_t> band(dibStride(bi) * 2);
    // Scan lines 0 and 1: the two bottom rows as shown.
    ASSERT_EQ(GetDIBits(srcDc, 0, 2, band.data(), bi), 2);
    QImage out(3, 4, QImage::Format_RGB32);
    out.fill(Qt::black);
    DeviceContext dc(&out, false);
    EXPECT_EQ(SetDIBitsToDevice(dc, 0, 0, 3, 4, 0, 0, 0, 2, band.data(), bi), 2);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(out.pixel(x, y), y >= 2 ? pic.pixel(x, y) : qRgb(0, 0, 0)) << x << "," << y;
}

TEST(DIBits, StretchDIBitsScalesByTheContextsMode)
{
    const QImage pic = picture(2, 2);
    QImage src = pic;
    const DeviceContext srcDc(&src, false);
    BITMAPINFOHEADER bi = makeDibHeader(2, 2, 32);
    std::vector<uint8_t> buf(dibImageSize(bi));
    ASSERT_EQ(GetDIBits(srcDc, 0, 2, buf.data(), bi), 2);
    QImage out(4, 4, QImage::Format_RGB32);
    out.fill(Qt::black);
    DeviceContext dc(&out, false);
    SetStretchBltMode(dc, COLORONCOLOR);
    EXPECT_EQ(StretchDIBits(dc, 0, 0, 4, 4, 0, 0, 2, 2, buf.data(), bi, DIB_RGB_COLORS, SRCCOPY), 2);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(out.pixel(x, y), pic.pixel(x / 2, y / 2));
}
