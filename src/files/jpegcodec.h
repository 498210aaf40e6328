#pragma once
// JPEG through libjpeg-turbo.
//
// Reading takes greyscale, YCbCr, RGB and CMYK/YCCK files (Adobe's inverted CMYK as such) and
// turns the picture upright by its EXIF orientation. A picture to be reduced into the load box
// is decoded at the DCT scale 1/2, 1/4 or 1/8 that keeps it at or above the box, then
// resampled. A file that ends before its last row is refused; damage the library can step over
// is stepped over.
//
// Writing takes a 24-bit surface (blue, green, red, bottom-up) and makes a baseline JFIF file
// at the given quality with 4:2:0 subsampling, the resolution in the JFIF density and the
// program and recipe in one comment.

#include "files/decode.h"
#include "files/picturemeta.h"

#include <QByteArrayView>
#include <QString>

class QIODevice;

namespace tf {

class cDIBSection;
struct EncodeRows;

// The padding bytes of a row of `width` pixels of `channels` bytes: (width*channels + 3)
// rounded down to a multiple of 4, less width*channels.
int IJL_DIB_PAD_BYTES(int width, int channels);

// Writes the surface as JPEG at quality 1..100. False (with the library's reason in `why`) on
// failure; the caller throws away what was written.
bool SaveJPG(const cDIBSection &source, QIODevice &out, int quality, const PictureMeta &meta = {},
             QString *why = nullptr);
// The same from a picture's own pixels (RGB32 or ARGB32), without a copy.
bool SaveJPG(const QImage &source, QIODevice &out, int quality, const PictureMeta &meta = {},
             QString *why = nullptr);
// The same from rows of either kind.
bool SaveJPG(const EncodeRows &source, QIODevice &out, int quality, const PictureMeta &meta = {},
             QString *why = nullptr);

// The density (as dots per inch) and the comment of a JPEG's header.
PictureMeta readJpegMeta(QByteArrayView bytes);

// The DCT scale denominator (1, 2, 4 or 8) at which a picture of `stored` size still covers
// `target`: the largest whose scaled size (rounded up) is not below it.
int jpegScaleFor(QSize stored, QSize target);

} // namespace tf
