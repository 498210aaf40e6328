#pragma once
// The rows an encoder writes, top row first, in blue-green-red byte order: either 3 bytes a
// pixel (a surface) or 4 with an unused fourth byte (a picture's own RGB32 pixels). Encoding
// straight from the picture's pixels spares a converted copy, which for a 14000 x 14000
// picture is 588 MB.
#include "core/dibsection.h"

#include <QImage>
#include <cstddef>

namespace tf {

struct EncodeRows {
    int width = 0;
    int height = 0;
    int bytesPerPixel = 3;
    const uchar *top = nullptr;  // the first byte of the top row
    std::ptrdiff_t stride = 0;   // from one row to the next below it (negative bottom-up)

    bool empty() const { return !top || width < 1 || height < 1; }
    const uchar *row(int y) const { return top + std::ptrdiff_t(y) * stride; }

    // A surface of 3 bytes a pixel; empty for any other.
    static EncodeRows of(const cDIBSection &surface)
    {
        EncodeRows r;
        if (!surface.hDIB() || surface.dib_channels() != 3)
            return r;
        const ConstDibView v = surface.view();
        r.width = surface.dib_width();
        r.height = surface.dib_height();
        r.top = v.row(r.height - 1);
        r.stride = -std::ptrdiff_t(surface.BytesPerScanLine());
        return r;
    }
    // A picture of Format_RGB32 or Format_ARGB32 (its alpha is not written); empty for others.
    static EncodeRows of(const QImage &picture)
    {
        EncodeRows r;
        if (picture.isNull() || (picture.format() != QImage::Format_RGB32 &&
                                 picture.format() != QImage::Format_ARGB32))
            return r;
        r.width = picture.width();
        r.height = picture.height();
        r.bytesPerPixel = 4;
        r.top = picture.constBits();
        r.stride = std::ptrdiff_t(picture.bytesPerLine());
        return r;
    }
};

} // namespace tf
