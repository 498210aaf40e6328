#include "core/colour.h"

#include "core/fault.h"

namespace tf {

ColorLong RGB(int r, int g, int b)
{
    if (r < 0 || g < 0 || b < 0)
        throw Fault(Fault::InvalidCall);
    r = r > 255 ? 255 : r;
    g = g > 255 ? 255 : g;
    b = b > 255 ? 255 : b;
    return ColorLong(r | (g << 8) | (b << 16));
}

} // namespace tf
