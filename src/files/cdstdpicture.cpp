#include "files/cdstdpicture.h"

#include "core/dibsection.h"
#include "core/status.h"
#include "files/decode.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace tf {

namespace {

// The file's bytes, mapped where the system can: `keep` holds them when they had to be read.
QByteArrayView fileBytes(QFile &f, QByteArray &keep)
{
    const qint64 n = f.size();
    if (n <= 0)
        return {};
    if (uchar *mapped = f.map(0, n))
        return QByteArrayView(mapped, n);
    keep = f.read(n);
    return keep;
}

} // namespace

QSize photoFileSize(const QString &path)
{
    QFile f(path);
    if (!QFileInfo(path).isFile() || !f.open(QIODevice::ReadOnly))
        return QSize();
    QByteArray keep;
    // A JPEG's EXIF block (which holds its orientation) lies before its frame header, and may
    // carry a thumbnail: the whole file is mapped rather than guessing how much to read.
    return pictureHeaderSize(fileBytes(f, keep));
}

LoadResult loadPhoto(const QString &path, QSize need)
{
    LoadResult r;
    QFile f(path);
    if (!QFileInfo(path).isFile() || !f.open(QIODevice::ReadOnly))
        return r;
    QByteArray keep;
    DecodeRequest request;
    request.reduce = false;
    if (need.isValid() && !need.isEmpty())
        request.atLeast = need;
    const QByteArrayView bytes = fileBytes(f, keep);
    Decoded d = decodePicture(bytes, request);
    if (!d.ok()) {
        r.status = LoadResult::Status::Corrupt;
        r.stored = d.stored;
        r.detail = d.detail.isEmpty() ? decodetext::noPicture() : d.detail;
        return r;
    }
    r.status = LoadResult::Status::Loaded;
    // The decoders give the size as stored; the header says it upright.
    const QSize upright = pictureHeaderSize(bytes);
    r.stored = upright.isValid() ? upright : d.image.size();
    r.image = std::move(d.image);
    return r;
}

QString invalidPictureText(const QString &path)
{
    return QCoreApplication::translate("PicMosaik", "Ungültiges Bild ") + path;
}

bool Load_CDStdPicture(const QString &Path, cDIBSection &Dib, int32_t &W, int32_t &H, QSize Need,
                       bool NeedVariant, bool AllowSmall, StatusSink &status)
{
    Dib.ClearUp();
    LoadResult r = loadPhoto(Path, NeedVariant ? Need : QSize());
    if (!r.loaded() || !Dib.CreateFromPicture(r.image)) {
        Dib.ClearUp();
        status.setPanelText(sbrState, invalidPictureText(Path));
        return false;
    }
    W = r.stored.width();
    H = r.stored.height();
    if (!AllowSmall && Need.isValid() && (W < Need.width() || H < Need.height()))
        return false;
    return true;
}

} // namespace tf
