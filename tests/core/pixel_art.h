#pragma once
// Pictures as text for exact pixel checks: one character per pixel, rows ended by '\n'.
// The key maps colour longs to characters; any other colour shows as '?'. Also a test picture
// whose pixels all differ.

#include "core/colour.h"
#include "core/devicecontext.h"

#include <QImage>
#include <QRect>
#include <map>
#include <string>

namespace tf::test {

using ArtKey = std::map<ColorLong, char>;

// White '.', black '#', red 'r', green 'g', blue 'b'.
inline const ArtKey &basicKey()
{
    static const ArtKey key{{0xFFFFFF, '.'}, {0x000000, '#'}, {0x0000FF, 'r'},
                            {0x00FF00, 'g'}, {0xFF0000, 'b'}};
    return key;
}

inline std::string art(const DeviceContext &dc, const ArtKey &key = basicKey())
{
    std::string s;
    for (int y = 0; y < dc.height(); ++y) {
        for (int x = 0; x < dc.width(); ++x) {
            const auto it = key.find(dc.pixel(x, y));
            s += it == key.end() ? '?' : it->second;
        }
        s += '\n';
    }
    return s;
}

inline std::string art(const QImage &image, const ArtKey &key = basicKey())
{
    QImage copy = image;
    DeviceContext dc(&copy, false);
    return art(dc, key);
}

// An RGB32 picture whose pixels all differ (up to 6 x 5): red, green and blue grow with x, y.
inline QImage gradient(int w, int h)
{
    QImage pic(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            pic.setPixel(x, y, qRgb(40 * x + 3, 50 * y + 7, 11 * x + 13 * y + 1));
    return pic;
}

// The box of the pixels that are not `background`.
inline QRect inkBox(const DeviceContext &dc, ColorLong background = 0xFFFFFF)
{
    QRect box;
    for (int y = 0; y < dc.height(); ++y)
        for (int x = 0; x < dc.width(); ++x)
            if (dc.pixel(x, y) != background) box |= QRect(x, y, 1, 1);
    return box;
}

inline QRect inkBox(const QImage &image, ColorLong background = 0xFFFFFF)
{
    QImage copy = image;
    DeviceContext dc(&copy, false);
    return inkBox(dc, background);
}

// One row of a picture.
inline std::string artRow(const QImage &image, int y, const ArtKey &key = basicKey())
{
    std::string s;
    for (int x = 0; x < image.width(); ++x) {
        const auto it = key.find(fromQRgb(image.pixel(x, y)));
        s += it == key.end() ? '?' : it->second;
    }
    return s;
}

} // namespace tf::test
