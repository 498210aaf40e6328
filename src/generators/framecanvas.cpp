#include "generators/framecanvas.h"

#include "core/dibsection.h"
#include "core/picturebox.h"

#include <algorithm>

namespace tf {

PictureCanvas::PictureCanvas(PictureBox &pic) : m_pic(pic)
{
    m_pic.setDrawWidth(1);
    m_pic.setDrawStyle(0);
    m_pic.setDrawMode(13);
}

int PictureCanvas::width() const { return m_pic.Width(); }
int PictureCanvas::height() const { return m_pic.Height(); }

void PictureCanvas::fillBox(int x1, int y1, int x2, int y2, ColorLong colour)
{
    m_pic.Line(x1, y1, x2, y2, colour, LineFlags::BF);
}

void PictureCanvas::line(int x1, int y1, int x2, int y2, ColorLong colour)
{
    m_pic.Line(x1, y1, x2, y2, colour);
}

void PictureCanvas::clear() { m_pic.Cls(); }

DeviceContext &PictureCanvas::dc() { return m_pic.hDC(); }

void PictureCanvas::changed() { m_pic.markChanged(); }

int DibCanvas::width() const { return m_dib.dib_width(); }
int DibCanvas::height() const { return m_dib.dib_height(); }

void DibCanvas::fillBox(int x1, int y1, int x2, int y2, ColorLong colour)
{
    // LineDIB holds a box outside the surface to its edge: such a box is left out here.
    if (x1 > x2)
        std::swap(x1, x2);
    if (y1 > y2)
        std::swap(y1, y2);
    const int w = m_dib.dib_width(), h = m_dib.dib_height();
    if (x2 < 0 || y2 < 0 || x1 >= w || y1 >= h)
        return;
    // LineDIB counts rows from the bottom.
    cDIBSection::LineDIB(m_dib, x1, h - 1 - y1, x2, h - 1 - y2, colour, QStringLiteral("BF"));
}

void DibCanvas::line(int x1, int y1, int x2, int y2, ColorLong colour)
{
    // The end point is left out, as the picture control's Line leaves it.
    if (y1 == y2 && x1 != x2)
        x2 += x2 > x1 ? -1 : 1;
    else if (x1 == x2 && y1 != y2)
        y2 += y2 > y1 ? -1 : 1;
    fillBox(x1, y1, x2, y2, colour);
}

DeviceContext &DibCanvas::dc() { return m_dib.dib_hdc(); }

} // namespace tf
