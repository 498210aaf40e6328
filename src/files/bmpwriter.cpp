#include "files/bmpwriter.h"

#include "core/bmpstream.h"
#include "files/picturemeta.h"

#include <cstdlib>

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
    return writeBmp24(source, out, dotsPerMetre(dpi));
}

} // namespace tf
