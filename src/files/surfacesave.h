#pragma once
// Saving a surface as it stands, without a copy of its pixels: the Superformat viewer and the
// command line's Superformat paints write a picture of up to 14000 x 14000 pixels (588 MB)
// this way. PNG and JPEG go through their encoders, which read the surface's rows; a BMP is
// the surface's own rows behind the file and info headers (the same file the main window's
// BMP is: 24 bits, bottom-up, the resolution in pixels per metre).
//
// Every file is written through writeFileSafely, so a failure leaves the old file as it was.

#include "files/picturemeta.h"
#include "files/safefile.h"

#include <QString>

class QIODevice;

namespace tf {

class cDIBSection;

// Writes the surface as an uncompressed 24-bit bitmap. False when a write fails or the
// surface is empty.
bool writeSurfaceBmp(const cDIBSection &dib, QIODevice &out, int dpi = 0);

// Writes the surface as the type of `SaveTypeTag` ("PNG", "JPG", "BMP") to `path`.
WriteResult saveSurface(const cDIBSection &dib, const QString &path, const QString &SaveTypeTag,
                        const PictureMeta &meta = {}, int jpegQuality = 100);

// The command line's save of a surface: the format by the extension (.png, .jpg/.jpeg,
// .bmp); false with the message for an unknown extension or a failed write.
bool writeSurfaceForCommand(const cDIBSection &dib, const QString &path, const PictureMeta &meta,
                            QString &message);

} // namespace tf
