#include "core/dibits.h"

#include "core/blit.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace tf {

namespace {

// What a header says about its buffer, when it is one we serve.
struct DibLayout {
    int width = 0;
    int height = 0;
    int bpp = 0; // bytes a pixel
    std::size_t stride = 0;
    bool topDown = false;

    // The row of the DIB as shown (0 the top) that holds scan line s.
    int rowOfScan(int s) const { return topDown ? s : height - 1 - s; }
    QImage::Format format() const { return bpp == 4 ? QImage::Format_RGB32 : QImage::Format_BGR888; }
};

bool readLayout(const BITMAPINFOHEADER &bi, DibLayout &l)
{
    if (bi.biWidth <= 0 || bi.biHeight == 0 || bi.biHeight == INT32_MIN ||
        bi.biCompression != BI_RGB || (bi.biBitCount != 24 && bi.biBitCount != 32))
        return false;
    l.width = bi.biWidth;
    l.height = std::abs(bi.biHeight);
    l.bpp = bi.biBitCount / 8;
    l.stride = dibStride(bi);
    l.topDown = bi.biHeight < 0;
    return true;
}

bool servedContext(const DeviceContext &dc)
{
    return dc.valid() && (dc.bytesPerPixel() == 3 || dc.bytesPerPixel() == 4);
}

// Copies n pixels between rows of 3 or 4 bytes a pixel; a 4-byte target gets `fourth` in its
// unused byte.
void copyPixels(uchar *d, int dbpp, const uchar *s, int sbpp, int n, uchar fourth)
{
    if (dbpp == 3 && sbpp == 3) {
        std::memcpy(d, s, std::size_t(n) * 3);
    } else if (dbpp == 4) {
        for (int i = 0; i < n; ++i, d += 4, s += sbpp) {
            d[0] = s[0];
            d[1] = s[1];
            d[2] = s[2];
            d[3] = fourth;
        }
    } else {
        for (int i = 0; i < n; ++i, d += 3, s += 4) {
            d[0] = s[0];
            d[1] = s[1];
            d[2] = s[2];
        }
    }
}

// The scan lines startScan .. startScan+numScans-1 that both the DIB and the call name, as a
// count; 0 when there are none.
int bandLength(const DibLayout &l, int startScan, int numScans)
{
    if (startScan < 0 || numScans <= 0 || startScan >= l.height)
        return 0;
    return std::min(numScans, l.height - startScan);
}

} // namespace

QImage contextReadable(const QImage &picture)
{
    if (picture.format() == QImage::Format_RGB32 || picture.format() == QImage::Format_BGR888)
        return picture;
    return picture.convertToFormat(QImage::Format_RGB32);
}

BITMAPINFOHEADER makeDibHeader(int width, int height, int bitCount)
{
    BITMAPINFOHEADER bi;
    bi.biWidth = width;
    bi.biHeight = height;
    bi.biBitCount = uint16_t(bitCount);
    bi.biSizeImage = uint32_t(std::min<std::size_t>(dibImageSize(bi), UINT32_MAX));
    return bi;
}

std::size_t dibStride(const BITMAPINFOHEADER &bi)
{
    const std::size_t bits = std::size_t(std::abs(int64_t(bi.biWidth))) * bi.biBitCount;
    return ((bits + 31) / 32) * 4;
}

std::size_t dibImageSize(const BITMAPINFOHEADER &bi)
{
    return dibStride(bi) * std::size_t(std::abs(int64_t(bi.biHeight)));
}

int GetDIBits(const DeviceContext &dc, int startScan, int numScans, void *bits,
              BITMAPINFOHEADER &bi, uint32_t /*usage*/)
{
    if (!servedContext(dc))
        return 0;
    if (!bits) {
        bi.biSize = 40;
        bi.biWidth = dc.width();
        bi.biHeight = dc.height();
        bi.biPlanes = 1;
        if (bi.biBitCount == 0)
            bi.biBitCount = uint16_t(dc.bytesPerPixel() * 8);
        bi.biCompression = BI_RGB;
        bi.biSizeImage = uint32_t(std::min<std::size_t>(dibImageSize(bi), UINT32_MAX));
        return dc.height();
    }
    DibLayout l;
    if (!readLayout(bi, l))
        return 0;
    const int n = bandLength(l, startScan, numScans);
    const int cols = std::min(l.width, dc.width());
    const int sbpp = dc.bytesPerPixel();
    uchar *out = static_cast<uchar *>(bits);
    int copied = 0;
    for (int i = 0; i < n; ++i) {
        const int row = l.rowOfScan(startScan + i);
        if (row >= dc.height())
            continue;
        copyPixels(out + std::size_t(i) * l.stride, l.bpp, dc.scanLine(row), sbpp, cols, 0);
        ++copied;
    }
    return copied;
}

int SetDIBits(DeviceContext &dc, int startScan, int numScans, const void *bits,
              const BITMAPINFOHEADER &bi, uint32_t /*usage*/)
{
    DibLayout l;
    if (!servedContext(dc) || !bits || !readLayout(bi, l))
        return 0;
    const int n = bandLength(l, startScan, numScans);
    const int cols = std::min(l.width, dc.width());
    const int dbpp = dc.bytesPerPixel();
    const uchar *in = static_cast<const uchar *>(bits);
    int copied = 0;
    for (int i = 0; i < n; ++i) {
        const int row = l.rowOfScan(startScan + i);
        if (row >= dc.height())
            continue;
        copyPixels(dc.scanLine(row), dbpp, in + std::size_t(i) * l.stride, l.bpp, cols, 0xFF);
        ++copied;
    }
    return copied;
}

int SetDIBitsToDevice(DeviceContext &dc, int xDest, int yDest, int w, int h, int xSrc,
                      int ySrc, int startScan, int numScans, const void *bits,
                      const BITMAPINFOHEADER &bi, uint32_t /*usage*/)
{
    DibLayout l;
    if (!servedContext(dc) || !bits || !readLayout(bi, l))
        return 0;
    const int n = bandLength(l, startScan, numScans);
    if (n == 0)
        return 0;
    // The band as a read-only picture: its top row is row `bandTop` of the DIB as shown.
    const int bandTop = l.topDown ? startScan : l.height - startScan - n;
    QImage band(static_cast<const uchar *>(bits), l.width, n, qsizetype(l.stride), l.format());
    DeviceContext src(&band, !l.topDown);
    if (!BitBlt(dc, xDest, yDest, w, h, src, xSrc, ySrc - bandTop, SRCCOPY))
        return 0;
    const int first = std::max(ySrc, bandTop), last = std::min(ySrc + h, bandTop + n);
    return std::max(0, last - first);
}

int StretchDIBits(DeviceContext &dc, int xDest, int yDest, int destW, int destH, int xSrc,
                  int ySrc, int srcW, int srcH, const void *bits, const BITMAPINFOHEADER &bi,
                  uint32_t /*usage*/, uint32_t rop)
{
    DibLayout l;
    if (!servedContext(dc) || !bits || !readLayout(bi, l))
        return 0;
    QImage whole(static_cast<const uchar *>(bits), l.width, l.height, qsizetype(l.stride),
                 l.format());
    DeviceContext src(&whole, !l.topDown);
    if (!StretchBlt(dc, xDest, yDest, destW, destH, src, xSrc, ySrc, srcW, srcH, rop))
        return 0;
    return std::abs(srcH);
}

} // namespace tf
