// PictureBox: Circle — circles, ellipses, arcs and pies.
#include "core/picturebox.h"
#include "core/picturebox_p.h"

#include <cmath>

namespace tf {

void PictureBox::Circle(double x, double y, double radius, ColorLong colour,
                        std::optional<double> start, std::optional<double> end,
                        std::optional<double> aspect)
{
    const double twoPi = 2 * Pi;
    // An angle beyond a full turn is an invalid call; a tiny excess is rounding of 2 * Pi.
    for (const auto &a : {start, end})
        if (a && std::abs(*a) > twoPi + 1e-6)
            throw Fault(Fault::InvalidCall);
    const int cx = detail::pixelOf(x), cy = detail::pixelOf(y);
    m_currentX = CSng(x);
    m_currentY = CSng(y);
    if (!(radius >= 0))
        return;

    // The radius is the longer half-axis; aspect is height to width.
    const double ratio = std::abs(aspect.value_or(1.0));
    const double rx = ratio > 1 ? radius / ratio : radius;
    const double ry = ratio > 1 ? radius : radius * ratio;
    raster::RoundBox shape;
    shape.cx = cx;
    shape.cy = cy;
    // Pixels whose centres lie within half a pixel beyond the rim belong to the figure.
    shape.hx = shape.ex = rx + 0.5;
    shape.hy = shape.ey = ry + 0.5;

    raster::ArcSpec arc;
    if (start || end) {
        // A negative angle (even -0) also draws the radius to that end of the arc.
        const double s = start.value_or(0.0), e = end.value_or(twoPi);
        arc.partial = true;
        arc.start = std::abs(s);
        arc.end = std::abs(e);
        arc.lineStart = std::signbit(s);
        arc.lineEnd = std::signbit(e);
    }

    DeviceContext &dc = beginDrawing();
    detail::DrawScope scope(dc, m_drawMode);
    const ColorLong c = detail::penColour(*this, colour);
    const QRect changed = raster::drawRoundBox(dc, shape, detail::strokeOf(*this, c),
                                               m_fillStyle == 0 ? m_fillColor : -1, arc);
    drawn(changed);
}

} // namespace tf
