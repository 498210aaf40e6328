#include "core/mbitmap.h"

#include "core/fault.h"

namespace tf {

PictureBits::PictureBits(int width, int height)
{
    if (width < 1 || height < 1)
        return;
    m_data.assign(std::size_t(width) * std::size_t(height) * 4, 0);
    m_width = width;
    m_height = height;
}

void PictureBits::check(int b, int x, int y) const
{
    if (b < 0 || b > 3 || x < 0 || x >= m_width || y < 0 || y >= m_height)
        throw Fault(Fault::SubscriptOutOfRange);
}

uint8_t &PictureBits::at(int b, int x, int y)
{
    check(b, x, y);
    return (*this)(b, x, y);
}

uint8_t PictureBits::at(int b, int x, int y) const
{
    check(b, x, y);
    return (*this)(b, x, y);
}

PictureBits TakeBitsFromPicture(const DeviceContext &dc, int width, int height)
{
    PictureBits bits(width, height);
    if (bits.empty())
        return bits;
    BITMAPINFOHEADER bi = bits.header();
    GetDIBits(dc, 0, height, bits.data(), bi);
    return bits;
}

PictureBits TakeBitsFromPicture(const QImage &picture, int width, int height)
{
    QImage source = contextReadable(picture);
    const DeviceContext dc(&source, false);
    return TakeBitsFromPicture(dc, width, height);
}

int PaintBitsToPicture(DeviceContext &dst, const PictureBits &bits)
{
    if (bits.empty())
        return 0;
    const BITMAPINFOHEADER bi = bits.header();
    return SetDIBitsToDevice(dst, 0, 0, bits.width(), bits.height(), 0, 0, 0, bits.height(),
                             bits.data(), bi);
}

} // namespace tf
