#include "core/bmpstream.h"

#include "core/largeimage.h"
#include "core/parallel.h"
#include "core/pixelrows.h"
#include "core/vectorloops.h"

#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <limits>
#include <vector>

namespace tf {

namespace {

// A picture's row of `bytesPerPixel`-byte pixels (blue, green, red first) as a file's row of
// three bytes a pixel.
void fileRowOf(const uchar *src, int bytesPerPixel, uchar *dst, int w)
{
    if (bytesPerPixel == 4) {
        rowOf32To24(src, dst, w);
        return;
    }
    for (int x = 0; x < w; ++x, src += bytesPerPixel, dst += 3) {
        dst[0] = src[0];
        dst[1] = src[1];
        dst[2] = src[2];
    }
}

} // namespace

bool writeBmp24(const EncodeRows &rows, QIODevice &out, int dotsPerMetre)
{
    if (rows.empty())
        return false;
    const int w = rows.width, h = rows.height;
    const qint64 rowSize = (qint64(w) * 3 + 3) / 4 * 4;
    const qint64 pixelBytes = rowSize * h;

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
    qToLittleEndian<qint32>(dotsPerMetre, head + 38);
    qToLittleEndian<qint32>(dotsPerMetre, head + 42);
    if (out.write(reinterpret_cast<const char *>(head), sizeof head) != qint64(sizeof head))
        return false;
    // Rows go out in batches of about a megabyte: one write a row costs more than the
    // conversion for narrow pictures.
    const int batchRows = int(std::max<qint64>(1, (1 << 20) / rowSize));
    if (rows.bytesPerPixel == 3 && rows.stride == -rowSize) {
        // A bottom-up surface of padded rows holds the file's rows as they are.
        for (int y = h - 1; y >= 0; y -= batchRows) {
            const int n = std::min(batchRows, y + 1);
            const qint64 bytes = rowSize * n;
            if (out.write(reinterpret_cast<const char *>(rows.row(y)), bytes) != bytes)
                return false;
        }
        return true;
    }
    // Larger batches here: their rows are converted on every core. A small picture takes a
    // batch of its own size, not one of a large picture's.
    const int convertRows = int(std::min<qint64>(qint64(batchRows) * 8, h));
    std::vector<uchar> batch(size_t(rowSize) * size_t(convertRows), 0);
    for (int top = h - 1; top >= 0; top -= convertRows) {
        const int n = std::min(convertRows, top + 1);
        parallelRows(n, w, [&](int first, int last) {
            for (int k = first; k < last; ++k)
                fileRowOf(rows.row(top - k), rows.bytesPerPixel,
                          batch.data() + size_t(k) * size_t(rowSize), w);
        });
        const qint64 bytes = rowSize * n;
        if (out.write(reinterpret_cast<const char *>(batch.data()), bytes) != bytes)
            return false;
    }
    return true;
}

bool writeBmp24(const QImage &source, QIODevice &out, int dotsPerMetre)
{
    const QImage image = source.format() == QImage::Format_RGB32 || source.format() == QImage::Format_ARGB32
                             ? source
                             : source.convertToFormat(QImage::Format_RGB32);
    return writeBmp24(EncodeRows::of(image), out, dotsPerMetre);
}

namespace {

struct PlainBmp {
    int width = 0, height = 0, bytesPerPixel = 0;
    bool topDown = false;
    qint64 rowSize = 0;
    quint32 offBits = 0;
};

// The header's first 54 bytes of a file of `fileSize` bytes.
bool plainBmp(QByteArrayView b, qint64 fileSize, PlainBmp &bmp)
{
    if (b.size() < 54 || b[0] != 'B' || b[1] != 'M')
        return false;
    const auto *p = reinterpret_cast<const uchar *>(b.data());
    const quint32 offBits = qFromLittleEndian<quint32>(p + 10);
    const quint32 headerSize = qFromLittleEndian<quint32>(p + 14);
    const qint32 w = qFromLittleEndian<qint32>(p + 18);
    const qint32 h = qFromLittleEndian<qint32>(p + 22);
    const int planes = qFromLittleEndian<quint16>(p + 26);
    const int bits = qFromLittleEndian<quint16>(p + 28);
    const quint32 compression = qFromLittleEndian<quint32>(p + 30);
    if (headerSize < 40 || planes != 1 || compression != 0 || (bits != 24 && bits != 32) ||
        w < 1 || h == 0 || h == std::numeric_limits<qint32>::min())
        return false;
    bmp.width = w;
    bmp.height = std::abs(h);
    bmp.topDown = h < 0;
    bmp.bytesPerPixel = bits / 8;
    bmp.rowSize = (qint64(w) * bmp.bytesPerPixel + 3) / 4 * 4;
    bmp.offBits = offBits;
    return offBits >= 14 + headerSize && qint64(offBits) + bmp.rowSize * bmp.height <= fileSize;
}

// A file's row of 4-byte pixels as a picture's row (the unused byte 0xFF), in vector code.
TF_VECTOR_LOOP void pictureRowOf32(const uchar *__restrict src, quint32 *__restrict dst, int w)
{
    for (int x = 0; x < w; ++x)
        dst[x] = 0xFF000000u | quint32(src[4 * x + 2]) << 16 | quint32(src[4 * x + 1]) << 8 |
                 src[4 * x];
}

// One row of the file into picture row y of the picture's bytes `bits` (bytesPerLine apart;
// taken once, as a row pointer of a QImage would be on every thread).
void convertRow(const PlainBmp &bmp, const uchar *src, uchar *bits, qsizetype bytesPerLine,
                int fileRow)
{
    const int y = bmp.topDown ? fileRow : bmp.height - 1 - fileRow;
    auto *dst = reinterpret_cast<quint32 *>(bits + bytesPerLine * y);
    if (bmp.bytesPerPixel == 3)
        rowOf24To32(src, dst, bmp.width);
    else
        pictureRowOf32(src, dst, bmp.width);
}

} // namespace

QSize plainBmpSize(QByteArrayView bytes)
{
    PlainBmp bmp;
    return plainBmp(bytes, bytes.size(), bmp) ? QSize(bmp.width, bmp.height) : QSize();
}

QImage readPlainBmp(QByteArrayView bytes)
{
    PlainBmp bmp;
    if (!plainBmp(bytes, bytes.size(), bmp))
        return {};
    QImage image = largeImage(bmp.width, bmp.height, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    const auto *pixels = reinterpret_cast<const uchar *>(bytes.data()) + bmp.offBits;
    uchar *bits = image.bits();
    const qsizetype bytesPerLine = image.bytesPerLine();
    parallelRows(bmp.height, bmp.width, [&](int first, int last) {
        for (int r = first; r < last; ++r)
            convertRow(bmp, pixels + bmp.rowSize * r, bits, bytesPerLine, r);
    });
    return image;
}

QImage readPlainBmp(QIODevice &in)
{
    PlainBmp bmp;
    const QByteArray head = in.peek(54);
    if (!plainBmp(head, in.size(), bmp) || !in.seek(bmp.offBits))
        return {};
    QImage image = largeImage(bmp.width, bmp.height, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    // Rows come in batches of about a megabyte straight into the picture.
    const int batchRows = int(std::max<qint64>(1, (1 << 20) / bmp.rowSize));
    std::vector<char> batch(size_t(bmp.rowSize) * size_t(batchRows));
    for (int r = 0; r < bmp.height; r += batchRows) {
        const int n = std::min(batchRows, bmp.height - r);
        const qint64 bytes = bmp.rowSize * n;
        if (in.read(batch.data(), bytes) != bytes)
            return {};
        for (int k = 0; k < n; ++k)
            convertRow(bmp, reinterpret_cast<const uchar *>(batch.data()) + bmp.rowSize * k,
                       image.bits(), image.bytesPerLine(), r + k);
    }
    return image;
}

} // namespace tf
