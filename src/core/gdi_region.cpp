// Regions as sets of pixels.
#include "core/gdi.h"
#include "core/gdi_raster.h"

#include <algorithm>
#include <vector>

namespace tf {

namespace {

int kindOf(const QRegion &r)
{
    if (r.isEmpty())
        return NULLREGION;
    return r.rectCount() == 1 ? SIMPLEREGION : COMPLEXREGION;
}

QRect pixelRect(int left, int top, int right, int bottom)
{
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
    return QRect(QPoint(left, top), QPoint(right - 1, bottom - 1));
}

} // namespace

Region CreateRectRgn(int left, int top, int right, int bottom)
{
    const QRect r = pixelRect(left, top, right, bottom);
    return Region{r.isEmpty() ? QRegion() : QRegion(r)};
}

Region CreateEllipticRgn(int left, int top, int right, int bottom)
{
    const QRect r = pixelRect(left, top, right, bottom);
    if (r.isEmpty())
        return Region{};
    const raster::RoundBox shape = raster::boxOfRect(r.left(), r.top(), r.right() + 1,
                                                     r.bottom() + 1, r.width(), r.height());
    std::vector<QRect> rows;
    for (int y = r.top(); y <= r.bottom(); ++y) {
        int x0, x1;
        if (shape.row(y, x0, x1))
            rows.emplace_back(QPoint(x0, y), QPoint(x1, y));
    }
    QRegion rgn;
    rgn.setRects(rows.data(), int(rows.size()));
    return Region{rgn};
}

bool PtInRegion(const Region &rgn, int x, int y) { return rgn.pixels.contains(QPoint(x, y)); }

int GetRgnBox(const Region &rgn, RECT &box)
{
    const QRect b = rgn.pixels.boundingRect();
    box = b.isEmpty() ? RECT{} : RECT{b.left(), b.top(), b.right() + 1, b.bottom() + 1};
    return kindOf(rgn.pixels);
}

int CombineRgn(Region &dst, const Region &a, const Region &b, int mode)
{
    switch (mode) {
    case RGN_AND: dst.pixels = a.pixels.intersected(b.pixels); break;
    case RGN_OR: dst.pixels = a.pixels.united(b.pixels); break;
    case RGN_XOR: dst.pixels = a.pixels.xored(b.pixels); break;
    case RGN_DIFF: dst.pixels = a.pixels.subtracted(b.pixels); break;
    case RGN_COPY: dst.pixels = a.pixels; break;
    default: return ERROR_REGION;
    }
    return kindOf(dst.pixels);
}

int OffsetRgn(Region &rgn, int dx, int dy)
{
    rgn.pixels.translate(dx, dy);
    return kindOf(rgn.pixels);
}

} // namespace tf
