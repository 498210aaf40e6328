#pragma once
// PNG through the system's libpng.
//
// Reading strips alpha (the colours under a transparent pixel show as stored), packs and
// expands every colour type and bit depth to 8-bit BGR, and scales 16-bit samples to 8 bits.
// Writing makes an 8-bit RGB file without interlace, with an sBIT chunk, the resolution in
// pHYs and the program and the recipe in text chunks (see picturemeta.h).
//
// libpng reports its faults by a long jump back to the routine that set it up; no C++ object
// lives in the frames it jumps over.

#include "files/decode.h"
#include "files/picturemeta.h"

#include <QByteArrayView>
#include <QImage>
#include <QString>

class QIODevice;

namespace tf {

class cDIBSection;
struct EncodeRows;

// The size from the header alone (signature and IHDR), without decoding a row. False when
// the file is not a PNG or cannot be read.
bool PNG_GetSize(const QString &file, int &width, int &height);
bool pngSize(QByteArrayView bytes, int &width, int &height);

// Decodes a whole file into an RGB32 picture (target becomes null on failure).
bool PNG_Read(const QString &file, QImage &target);
// Decodes a whole file into a surface of its size.
bool PNG_ReadDIB(cDIBSection &target, const QString &file);
// The same from bytes; `why` gets the reason of a failure.
bool pngReadImage(QByteArrayView bytes, QImage &target, QString *why = nullptr);
bool pngReadDib(QByteArrayView bytes, cDIBSection &target, QString *why = nullptr);

// The resolution, program and recipe of a PNG's header chunks (those before the pixels).
PictureMeta readPngMeta(QByteArrayView bytes);

// Writes the surface as PNG to `out`. False (with the library's reason in `why`) on failure;
// the caller throws away what was written.
bool SavePNG(const cDIBSection &source, QIODevice &out, const PictureMeta &meta = {},
             QString *why = nullptr);
// The same from a picture's own pixels (RGB32 or ARGB32, alpha not written), without a copy.
bool SavePNG(const QImage &source, QIODevice &out, const PictureMeta &meta = {},
             QString *why = nullptr);
// The same from rows of either kind.
bool SavePNG(const EncodeRows &source, QIODevice &out, const PictureMeta &meta = {},
             QString *why = nullptr);

} // namespace tf
