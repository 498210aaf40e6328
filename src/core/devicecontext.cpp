#include "core/devicecontext.h"

namespace tf {

void DeviceContext::attach(QImage *image, bool bottomUp)
{
    m_image = image;
    m_bottomUp = bottomUp;
}

ColorLong DeviceContext::pixel(int x, int y) const
{
    if (!valid() || !contains(x, y))
        return -1;
    const uchar *p = scanLine(y) + x * bytesPerPixel();
    return ColorLong(p[2] | (p[1] << 8) | (p[0] << 16));
}

void DeviceContext::setPixel(int x, int y, ColorLong c)
{
    if (!valid() || !contains(x, y))
        return;
    uchar *p = scanLine(y) + x * bytesPerPixel();
    p[0] = uchar(BlueOf(c));
    p[1] = uchar(GreenOf(c));
    p[2] = uchar(RedOf(c));
    if (bytesPerPixel() == 4)
        p[3] = 0xFF;
}

std::unique_ptr<QPainter> DeviceContext::painter()
{
    auto p = std::make_unique<QPainter>(m_image);
    if (m_bottomUp)
        p->setTransform(QTransform(1, 0, 0, -1, 0, height()));
    if (m_hasClip)
        p->setClipRect(m_clip);
    p->setRenderHint(QPainter::Antialiasing, false);
    p->setRenderHint(QPainter::TextAntialiasing, false);
    return p;
}

Pen SelectObject(DeviceContext &dc, const Pen &pen)
{
    Pen before = dc.pen;
    dc.pen = pen;
    return before;
}

Brush SelectObject(DeviceContext &dc, const Brush &brush)
{
    Brush before = dc.brush;
    dc.brush = brush;
    return before;
}

Font SelectObject(DeviceContext &dc, const Font &font)
{
    Font before = dc.font;
    dc.font = font;
    return before;
}

Pen CreatePen(int style, int width, ColorLong color) { return Pen{style, width, color}; }
Brush CreateSolidBrush(ColorLong color) { return Brush{false, color}; }
Brush GetStockHollowBrush() { return Brush{true, 0}; }

int SetROP2(DeviceContext &dc, int rop2)
{
    const int before = dc.rop2;
    dc.rop2 = rop2;
    return before;
}

int SetBkMode(DeviceContext &dc, int mode)
{
    const int before = dc.bkMode;
    dc.bkMode = mode;
    return before;
}

ColorLong SetBkColor(DeviceContext &dc, ColorLong c)
{
    const ColorLong before = dc.bkColor;
    dc.bkColor = c;
    return before;
}

ColorLong SetTextColor(DeviceContext &dc, ColorLong c)
{
    const ColorLong before = dc.textColor;
    dc.textColor = c;
    return before;
}

int SetStretchBltMode(DeviceContext &dc, int mode)
{
    const int before = dc.stretchMode;
    dc.stretchMode = mode;
    return before;
}

int GetStretchBltMode(const DeviceContext &dc) { return dc.stretchMode; }

} // namespace tf
