#include "files/decode.h"

#include "files/picturelimits.h"

#include <QCoreApplication>
#include <array>
#include <cstring>

namespace tf {

Decoded Decoded::failure(const QString &why, QSize stored)
{
    Decoded d;
    d.detail = why;
    d.stored = stored;
    return d;
}

namespace {

struct KindEntry {
    PictureKind kind;
    const char *magic;
    size_t magicLength;
    Decoded (*decode)(QByteArrayView, const DecodeRequest &);
    QSize (*headerSize)(QByteArrayView);
};

const std::array<KindEntry, 5> &kinds()
{
    static const std::array<KindEntry, 5> table{{
        {PictureKind::Png, "\x89PNG\r\n\x1a\n", 8, decodePng, pngHeaderSize},
        {PictureKind::Jpeg, "\xFF\xD8\xFF", 3, decodeJpeg, jpegHeaderSize},
        {PictureKind::Bmp, "BM", 2, decodeBmp, bmpHeaderSize},
        {PictureKind::Gif, "GIF87a", 6, decodeGif, gifHeaderSize},
        {PictureKind::Gif, "GIF89a", 6, decodeGif, gifHeaderSize},
    }};
    return table;
}

} // namespace

PictureKind sniffPicture(QByteArrayView bytes)
{
    for (const KindEntry &k : kinds())
        if (size_t(bytes.size()) >= k.magicLength &&
            std::memcmp(bytes.data(), k.magic, k.magicLength) == 0)
            return k.kind;
    return PictureKind::Unknown;
}

Decoded decodePicture(QByteArrayView bytes, const DecodeRequest &request)
{
    for (const KindEntry &k : kinds())
        if (size_t(bytes.size()) >= k.magicLength &&
            std::memcmp(bytes.data(), k.magic, k.magicLength) == 0)
            return k.decode(bytes, request);
    return Decoded::failure(decodetext::noPicture());
}

QSize pictureHeaderSize(QByteArrayView bytes)
{
    for (const KindEntry &k : kinds())
        if (size_t(bytes.size()) >= k.magicLength &&
            std::memcmp(bytes.data(), k.magic, k.magicLength) == 0)
            return k.headerSize(bytes);
    return QSize();
}

namespace decodetext {

QString tooLarge(QSize size)
{
    return QCoreApplication::translate("Decode",
                                       "Das Bild ist %1 x %2 Pixel groß, mehr als %3 Pixel an "
                                       "einer Seite.")
        .arg(size.width())
        .arg(size.height())
        .arg(MaxDecodeSide);
}

QString claimsTooMuch(QSize size)
{
    return QCoreApplication::translate("Decode",
                                       "Die Datei gibt %1 x %2 Pixel an, mehr als ihre Daten "
                                       "fassen können.")
        .arg(size.width())
        .arg(size.height());
}

QString noPicture()
{
    return QCoreApplication::translate("Decode",
                                       "Die Datei ist kein Bild im Format BMP, GIF, JPEG oder PNG.");
}

QString badSize(QSize size)
{
    return QCoreApplication::translate("Decode", "Die Datei gibt die Größe %1 x %2 Pixel an.")
        .arg(size.width())
        .arg(size.height());
}

} // namespace decodetext

} // namespace tf
