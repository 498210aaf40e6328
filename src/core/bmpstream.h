#pragma once
// Writing a picture as an uncompressed 24-bit bitmap row by row, so that a picture of any size
// goes to a file through one row of memory and never through a converted copy.

#include <QImage>

class QIODevice;

namespace tf {

// The 14-byte file header (bfSize the whole file, bfOffBits 54), a 40-byte info header with
// the resolution in pixels per metre, then the rows bottom-up, each padded to 4 bytes. False
// when a write fails or the picture is empty.
bool writeBmp24(const QImage &image, QIODevice &out, int dotsPerMetre = 0);

} // namespace tf
