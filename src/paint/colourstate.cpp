#include "paint/colourstate.h"

#include "paint/session.h"

namespace tf {

ColorLong Pick_RandomColor(Session &s)
{
    // Each channel is a single: the product and the sum are rounded to single before the
    // conversion rounds half to even.
    auto channel = [&s] {
        const Single scaled = s.Rnd() * Single(254);
        return int(CInt(double(scaled + Single(1))));
    };
    const int r = channel();
    const int g = channel();
    const int b = channel();
    return RGB(r, g, b);
}

} // namespace tf
