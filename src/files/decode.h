#pragma once
// Decoders: bytes in, a picture or a reason out.
//
// Every decoder takes the whole file as a byte span and answers a `Decoded`: an RGB32 picture
// (bytes blue, green, red, 0xFF; alpha is stripped, not blended) or an empty image with the
// reason in `detail`. The kind of file is told by its first bytes, never by its name. Each
// decoder checks the size the file declares before it allocates: a side beyond MaxDecodeSide,
// or more pixels than the file's bytes can hold, is refused.
//
// With `reduce` a picture of more than BildMaxPixels pixels comes back fitted into the
// BildMaxSide box (Fit_Into_Box, then Resample); JPEG first decodes at the DCT scale 1/2, 1/4
// or 1/8 that keeps the picture at or above the box.

#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <QString>

namespace tf {

enum class PictureKind { Unknown, Png, Jpeg, Bmp, Gif };

struct DecodeRequest {
    bool reduce = true; // bring a picture above BildMaxPixels into the BildMaxSide box
    // A preview: any picture larger than `box` is brought into it, and a large picture is
    // never decoded whole (JPEG at its smallest DCT scale, PNG row by row, keeping every n-th).
    bool preview = false;
    QSize box{1600, 1600};
    // When valid (and neither `reduce` nor `preview` brings the picture into the box): the size
    // the caller will bring the picture to itself, upright. A JPEG is then decoded at the
    // smallest DCT scale 1/2, 1/4 or 1/8 that still covers it and comes back at that scale,
    // not resampled; other kinds come back whole.
    QSize atLeast;
};

struct Decoded {
    QImage image;   // Format_RGB32; null when the file could not be read
    QSize stored;   // the size the file declares (empty when unknown)
    QString detail; // why it could not be read (for the status bar), else empty
    bool ok() const { return !image.isNull(); }

    static Decoded failure(const QString &why, QSize stored = QSize());
};

// The kind of picture by its first bytes.
PictureKind sniffPicture(QByteArrayView bytes);

// Decodes a picture of any of the four kinds (one table from kind to decoder).
Decoded decodePicture(QByteArrayView bytes, const DecodeRequest &request = {});

// The size a picture of any of the four kinds decodes at whole, upright (a JPEG's EXIF
// orientation applied), read from its header alone; invalid when the bytes declare none.
QSize pictureHeaderSize(QByteArrayView bytes);

Decoded decodePng(QByteArrayView bytes, const DecodeRequest &request = {});
Decoded decodeJpeg(QByteArrayView bytes, const DecodeRequest &request = {});
Decoded decodeBmp(QByteArrayView bytes, const DecodeRequest &request = {});
Decoded decodeGif(QByteArrayView bytes, const DecodeRequest &request = {});

// The header sizes of the kinds (see pictureHeaderSize).
QSize pngHeaderSize(QByteArrayView bytes);
QSize jpegHeaderSize(QByteArrayView bytes);
QSize bmpHeaderSize(QByteArrayView bytes);
QSize gifHeaderSize(QByteArrayView bytes);

namespace decodetext {
// The reasons shared by the decoders, in the user's language.
QString tooLarge(QSize size);     // a side beyond MaxDecodeSide
QString claimsTooMuch(QSize size); // more pixels than the file can hold
QString noPicture();              // no picture of a known kind
QString badSize(QSize size);      // a side of 0
} // namespace decodetext

} // namespace tf
