#pragma once
// The lead of a leaded window: lines in one colour at the pen's width. Straight edges along
// the axes are whole pixels (boxes of the pen's width); diagonals, arcs and circles are
// anti-aliased polylines, so a curve keeps the pen's width and shows no steps.
//
// Angles follow the picture's Circle: radians counter-clockwise from the positive x-axis, y
// pointing down on the screen; an arc from a to b runs counter-clockwise, through 2*pi when b
// lies below a.

#include "core/colour.h"

#include <functional>

namespace tf {

class PictureBox;

class LeadPen {
public:
    LeadPen(PictureBox &picture, ColorLong colour, int width);
    int width() const { return m_width; }
    ColorLong colour() const { return m_colour; }

    // Any straight line, anti-aliased.
    void line(double x1, double y1, double x2, double y2) const;
    // The outline of the box from (x1,y1) to (x2,y2), the pen's width inwards.
    void box(int x1, int y1, int x2, int y2) const;
    void arc(double cx, double cy, double r, double from, double to) const;
    void circle(double cx, double cy, double r) const;
    // A closed curve r(angle) around (cx,cy).
    void polar(double cx, double cy, const std::function<double(double)> &radiusAt) const;

private:
    PictureBox &m_pic;
    ColorLong m_colour;
    int m_width;
};

} // namespace tf
