#include "core/bmpstream.h"

#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <vector>

namespace tf {

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
    std::vector<uchar> batch(size_t(rowSize) * size_t(batchRows), 0);
    int inBatch = 0;
    for (int y = h - 1; y >= 0; --y) {
        const uchar *src = rows.row(y);
        uchar *dst = batch.data() + size_t(inBatch) * size_t(rowSize);
        for (int x = 0; x < w; ++x, src += rows.bytesPerPixel, dst += 3) {
            dst[0] = src[0];
            dst[1] = src[1];
            dst[2] = src[2];
        }
        if (++inBatch == batchRows || y == 0) {
            const qint64 n = rowSize * inBatch;
            if (out.write(reinterpret_cast<const char *>(batch.data()), n) != n)
                return false;
            inBatch = 0;
        }
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

} // namespace tf
