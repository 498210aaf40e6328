#pragma once
// The rows a whole-picture renderer writes, top row first, in blue-green-red byte order:
// either 3 bytes a pixel (an off-screen surface, stored bottom-up) or 4 (a picture control's
// RGB32 image, whose fourth byte is written 0xFF). One renderer thus paints a picture and a
// Superformat surface alike, straight into their memory.
#include "core/dibsection.h"

#include <QImage>
#include <cstddef>

namespace tf {

struct PixelRows {
    int width = 0;
    int height = 0;
    int bytesPerPixel = 3;
    uchar *top = nullptr;       // the first byte of the top row
    std::ptrdiff_t stride = 0;  // from one row to the next below it (negative bottom-up)

    bool empty() const { return !top || width < 1 || height < 1; }
    uchar *row(int y) const { return top + std::ptrdiff_t(y) * stride; }

    // Writes one pixel of row `r` at column x (blue, green, red).
    void put(uchar *r, int x, uchar b, uchar g, uchar red) const
    {
        uchar *p = r + std::ptrdiff_t(x) * bytesPerPixel;
        p[0] = b;
        p[1] = g;
        p[2] = red;
        if (bytesPerPixel == 4) p[3] = 0xFF;
    }

    // A surface of 3 bytes a pixel; empty for any other.
    static PixelRows of(cDIBSection &surface)
    {
        PixelRows r;
        if (!surface.hDIB() || surface.dib_channels() != 3) return r;
        const DibView v = surface.view();
        r.width = surface.dib_width();
        r.height = surface.dib_height();
        r.top = v.row(r.height - 1);
        r.stride = -std::ptrdiff_t(surface.BytesPerScanLine());
        return r;
    }
    // A picture of Format_RGB32 (the picture control's); empty for any other. The picture is
    // detached here, before any row is written.
    static PixelRows of(QImage &picture)
    {
        PixelRows r;
        if (picture.isNull() || picture.format() != QImage::Format_RGB32) return r;
        r.width = picture.width();
        r.height = picture.height();
        r.bytesPerPixel = 4;
        r.top = picture.bits();
        r.stride = std::ptrdiff_t(picture.bytesPerLine());
        return r;
    }
};

} // namespace tf
