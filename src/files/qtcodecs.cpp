// BMP and GIF through Qt's readers, after our own look at the sizes their headers declare.
#include "files/decode.h"
#include "core/bmpstream.h"
#include "files/reduce.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <cstdlib>
#include <limits>

namespace tf {

namespace {

// The size a BMP declares and the most pixels its bytes can stand for: uncompressed rows are
// all in the file; a run-length coded byte pair stands for up to 255 pixels, and the escapes
// that skip pixels are counted generously.
bool bmpDeclared(QByteArrayView b, QSize &size, double &pixelsPerByte)
{
    if (b.size() < 26)
        return false;
    const auto *p = reinterpret_cast<const uchar *>(b.data());
    const quint32 headerSize = qFromLittleEndian<quint32>(p + 14);
    int bits = 0;
    quint32 compression = 0;
    if (headerSize == 12) {
        size = QSize(qFromLittleEndian<quint16>(p + 18), qFromLittleEndian<quint16>(p + 20));
        bits = qFromLittleEndian<quint16>(p + 24);
    } else if (headerSize >= 40 && b.size() >= 34) {
        const qint32 w = qFromLittleEndian<qint32>(p + 18);
        const qint32 h = qFromLittleEndian<qint32>(p + 22);
        // A top-down bitmap gives its height negative.
        size = QSize(w, h == std::numeric_limits<qint32>::min() ? -1 : std::abs(h));
        bits = qFromLittleEndian<quint16>(p + 28);
        compression = qFromLittleEndian<quint32>(p + 30);
    } else {
        return false;
    }
    if (compression == 1 || compression == 2) // RLE8, RLE4
        pixelsPerByte = 1024;
    else
        pixelsPerByte = bits > 0 ? 8.0 / bits : 1.0;
    return true;
}

// The logical screen of a GIF. An LZW code stands for at most 4096 pixels, and a code that
// long is 12 bits wide: at most 2731 pixels a byte.
bool gifDeclared(QByteArrayView b, QSize &size, double &pixelsPerByte)
{
    if (b.size() < 10)
        return false;
    const auto *p = reinterpret_cast<const uchar *>(b.data());
    size = QSize(qFromLittleEndian<quint16>(p + 6), qFromLittleEndian<quint16>(p + 8));
    pixelsPerByte = 4096.0 / 1.5;
    return true;
}

Decoded decodeWithQt(QByteArrayView bytes, const DecodeRequest &request, const char *format,
                     bool (*declared)(QByteArrayView, QSize &, double &))
{
    QSize size;
    double pixelsPerByte = 1;
    if (!declared(bytes, size, pixelsPerByte))
        return Decoded::failure(decodetext::noPicture());
    const QString refused = checkDeclaredSize(size, bytes.size(), pixelsPerByte);
    if (!refused.isEmpty())
        return Decoded::failure(refused, size);

    QByteArray data = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(false);
    Decoded d;
    d.stored = size;
    QImage image = reader.read();
    if (image.isNull()) {
        d.detail = QStringLiteral("%1: %2").arg(QString::fromLatin1(format).toUpper(),
                                                reader.errorString());
        return d;
    }
    d.stored = image.size();
    // Alpha is stripped, not blended: the colours under a transparent pixel show as stored.
    image = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                          : QImage::Format_RGB32);
    image.reinterpretAsFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] |= 0xFF000000u;
    }
    d.image = resampledImage(image, loadedSize(d.stored, request));
    return d;
}

// The common bitmaps, uncompressed 24 and 32 bits a pixel, are read straight into the
// picture: a 4096 x 4096 file then costs one pass over its bytes. Everything else (palettes,
// run-length coding, bit fields, the old 12-byte header, a file cut short) goes through Qt's
// reader. Answers false when this bitmap is not one of the common ones.
bool decodePlainBmp(QByteArrayView bytes, const DecodeRequest &request, Decoded &d)
{
    const QSize size = plainBmpSize(bytes);
    if (size.isEmpty())
        return false;
    const int bits = qFromLittleEndian<quint16>(bytes.data() + 28);
    const QString refused = checkDeclaredSize(size, bytes.size(), 8.0 / bits);
    if (!refused.isEmpty()) {
        d = Decoded::failure(refused, size);
        return true;
    }
    const QImage image = readPlainBmp(bytes);
    if (image.isNull()) {
        d = Decoded::failure(decodetext::tooLarge(size), size);
        return true;
    }
    d = Decoded{};
    d.stored = size;
    d.image = resampledImage(image, loadedSize(d.stored, request));
    return true;
}

} // namespace

QSize bmpHeaderSize(QByteArrayView bytes)
{
    QSize size;
    double pixelsPerByte = 1;
    return bmpDeclared(bytes, size, pixelsPerByte) && size.width() > 0 && size.height() > 0
               ? size
               : QSize();
}

QSize gifHeaderSize(QByteArrayView bytes)
{
    QSize size;
    double pixelsPerByte = 1;
    return gifDeclared(bytes, size, pixelsPerByte) && size.width() > 0 && size.height() > 0
               ? size
               : QSize();
}

Decoded decodeBmp(QByteArrayView bytes, const DecodeRequest &request)
{
    Decoded d;
    if (decodePlainBmp(bytes, request, d))
        return d;
    return decodeWithQt(bytes, request, "bmp", bmpDeclared);
}

Decoded decodeGif(QByteArrayView bytes, const DecodeRequest &request)
{
    return decodeWithQt(bytes, request, "gif", gifDeclared);
}

} // namespace tf
