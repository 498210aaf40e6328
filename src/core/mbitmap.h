#pragma once
// mBitmap: the 32-bit route between a picture and a three-dimensional byte array.
//
// PictureBits is that array: bounds (0..3, 0..width-1, 0..height-1) = (byte, column, row),
// 4 bytes a pixel in the order blue, green, red, unused, row 0 the top row. Its memory is
// contiguous and laid out as the platform lays out a top-down 32-bit DIB: row-major, rows
// width*4 bytes apart, byte b of pixel x at x*4+b within its row. So bits(b, x, y) is
// data()[(y*width + x)*4 + b], and header() describes data() to the DIB calls of dibits.h.

#include "core/devicecontext.h"
#include "core/dibits.h"

#include <QImage>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tf {

class PictureBits {
public:
    PictureBits() = default;
    // An all-zero array; a width or height below 1 gives an empty one.
    PictureBits(int width, int height);

    int width() const { return m_width; }
    int height() const { return m_height; }
    bool empty() const { return m_data.empty(); }
    int stride() const { return m_width * 4; }

    // Unchecked access, (byte, column, row).
    uint8_t &operator()(int b, int x, int y) { return m_data[index(b, x, y)]; }
    uint8_t operator()(int b, int x, int y) const { return m_data[index(b, x, y)]; }
    // Checked access: a subscript outside the bounds faults with "Subscript out of range".
    uint8_t &at(int b, int x, int y);
    uint8_t at(int b, int x, int y) const;

    uint8_t *data() { return m_data.data(); }
    const uint8_t *data() const { return m_data.data(); }
    uint8_t *row(int y) { return m_data.data() + std::size_t(y) * std::size_t(stride()); }
    const uint8_t *row(int y) const
    {
        return m_data.data() + std::size_t(y) * std::size_t(stride());
    }

    // 40, width, -height (top-down), 1 plane, 32 bits, BI_RGB, biSizeImage filled in.
    BITMAPINFOHEADER header() const { return makeDibHeader(m_width, -m_height, 32); }

private:
    std::size_t index(int b, int x, int y) const
    {
        return (std::size_t(y) * std::size_t(m_width) + std::size_t(x)) * 4 + std::size_t(b);
    }
    void check(int b, int x, int y) const;

    std::vector<uint8_t> m_data;
    int m_width = 0;
    int m_height = 0;
};

// The pixels of `picture` (any format; a picture control's is RGB32) as a width x height
// array through GetDIBits over all rows. Parts of the array outside the picture stay 0, and
// the unused byte is 0.
PictureBits TakeBitsFromPicture(const QImage &picture, int width, int height);
// The same from a device context.
PictureBits TakeBitsFromPicture(const DeviceContext &dc, int width, int height);

// The matching painter: SetDIBitsToDevice of the whole array at (0,0) of `dst`.
// Answers the number of rows written.
int PaintBitsToPicture(DeviceContext &dst, const PictureBits &bits);

} // namespace tf
