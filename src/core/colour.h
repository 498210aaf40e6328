#pragma once
// Colour longs: 0x00BBGGRR, red in the low byte.
//
// RGB packs three channel values, a value above 255 counting as 255; a negative value is an
// invalid call. A negative colour long is a system colour of screen forms and never occurs in
// a picture.

#include <QColor>
#include <cstdint>

namespace tf {

using ColorLong = int32_t;

ColorLong RGB(int r, int g, int b);

inline int RedOf(ColorLong c) { return c & 255; }
inline int GreenOf(ColorLong c) { return (c / 256) & 255; }
inline int BlueOf(ColorLong c) { return (c / 65536) & 255; }

// 0xAARRGGBB of Qt (opaque) from a colour long and back.
inline uint32_t toQRgb(ColorLong c)
{
    return 0xFF000000u | (uint32_t(RedOf(c)) << 16) | (uint32_t(GreenOf(c)) << 8) |
           uint32_t(BlueOf(c));
}
inline ColorLong fromQRgb(uint32_t rgb)
{
    return ColorLong(((rgb >> 16) & 255) | (rgb & 0xFF00) | ((rgb & 255) << 16));
}
inline QColor toQColor(ColorLong c) { return QColor::fromRgb(toQRgb(c)); }

} // namespace tf
