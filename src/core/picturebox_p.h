#pragma once
// Helpers shared by the drawing operations of the picture control.

#include "core/gdi_raster.h"
#include "core/picturebox.h"

namespace tf::detail {

// Gives one operation of the control the context's raster mode and text state it needs, and
// puts back what a painter had selected when the operation ends.
class DrawScope {
public:
    DrawScope(DeviceContext &dc, int rop2)
        : m_dc(dc), m_rop2(dc.rop2), m_font(dc.font), m_textColor(dc.textColor),
          m_bkColor(dc.bkColor), m_bkMode(dc.bkMode)
    {
        dc.rop2 = rop2;
    }
    ~DrawScope()
    {
        m_dc.rop2 = m_rop2;
        m_dc.font = m_font;
        m_dc.textColor = m_textColor;
        m_dc.bkColor = m_bkColor;
        m_dc.bkMode = m_bkMode;
    }
    DrawScope(const DrawScope &) = delete;
    DrawScope &operator=(const DrawScope &) = delete;

private:
    DeviceContext &m_dc;
    int m_rop2;
    Font m_font;
    ColorLong m_textColor, m_bkColor;
    int m_bkMode;
};

// The colour of an operation: a negative colour means ForeColor.
inline ColorLong penColour(const PictureBox &pb, ColorLong colour)
{
    return colour < 0 ? pb.ForeColor() : (colour & 0xFFFFFF);
}

// The control's pen in `colour`; dash gaps take BackColor when text is not transparent.
inline raster::Stroke strokeOf(const PictureBox &pb, ColorLong colour)
{
    raster::Stroke s;
    s.style = pb.DrawStyle();
    s.width = pb.DrawWidth();
    s.colour = colour;
    s.opaqueGaps = !pb.FontTransparent();
    s.gapColour = pb.BackColor();
    return s;
}

// A coordinate as a whole pixel; outside the 32-bit range it is an Overflow fault.
inline int pixelOf(double v) { return CLng(v); }

} // namespace tf::detail
