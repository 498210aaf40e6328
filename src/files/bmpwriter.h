#pragma once
// The uncompressed Windows bitmap the main window writes, and the bitmap records of the
// encoders.

#include "core/dibits.h"

#include <QImage>
#include <QString>

class QIODevice;

namespace tf {

// A BITMAPINFOHEADER for a 32-bit picture of width x height: size 40, 1 plane, 32 bits,
// compression 0, and the image size Abs(height) * width * 128 (width << 7, 32 times 4 - kept
// as the system fills it, not a row stride).
BITMAPINFOHEADER FillBMPStruc(int width, int height);

// Writes the picture as an uncompressed 24-bit bitmap: the 14-byte file header (bfSize the
// whole file, bfOffBits 54), a 40-byte info header with the resolution in pixels per metre
// (0 when dpi is 0), then the rows bottom-up, each padded to 4 bytes. False when a write fails.
bool writeBmp(const QImage &image, QIODevice &out, int dpi = 0);

} // namespace tf
