#include "files/surfacesave.h"

#include "core/dibsection.h"
#include "files/jpegcodec.h"
#include "files/pngcodec.h"
#include "files/savename.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <array>

namespace tf {

namespace {

using Encoder = bool (*)(const cDIBSection &, QIODevice &, const PictureMeta &, int quality,
                         QString &why);

bool encodePng(const cDIBSection &dib, QIODevice &out, const PictureMeta &meta, int, QString &why)
{
    return SavePNG(dib, out, meta, &why);
}

bool encodeJpg(const cDIBSection &dib, QIODevice &out, const PictureMeta &meta, int quality,
               QString &why)
{
    return SaveJPG(dib, out, quality, meta, &why);
}

bool encodeBmp(const cDIBSection &dib, QIODevice &out, const PictureMeta &meta, int, QString &)
{
    return writeSurfaceBmp(dib, out, meta.dpi);
}

struct SaveType {
    const char *tag;
    Encoder encode;
};

// The one list of the types a surface is saved as.
constexpr std::array<SaveType, 3> saveTypes{{
    {"PNG", encodePng},
    {"JPG", encodeJpg},
    {"BMP", encodeBmp},
}};

} // namespace

bool writeSurfaceBmp(const cDIBSection &dib, QIODevice &out, int dpi)
{
    if (!dib.hDIB()) return false;
    const int w = dib.dib_width(), h = dib.dib_height();
    const qint64 stride = dib.BytesPerScanLine();
    const qint64 pixelBytes = stride * h;
    const int dpm = dotsPerMetre(dpi);
    uchar head[54] = {};
    head[0] = 'B';
    head[1] = 'M';
    qToLittleEndian<quint32>(quint32(54 + pixelBytes), head + 2);
    qToLittleEndian<quint32>(54, head + 10);
    qToLittleEndian<quint32>(40, head + 14);
    qToLittleEndian<qint32>(w, head + 18);
    qToLittleEndian<qint32>(h, head + 22);
    qToLittleEndian<quint16>(1, head + 26);
    qToLittleEndian<quint16>(24, head + 28);
    qToLittleEndian<quint32>(quint32(pixelBytes), head + 34);
    qToLittleEndian<qint32>(dpm, head + 38);
    qToLittleEndian<qint32>(dpm, head + 42);
    if (out.write(reinterpret_cast<const char *>(head), sizeof head) != qint64(sizeof head))
        return false;
    // The surface's memory rows are the file's rows: bottom-up, padded to 4 bytes. Blocks of
    // rows keep the writes large.
    const ConstDibView v = dib.view();
    constexpr int Block = 64;
    for (int y = 0; y < h; y += Block) {
        const qint64 bytes = stride * std::min(Block, h - y);
        if (out.write(reinterpret_cast<const char *>(v.row(y)), bytes) != bytes) return false;
    }
    return true;
}

WriteResult saveSurface(const cDIBSection &dib, const QString &path, const QString &SaveTypeTag,
                        const PictureMeta &meta, int jpegQuality)
{
    const SaveType *type = nullptr;
    for (const SaveType &t : saveTypes)
        if (SaveTypeTag == QLatin1String(t.tag)) type = &t;
    if (!type || !dib.hDIB())
        return {WriteFailure::Other, writeFailureMessage(WriteFailure::Other, path, SaveTypeTag)};
    return writeFileSafely(path, [&](QIODevice &out, QString &why) {
        return type->encode(dib, out, meta, jpegQuality, why);
    });
}

bool writeSurfaceForCommand(const cDIBSection &dib, const QString &path, const PictureMeta &meta,
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
    const WriteResult r = saveSurface(dib, path, tag, meta);
    message = r.message;
    return r.ok();
}

} // namespace tf
