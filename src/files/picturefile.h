#pragma once
// Loading a picture file and saving a picture, as the desktop program and the command line
// both do it.
//
// LoadImage reads the file and decodes it (decode.h): a picture of at most BildMaxPixels
// pixels at its own size, a larger one brought into the BildMaxSide box, or with
// LoadLimit::KeepSize at its own size up to MaxDecodeSide.
//
// savePicture writes BMP, JPEG (quality 100 unless said) or PNG through writeFileSafely, so a
// failure leaves the old file as it was; PNG and JPEG carry the picture's meta data.

#include "files/decode.h"
#include "core/encoderows.h"
#include "files/picturemeta.h"
#include "files/safefile.h"

#include <QImage>
#include <QString>

namespace tf {

enum class LoadLimit { Box, KeepSize };

struct LoadResult {
    enum class Status { Loaded, Missing, Corrupt };
    Status status = Status::Missing;
    QImage image;   // RGB32 when Loaded
    QSize stored;   // the size the file declares
    QString detail; // why a corrupt file could not be read
    bool loaded() const { return status == Status::Loaded; }
};

// Decodes `file`. A file that is not there answers Missing (the callers end silently).
LoadResult LoadImage(const QString &file, LoadLimit limit = LoadLimit::Box);

// A preview of `file` fitted into `box`, decoded reduced where the format allows (decode.h);
// `stored` in the result is the picture's own size.
LoadResult loadPreview(const QString &file, QSize box);

// "Fehlerhaftes Bild" / "Corrupt image"; with the detail in the status bar,
// "Fehlerhaftes Bild - Siehe Statusbar!" / "Corrupt image - See Statusbar!".
QString corruptPictureText(bool seeStatusBar = false);

// Writes `image` as the type of `SaveTypeTag` ("PNG", "JPG", "BMP") to `path`.
WriteResult savePicture(const QImage &image, const QString &path, const QString &SaveTypeTag,
                        const PictureMeta &meta = {}, int jpegQuality = 100);
// The same from rows of a picture or a surface (see encoderows.h): one table of the types for
// both.
WriteResult saveRows(const EncodeRows &rows, const QString &path, const QString &SaveTypeTag,
                     const PictureMeta &meta = {}, int jpegQuality = 100);

// The pair the command line reads and writes pictures through. readPictureFile answers a null
// image after putting the corrupt-picture message (and the detail) into `message`;
// writePictureFile chooses the format by the extension (.png, .jpg/.jpeg, .bmp) and answers
// false with the message for an unknown extension or a failed write.
QImage readPictureForCommand(const QString &path, LoadLimit limit, QString &message);
bool writePictureForCommand(const QImage &image, const QString &path, const PictureMeta &meta,
                            QString &message);
// The same from rows of a picture or a surface.
bool writeRowsForCommand(const EncodeRows &rows, const QString &path, const PictureMeta &meta,
                         QString &message);

// The meta data a picture file carries (PNG and JPEG; empty for other files).
PictureMeta readPictureMeta(const QString &path);

} // namespace tf
