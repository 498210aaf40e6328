#include "files/picturefile.h"

#include "core/dibsection.h"
#include "core/bmpstream.h"
#include "files/bmpwriter.h"
#include "files/jpegcodec.h"
#include "files/pngcodec.h"
#include "files/savename.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>

namespace tf {

namespace {

LoadResult loadWith(const QString &file, const DecodeRequest &request)
{
    LoadResult r;
    QFile f(file);
    if (!QFileInfo(file).isFile() || !f.open(QIODevice::ReadOnly))
        return r;
    // The whole file at once: a decoder reads its header before it allocates the picture.
    // Mapped where the system can, so a large file is not copied before it is decoded.
    QByteArray read;
    QByteArrayView bytes;
    if (uchar *mapped = f.size() > 0 ? f.map(0, f.size()) : nullptr) {
        bytes = QByteArrayView(mapped, f.size());
    } else {
        read = f.readAll();
        bytes = read;
    }
    Decoded d = decodePicture(bytes, request);
    r.stored = d.stored;
    if (!d.ok()) {
        r.status = LoadResult::Status::Corrupt;
        r.detail = d.detail.isEmpty() ? decodetext::noPicture() : d.detail;
        return r;
    }
    r.status = LoadResult::Status::Loaded;
    r.image = std::move(d.image);
    return r;
}

} // namespace

LoadResult LoadImage(const QString &file, LoadLimit limit)
{
    DecodeRequest request;
    request.reduce = limit == LoadLimit::Box;
    return loadWith(file, request);
}

LoadResult loadPreview(const QString &file, QSize box)
{
    DecodeRequest request;
    request.preview = true;
    request.box = box;
    return loadWith(file, request);
}

QString corruptPictureText(bool seeStatusBar)
{
    return seeStatusBar ? QCoreApplication::translate("LoadImage",
                                                      "Fehlerhaftes Bild - Siehe Statusbar!")
                        : QCoreApplication::translate("LoadImage", "Fehlerhaftes Bild");
}

namespace {

using Encoder = bool (*)(const EncodeRows &, QIODevice &, const PictureMeta &, int quality,
                         QString &);

bool encodePng(const EncodeRows &rows, QIODevice &out, const PictureMeta &meta, int, QString &why)
{
    return SavePNG(rows, out, meta, &why);
}

bool encodeJpg(const EncodeRows &rows, QIODevice &out, const PictureMeta &meta, int quality,
               QString &why)
{
    return SaveJPG(rows, out, quality, meta, &why);
}

bool encodeBmp(const EncodeRows &rows, QIODevice &out, const PictureMeta &meta, int, QString &)
{
    return writeBmp24(rows, out, dotsPerMetre(meta.dpi));
}

struct SaveType {
    const char *tag;
    Encoder encode;
};

// The one list of the types a picture is saved as.
constexpr std::array<SaveType, 3> saveTypes{{
    {"PNG", encodePng},
    {"JPG", encodeJpg},
    {"BMP", encodeBmp},
}};

const SaveType *findSaveType(const QString &tag)
{
    for (const SaveType &t : saveTypes)
        if (tag == QLatin1String(t.tag))
            return &t;
    return nullptr;
}

// The picture's own pixels are encoded as they stand; another format is converted first.
QImage encodable(const QImage &image)
{
    return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32
               ? image
               : image.convertToFormat(QImage::Format_RGB32);
}

} // namespace

WriteResult saveRows(const EncodeRows &rows, const QString &path, const QString &SaveTypeTag,
                     const PictureMeta &meta, int jpegQuality)
{
    const SaveType *type = findSaveType(SaveTypeTag);
    if (!type || rows.empty())
        return {WriteFailure::Other,
                writeFailureMessage(WriteFailure::Other, path, SaveTypeTag)};
    return writeFileSafely(path, [&](QIODevice &out, QString &why) {
        return type->encode(rows, out, meta, jpegQuality, why);
    });
}

WriteResult savePicture(const QImage &image, const QString &path, const QString &SaveTypeTag,
                        const PictureMeta &meta, int jpegQuality)
{
    const QImage pixels = encodable(image);
    return saveRows(EncodeRows::of(pixels), path, SaveTypeTag, meta, jpegQuality);
}

QImage readPictureForCommand(const QString &path, LoadLimit limit, QString &message)
{
    const LoadResult r = LoadImage(path, limit);
    if (r.status == LoadResult::Status::Missing) {
        message = QCoreApplication::translate("LoadImage", "Die Datei %1 gibt es nicht.")
                      .arg(QDir::toNativeSeparators(path));
        return {};
    }
    if (!r.loaded()) {
        message = QStringLiteral("%1: %2 (%3)").arg(corruptPictureText(), path, r.detail);
        return {};
    }
    return r.image;
}

bool writeRowsForCommand(const EncodeRows &rows, const QString &path, const PictureMeta &meta,
                         QString &message)
{
    const QString tag = saveTypeOfSuffix(path);
    if (tag.isEmpty()) {
        message = QCoreApplication::translate("SafeFile",
                                              "Bilder werden als .png, .jpg oder .bmp "
                                              "gespeichert: %1")
                      .arg(path);
        return false;
    }
    const WriteResult r = saveRows(rows, path, tag, meta);
    message = r.message;
    return r.ok();
}

bool writePictureForCommand(const QImage &image, const QString &path, const PictureMeta &meta,
                            QString &message)
{
    const QImage pixels = encodable(image);
    return writeRowsForCommand(EncodeRows::of(pixels), path, meta, message);
}

PictureMeta readPictureMeta(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    // The header chunks and segments lie near the start; a recipe is at most 64 kB.
    const QByteArray head = f.read(1 << 20);
    switch (sniffPicture(head)) {
    case PictureKind::Png: return readPngMeta(head);
    case PictureKind::Jpeg: return readJpegMeta(head);
    default: return {};
    }
}

} // namespace tf
