#include "files/bmpwriter.h"

#include "files/picturemeta.h"

#include <QIODevice>
#include <QtEndian>
#include <cstdlib>
#include <vector>

namespace tf {

BITMAPINFOHEADER FillBMPStruc(int width, int height)
{
    BITMAPINFOHEADER bi;
    bi.biSize = 40;
    bi.biWidth = width;
    bi.biHeight = height;
    bi.biPlanes = 1;
    bi.biBitCount = 32;
    bi.biCompression = 0;
    bi.biSizeImage = uint32_t(qint64(std::abs(height)) * (qint64(width) << 7));
    return bi;
}

bool writeBmp(const QImage &source, QIODevice &out, int dpi)
{
    const QImage image = source.format() == QImage::Format_RGB32 || source.format() == QImage::Format_ARGB32
                             ? source
                             : source.convertToFormat(QImage::Format_RGB32);
    const int w = image.width(), h = image.height();
    if (w < 1 || h < 1)
        return false;
    const qint64 rowSize = (qint64(w) * 3 + 3) / 4 * 4;
    const qint64 pixelBytes = rowSize * h;
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
    std::vector<char> row(size_t(rowSize), 0);
    for (int y = h - 1; y >= 0; --y) {
        const auto *src = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < w; ++x) {
            row[size_t(x) * 3] = char(qBlue(src[x]));
            row[size_t(x) * 3 + 1] = char(qGreen(src[x]));
            row[size_t(x) * 3 + 2] = char(qRed(src[x]));
        }
        if (out.write(row.data(), rowSize) != rowSize)
            return false;
    }
    return true;
}

} // namespace tf
