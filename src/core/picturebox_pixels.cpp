// PictureBox: single pixels (PSet, Point) and pictures (PaintPicture).
#include "core/picturebox.h"
#include "core/picturebox_p.h"

#include <cmath>

namespace tf {

void PictureBox::PSet(double x, double y, ColorLong colour)
{
    const int px = detail::pixelOf(x), py = detail::pixelOf(y);
    DeviceContext &dc = beginDrawing();
    detail::DrawScope scope(dc, m_drawMode);
    drawn(raster::drawDot(dc, px, py, m_drawWidth, detail::penColour(*this, colour)));
    m_currentX = CSng(x);
    m_currentY = CSng(y);
}

ColorLong PictureBox::Point(double x, double y) const
{
    const double rx = roundHalfEven(x), ry = roundHalfEven(y);
    const QImage &img = target();
    if (!(rx >= 0 && ry >= 0 && rx < img.width() && ry < img.height()))
        return -1;
    return fromQRgb(img.pixel(int(rx), int(ry)));
}

void PictureBox::PaintPicture(const QImage &source, double x1, double y1, std::optional<double> w1,
                              std::optional<double> h1, std::optional<double> x2,
                              std::optional<double> y2, std::optional<double> w2,
                              std::optional<double> h2, uint32_t rop)
{
    if (source.isNull())
        throw Fault(Fault::InvalidPicture);
    // A context over the source pixels; a shared copy, so drawing onto this control's own
    // image (detaching it) leaves the source as it was.
    QImage pixels = source.format() == QImage::Format_RGB32
                        ? source
                        : source.convertToFormat(QImage::Format_RGB32);
    DeviceContext src(&pixels, false);
    const int dx = detail::pixelOf(x1), dy = detail::pixelOf(y1);
    const int dw = w1 ? detail::pixelOf(*w1) : pixels.width();
    const int dh = h1 ? detail::pixelOf(*h1) : pixels.height();
    const int sx = x2 ? detail::pixelOf(*x2) : 0, sy = y2 ? detail::pixelOf(*y2) : 0;
    const int sw = w2 ? detail::pixelOf(*w2) : pixels.width();
    const int sh = h2 ? detail::pixelOf(*h2) : pixels.height();

    DeviceContext &dc = beginDrawing();
    StretchBlt(dc, dx, dy, dw, dh, src, sx, sy, sw, sh, rop);
    drawn(QRect(dx, dy, dw, dh).normalized());
}

void PictureBox::PaintPicture(PictureBox &source, double x1, double y1, std::optional<double> w1,
                              std::optional<double> h1, std::optional<double> x2,
                              std::optional<double> y2, std::optional<double> w2,
                              std::optional<double> h2, uint32_t rop)
{
    PaintPicture(source.Image(), x1, y1, w1, h1, x2, y2, w2, h2, rop);
}

} // namespace tf
