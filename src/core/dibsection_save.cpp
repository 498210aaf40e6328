// cDIBSection::Save_BMP: the system's own 24-bit BMP file.
//
// File header (14 bytes, packed): "BM", bfSize = 40 + row size * height (it leaves out the 14
// bytes of the file header: a fixed trait of the files the system writes), two reserved
// zeros, bfOffBits 54. Info header (40 bytes): 40, width, height (positive, bottom-up),
// 1 plane, 24 bits, all else 0. Then the rows, bottom row first, each padded with zeros to
// ((width*24 + 31) \ 32) * 4 bytes, as GetDIBits gives them.
#include "core/dibsection.h"

#include <QSaveFile>
#include <QtEndian>
#include <algorithm>
#include <vector>

namespace tf {

bool cDIBSection::Save_BMP(const QString &sfileName, const cDIBSection &DIB)
{
    if (!DIB.hDIB())
        return false;
    const int W = DIB.dib_width(), H = DIB.dib_height();
    const int bitsPerPixel = 24;
    const qint64 rowSize = ((qint64(W) * bitsPerPixel + 31) / 32) * 4;

    uchar head[54] = {};
    qToLittleEndian<quint16>(19778, head + 0); // "BM"
    qToLittleEndian<quint32>(quint32(40 + rowSize * H), head + 2);
    qToLittleEndian<quint32>(54, head + 10);
    qToLittleEndian<quint32>(40, head + 14);
    qToLittleEndian<qint32>(W, head + 18);
    qToLittleEndian<qint32>(H, head + 22);
    qToLittleEndian<quint16>(1, head + 26);
    qToLittleEndian<quint16>(quint16(bitsPerPixel), head + 28);

    QSaveFile file(sfileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(reinterpret_cast<const char *>(head), sizeof head) != qint64(sizeof head)) {
        file.cancelWriting();
        return false;
    }
    // The pixels in bands of about a megabyte; the buffer's padding stays zero.
    const BITMAPINFOHEADER bi = makeDibHeader(W, H, bitsPerPixel);
    const int band = int(std::clamp<qint64>((qint64(1) << 20) / rowSize, 1, H));
    std::vector<uchar> buffer(size_t(rowSize) * size_t(band));
    for (int scan = 0; scan < H; scan += band) {
        const int n = std::min(band, H - scan);
        const qint64 bytes = rowSize * n;
        BITMAPINFOHEADER request = bi;
        if (GetDIBits(DIB.dib_hdc(), scan, n, buffer.data(), request) != n ||
            file.write(reinterpret_cast<const char *>(buffer.data()), bytes) != bytes) {
            file.cancelWriting();
            return false;
        }
    }
    return file.commit();
}

} // namespace tf
