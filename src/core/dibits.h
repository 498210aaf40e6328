#pragma once
// Bulk pixel access between a device context and a caller's buffer laid out as a
// device-independent bitmap (DIB): GetDIBits, SetDIBits, SetDIBitsToDevice, StretchDIBits.
//
// The buffer layout is said by a BITMAPINFOHEADER:
// - `biBitCount` 24: 3 bytes a pixel, blue, green, red; 32: 4 bytes, blue, green, red, unused.
//   Other bit counts and any compression but BI_RGB are refused (the call answers 0).
// - Rows ("scan lines") are ((|biWidth| * biBitCount + 31) / 32) * 4 bytes apart.
// - `biHeight` > 0: bottom-up, scan line 0 is the bottom row of the picture as shown;
//   `biHeight` < 0: top-down, scan line 0 is the top row.
// - The DIB lies over the context with its top left pixel on the context's (0,0).
//
// A call given `startScan` and `numScans` works on a band: the buffer starts with scan line
// `startScan` and holds `numScans` of them. Pixels outside the context or the DIB are skipped,
// and padding bytes of the buffer are never written.
//
// Each answers the number of scan lines it copied, 0 on failure (no valid context, a header
// that cannot be served, no buffer).

#include "core/devicecontext.h"

#include <cstddef>
#include <cstdint>

namespace tf {

constexpr uint32_t BI_RGB = 0;
constexpr uint32_t DIB_RGB_COLORS = 0;

struct BITMAPINFOHEADER {
    uint32_t biSize = 40;
    int32_t biWidth = 0;
    int32_t biHeight = 0; // > 0 bottom-up, < 0 top-down
    uint16_t biPlanes = 1;
    uint16_t biBitCount = 24;
    uint32_t biCompression = BI_RGB;
    uint32_t biSizeImage = 0;
    int32_t biXPelsPerMeter = 0;
    int32_t biYPelsPerMeter = 0;
    uint32_t biClrUsed = 0;
    uint32_t biClrImportant = 0;
};
static_assert(sizeof(BITMAPINFOHEADER) == 40, "the header is 40 bytes, as in a file");

// `picture` in a format that a device context reads as it stands: RGB32 and BGR888 (bytes
// blue, green, red) are shared copies, other formats are converted to RGB32. A context over
// the result may read it; writing would detach the shared copy.
QImage contextReadable(const QImage &picture);

// A header of the given size and bit count; a negative height is top-down. biSizeImage is
// filled in.
BITMAPINFOHEADER makeDibHeader(int width, int height, int bitCount);
// Bytes a scan line of the DIB that `bi` describes: ((|biWidth| * biBitCount + 31) / 32) * 4.
std::size_t dibStride(const BITMAPINFOHEADER &bi);
// Bytes of the whole DIB: dibStride * |biHeight|.
std::size_t dibImageSize(const BITMAPINFOHEADER &bi);

// Copies scan lines startScan .. startScan+numScans-1 of the context into `bits`.
// With `bits` null nothing is copied: `bi` receives the context's width and height
// (bottom-up), a bit count of 0 becomes the context's own (24 or 32), biSizeImage is filled
// in, and the answer is the context's height.
// A 32-bit buffer gets 0 in the unused byte.
int GetDIBits(const DeviceContext &dc, int startScan, int numScans, void *bits,
              BITMAPINFOHEADER &bi, uint32_t usage = DIB_RGB_COLORS);

// Copies scan lines startScan .. startScan+numScans-1 of `bits` into the context. The
// context's clip does not apply; an RGB32 context gets 0xFF in the unused byte.
int SetDIBits(DeviceContext &dc, int startScan, int numScans, const void *bits,
              const BITMAPINFOHEADER &bi, uint32_t usage = DIB_RGB_COLORS);

// Copies the w x h rectangle at (xSrc, ySrc) of the DIB to (xDest, yDest) of the context,
// with the context's clip. (xSrc, ySrc) is the rectangle's top left pixel in the DIB as shown,
// for bottom-up and top-down DIBs alike (unlike the platform's lower-left origin). The buffer
// holds the band of scan lines startScan .. startScan+numScans-1; rows outside it are skipped.
// Answers the number of rows of the rectangle the band supplied.
int SetDIBitsToDevice(DeviceContext &dc, int xDest, int yDest, int w, int h, int xSrc,
                      int ySrc, int startScan, int numScans, const void *bits,
                      const BITMAPINFOHEADER &bi, uint32_t usage = DIB_RGB_COLORS);

// Scaled copy of the srcW x srcH rectangle at (xSrc, ySrc) of the whole DIB (top left as
// shown, as above) to the destW x destH rectangle at (xDest, yDest), by the context's stretch
// mode and the raster operation `rop`: StretchBlt with the DIB as its source.
// Answers |srcH| on success.
int StretchDIBits(DeviceContext &dc, int xDest, int yDest, int destW, int destH, int xSrc,
                  int ySrc, int srcW, int srcH, const void *bits, const BITMAPINFOHEADER &bi,
                  uint32_t usage, uint32_t rop);

} // namespace tf
