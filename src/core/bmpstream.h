#pragma once
// Writing a picture as an uncompressed 24-bit bitmap row by row, so that a picture of any size
// (a 14000 x 14000 Superformat surface as well as the main window's picture) goes to a file
// without a converted copy.

#include "core/encoderows.h"

#include <QImage>

class QIODevice;

namespace tf {

// The 14-byte file header (bfSize the whole file, bfOffBits 54), a 40-byte info header with
// the resolution in pixels per metre, then the rows bottom-up, each padded to 4 bytes. False
// when a write fails or there are no rows.
bool writeBmp24(const EncodeRows &rows, QIODevice &out, int dotsPerMetre = 0);
// The same for a picture of any format.
bool writeBmp24(const QImage &image, QIODevice &out, int dotsPerMetre = 0);

} // namespace tf
