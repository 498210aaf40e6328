#include "tools/strokecolour.h"

#include "core/numeric.h"
#include "paint/duocolortable.h"
#include "paint/session.h"

namespace tf {

bool RandomPen(const Session &s) { return s.colours().RandomColors; }

namespace {

bool tableInForce(const Session &s)
{
    const ColourState &c = s.colours();
    return (c.XDuotones[0] || c.XDuotones[1]) && c.DuoColors.size() > 1;
}

int channel(Session &s, int span, int base) { return int(Int(s.Rnd() * Single(span))) + base; }

} // namespace

ColorLong strokeColour(Session &s, RandomStroke rule, std::optional<ColorLong> avoid)
{
    if (!RandomPen(s))
        return s.colours().ColorFore;
    if (tableInForce(s)) {
        const std::vector<ColorLong> &table = s.colours().DuoColors;
        const Single ubound = Single(table.size() - 1);
        // A table of one colour, or of only the colour to avoid, must not hold the stroke up:
        // after a fair number of draws the last one stands.
        ColorLong c = NoColour;
        for (int tries = 0; tries < 64; ++tries) {
            c = table[size_t(Int(s.Rnd() * ubound))];
            if (c != NoColour && (!avoid || c != *avoid))
                return c;
        }
        if (c != NoColour)
            return c;
    }
    switch (rule) {
    case RandomStroke::Spray:
        return RGB(channel(s, 132, 64), channel(s, 132, 64), channel(s, 132, 64));
    case RandomStroke::Pen:
        return RGB(channel(s, 224, 16), channel(s, 224, 16), channel(s, 224, 16));
    case RandomStroke::Pick:
        break;
    }
    return Pick_RandomColor(s);
}

} // namespace tf
