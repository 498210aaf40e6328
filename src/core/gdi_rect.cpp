// Rectangle arithmetic; right and bottom are exclusive.
#include "core/gdi.h"

#include <algorithm>

namespace tf {

bool SetRect(RECT &r, int left, int top, int right, int bottom)
{
    r = RECT{left, top, right, bottom};
    return true;
}

bool SetRectEmpty(RECT &r)
{
    r = RECT{};
    return true;
}

bool OffsetRect(RECT &r, int dx, int dy)
{
    r.left += dx;
    r.right += dx;
    r.top += dy;
    r.bottom += dy;
    return true;
}

bool InflateRect(RECT &r, int dx, int dy)
{
    r.left -= dx;
    r.right += dx;
    r.top -= dy;
    r.bottom += dy;
    return true;
}

bool IsRectEmpty(const RECT &r) { return r.right <= r.left || r.bottom <= r.top; }

bool IntersectRect(RECT &dst, const RECT &a, const RECT &b)
{
    const RECT c{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                 std::min(a.bottom, b.bottom)};
    if (IsRectEmpty(c)) {
        dst = RECT{};
        return false;
    }
    dst = c;
    return true;
}

bool PtInRect(const RECT &r, POINTAPI pt)
{
    return pt.x >= r.left && pt.x < r.right && pt.y >= r.top && pt.y < r.bottom;
}

} // namespace tf
