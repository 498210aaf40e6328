#include "files/passepartout.h"

#include "core/dibsection.h"
#include "core/numeric.h"
#include "files/picturelimits.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tf {

namespace {

// The picture of a bottom-up 24-bit surface as a top-down RGB32 image.
QImage imageOfSurface(const cDIBSection &dib)
{
    const ConstDibView v = dib.view();
    QImage out(v.width, v.height, QImage::Format_RGB32);
    for (int y = 0; y < v.height; ++y) {
        const uint8_t *src = v.row(v.height - 1 - y);
        auto *dst = reinterpret_cast<QRgb *>(out.scanLine(y));
        for (int x = 0; x < v.width; ++x)
            dst[x] = qRgb(src[3 * x + 2], src[3 * x + 1], src[3 * x]);
    }
    return out;
}

// One channel of ring s of w from c1 to c2.
int stepChannel(int c1, int c2, int s, int w)
{
    const double step = std::abs(double(c2) - double(c1)) / double(w);
    const double v = c2 >= c1 ? c1 + step * s : c1 - step * s;
    return std::clamp(int(roundHalfEven(v)), 0, 255);
}

void ring(QImage &img, int inset, QRgb colour)
{
    const int x0 = inset, y0 = inset;
    const int x1 = img.width() - 1 - inset, y1 = img.height() - 1 - inset;
    if (x1 < x0 || y1 < y0) return;
    for (int y : {y0, y1}) {
        auto *row = reinterpret_cast<QRgb *>(img.scanLine(y));
        std::fill(row + x0, row + x1 + 1, colour);
    }
    for (int y = y0 + 1; y < y1; ++y) {
        auto *row = reinterpret_cast<QRgb *>(img.scanLine(y));
        row[x0] = colour;
        row[x1] = colour;
    }
}

} // namespace

QImage fitIntoLimits(const QImage &picture, int maxWidth, int maxHeight)
{
    if (picture.isNull()) return {};
    const int boxW = maxWidth > 0 ? maxWidth : picture.width();
    const int boxH = maxHeight > 0 ? maxHeight : picture.height();
    const QSize size = fitIntoBox(picture.size(), QSize(boxW, boxH));
    if (size == picture.size()) return picture.convertToFormat(QImage::Format_RGB32);
    cDIBSection source;
    if (!source.CreateFromPicture(picture)) return {};
    const auto scaled = source.Resample(size.width(), size.height());
    return scaled ? imageOfSurface(*scaled) : QImage();
}

QImage Draw_Passepartout(const QImage &picture, const PPRecord &set)
{
    if (picture.isNull()) return {};
    const int border = set.border();
    const qint64 w = qint64(picture.width()) + 2 * border,
                 h = qint64(picture.height()) + 2 * border;
    if (w > MaxDecodeSide || h > MaxDecodeSide) return {};
    QImage out(int(w), int(h), QImage::Format_RGB32);
    if (out.isNull()) return {};
    int inset = 0;
    ColorLong before = 0;
    bool first = true;
    for (int k = PPFrames - 1; k >= 0; --k) {
        const int w = set.width[size_t(k)];
        if (w < 1) continue;
        const ColorLong c2 = set.colour[size_t(k)];
        const ColorLong c1 = first ? c2 : before;
        for (int s = 1; s <= w; ++s) {
            QRgb colour = toQRgb(c2);
            if (set.gradient())
                colour = qRgb(stepChannel(RedOf(c1), RedOf(c2), s, w),
                              stepChannel(GreenOf(c1), GreenOf(c2), s, w),
                              stepChannel(BlueOf(c1), BlueOf(c2), s, w));
            ring(out, inset + s - 1, colour);
        }
        inset += w;
        before = c2;
        first = false;
    }
    QPainter p(&out);
    p.setCompositionMode(QPainter::CompositionMode_Source);
    p.drawImage(border, border, picture.convertToFormat(QImage::Format_RGB32));
    return out;
}

} // namespace tf
