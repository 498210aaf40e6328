#include "core/largeimage.h"

#include <cstdlib>
#include <cstring>
#include <limits>
#include <sys/mman.h>

namespace tf {

namespace {

constexpr qsizetype LargePage = qsizetype(2) << 20;
// Below this a picture takes few faults, and rounding it up to whole large pages would cost
// more memory than it saves time.
constexpr qsizetype LargeEnough = qsizetype(8) << 20;

void freeBytes(void *bytes) { std::free(bytes); }

} // namespace

QImage largeImage(int width, int height, QImage::Format format)
{
    if (width <= 0 || height <= 0 || format == QImage::Format_Invalid) return {};
    const int depth = QImage::toPixelFormat(format).bitsPerPixel();
    // Rows of whole 32-bit words, as QImage lays them out.
    const qint64 bytesPerLine = (qint64(width) * depth + 31) / 32 * 4;
    const qint64 size = bytesPerLine * height;
    if (size < LargeEnough || depth < 8 || size > std::numeric_limits<qsizetype>::max() - LargePage)
        return QImage(width, height, format);
    const size_t rounded = size_t((size + LargePage - 1) / LargePage * LargePage);
    void *bytes = std::aligned_alloc(size_t(LargePage), rounded);
    if (!bytes) return {};
    // Only advice: where large pages are off, the bytes come on small ones as before.
    madvise(bytes, rounded, MADV_HUGEPAGE);
    return QImage(static_cast<uchar *>(bytes), width, height, qsizetype(bytesPerLine), format,
                  freeBytes, bytes);
}

QImage largeCopy(const QImage &source)
{
    if (source.isNull()) return {};
    QImage copy = largeImage(source.width(), source.height(), source.format());
    if (copy.isNull()) return {};
    if (copy.bytesPerLine() == source.bytesPerLine()) {
        std::memcpy(copy.bits(), source.constBits(), size_t(source.sizeInBytes()));
    } else {
        const size_t row = size_t(std::min(copy.bytesPerLine(), source.bytesPerLine()));
        for (int y = 0; y < source.height(); ++y)
            std::memcpy(copy.scanLine(y), source.constScanLine(y), row);
    }
    copy.setDotsPerMeterX(source.dotsPerMeterX());
    copy.setDotsPerMeterY(source.dotsPerMeterY());
    copy.setColorTable(source.colorTable());
    return copy;
}

} // namespace tf
