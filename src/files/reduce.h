#pragma once
// What the decoders share: the checks of a declared size, the size a loaded picture is brought
// to, and the reduction through the surface's Resample.

#include "files/decode.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace tf {

class cDIBSection;

// The reason to refuse a picture that declares `size` in a file of `fileBytes` bytes, or an
// empty text. `pixelsPerByte` is the most pixels one byte of the format can stand for.
QString checkDeclaredSize(QSize size, qint64 fileBytes, double pixelsPerByte);

// The size a picture of `stored` size is loaded at: its own, or with `reduce` and more than
// BildMaxPixels pixels, its fit in the BildMaxSide box.
QSize loadedSize(QSize stored, const DecodeRequest &request);

// A new RGB32 picture of the surface's pixels.
QImage imageOfDib(const cDIBSection &dib);
// The surface resampled (bilinear, Resample) to `size`, as an RGB32 picture; null after a fault.
QImage resampledImage(const cDIBSection &dib, QSize size);
// The picture resampled to `size`; the picture itself when it has that size already.
QImage resampledImage(const QImage &image, QSize size);

} // namespace tf
