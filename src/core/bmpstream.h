#pragma once
// Writing a picture as an uncompressed 24-bit bitmap row by row, so that a picture of any size
// (a 14000 x 14000 Superformat surface as well as the main window's picture) goes to a file
// without a converted copy.

#include "core/encoderows.h"

#include <QByteArrayView>
#include <QImage>
#include <QSize>

class QIODevice;

namespace tf {

// The 14-byte file header (bfSize the whole file, bfOffBits 54), a 40-byte info header with
// the resolution in pixels per metre, then the rows bottom-up, each padded to 4 bytes. False
// when a write fails or there are no rows.
bool writeBmp24(const EncodeRows &rows, QIODevice &out, int dotsPerMetre = 0);
// The same for a picture of any format.
bool writeBmp24(const QImage &image, QIODevice &out, int dotsPerMetre = 0);

// The common bitmaps, uncompressed 24 or 32 bits a pixel (what writeBmp24 writes, and what
// most programs write): the size `bytes` declare, or an empty size when they are not one of
// them or the file is cut short.
QSize plainBmpSize(QByteArrayView bytes);
// Such a bitmap decoded in one pass into an RGB32 picture; a null picture for any other.
QImage readPlainBmp(QByteArrayView bytes);
// The same from a file, read in batches of rows (a mapped or wholly read file would stand
// beside the picture in memory).
QImage readPlainBmp(QIODevice &in);

} // namespace tf
