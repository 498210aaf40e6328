#include "files/reduce.h"

#include "core/dibsection.h"
#include "files/picturelimits.h"

namespace tf {

QString checkDeclaredSize(QSize size, qint64 fileBytes, double pixelsPerByte)
{
    if (size.width() < 1 || size.height() < 1)
        return decodetext::badSize(size);
    if (size.width() > MaxDecodeSide || size.height() > MaxDecodeSide)
        return decodetext::tooLarge(size);
    if (double(size.width()) * double(size.height()) > double(fileBytes) * pixelsPerByte)
        return decodetext::claimsTooMuch(size);
    return {};
}

QSize loadedSize(QSize stored, const DecodeRequest &request)
{
    if (request.preview)
        return fitIntoBox(stored, request.box);
    if (!request.reduce || takenWhole(stored.width(), stored.height()))
        return stored;
    return fitIntoBox(stored, request.box);
}

QImage imageOfDib(const cDIBSection &dib)
{
    QImage out(dib.dib_width(), dib.dib_height(), QImage::Format_RGB32);
    if (out.isNull())
        return out;
    const ConstDibView v = dib.view();
    for (int y = 0; y < out.height(); ++y) {
        const uint8_t *src = v.row(v.height - 1 - y);
        auto *dst = reinterpret_cast<QRgb *>(out.scanLine(y));
        for (int x = 0; x < out.width(); ++x, src += 3)
            dst[x] = qRgb(src[2], src[1], src[0]);
    }
    return out;
}

QImage resampledImage(const cDIBSection &dib, QSize size)
{
    if (size == QSize(dib.dib_width(), dib.dib_height()))
        return imageOfDib(dib);
    const auto small = dib.Resample(size.width(), size.height());
    return small ? imageOfDib(*small) : QImage();
}

QImage resampledImage(const QImage &image, QSize size)
{
    if (image.size() == size)
        return image;
    cDIBSection dib;
    if (!dib.CreateFromPicture(image))
        return {};
    return resampledImage(dib, size);
}

} // namespace tf
