// PictureBox: Line in its plain, "from the pen" and Step forms, and boxes.
#include "core/picturebox.h"
#include "core/picturebox_p.h"

#include <algorithm>

namespace tf {

using detail::pixelOf;

void PictureBox::drawLine(int x1, int y1, int x2, int y2, ColorLong colour, LineFlags flags)
{
    DeviceContext &dc = beginDrawing();
    detail::DrawScope scope(dc, m_drawMode);
    const ColorLong c = detail::penColour(*this, colour);
    raster::Stroke stroke = detail::strokeOf(*this, c);
    QRect changed;
    if (flags == LineFlags::None) {
        int64_t phase = 0;
        changed = raster::drawLine(dc, x1, y1, x2, y2, stroke, phase, false);
    } else {
        // A box has both corners inside: its right and bottom edges are x2 and y2.
        const raster::RoundBox box = raster::boxOfRect(std::min(x1, x2), std::min(y1, y2),
                                                       std::max(x1, x2) + 1, std::max(y1, y2) + 1);
        ColorLong fill = m_fillStyle == 0 ? m_fillColor : -1;
        if (flags == LineFlags::BF) {
            // Filled in the line colour; a dashed outline would leave holes in it.
            fill = c;
            if (stroke.style != PS_NULL && stroke.style != PS_INSIDEFRAME)
                stroke.style = PS_SOLID;
        }
        changed = raster::drawRoundBox(dc, box, stroke, fill);
    }
    drawn(changed);
}

void PictureBox::Line(double x1, double y1, double x2, double y2, ColorLong colour,
                      LineFlags flags)
{
    drawLine(pixelOf(x1), pixelOf(y1), pixelOf(x2), pixelOf(y2), colour, flags);
    m_currentX = CSng(x2);
    m_currentY = CSng(y2);
}

void PictureBox::LineTo(double x2, double y2, ColorLong colour, LineFlags flags)
{
    Line(m_currentX, m_currentY, x2, y2, colour, flags);
}

void PictureBox::LineStep(bool step1, double x1, double y1, bool step2, double x2, double y2,
                          ColorLong colour, LineFlags flags)
{
    if (step1) {
        x1 += m_currentX;
        y1 += m_currentY;
    }
    if (step2) {
        x2 += x1;
        y2 += y1;
    }
    Line(x1, y1, x2, y2, colour, flags);
}

} // namespace tf
