// The ramp schemes: one of five channel patterns falling from 255 over the whole table.
#include "paint/duotable_p.h"

namespace tf {

namespace {

struct Ramp {
    int scheme; // 1..5
    Single step;
    int stripe;

    // The falling value of cell x.
    int v(int x) const
    {
        const int r = CLng(double(Single(255) - step * Single(x)));
        return r < 0 ? 0 : (r > 255 ? 255 : r);
    }
};

// Each cell from its own falling value; with a stripe of a multiple of 5 every second cell
// has one channel at full strength.
void RampA(TableBuild &b, const Ramp &ramp)
{
    const bool striped = ramp.stripe % 5 == 0;
    for (int i = 1; i <= b.n; ++i) {
        const int v = ramp.v(i);
        const bool stripe = striped && i % 2 == 0;
        int red = 0, green = 0, blue = 0;
        switch (ramp.scheme) {
        case 1:
            red = v;
            green = 255 - v;
            blue = 255 - v;
            if (stripe)
                green = 255;
            break;
        case 2:
            green = v;
            red = 255 - green;
            blue = 255 - green;
            if (stripe)
                red = 255;
            break;
        case 3:
            red = v;
            green = v;
            blue = 255 - red;
            if (stripe)
                green = 255;
            break;
        case 4:
            red = v;
            blue = v;
            green = 255 - blue;
            if (stripe)
                blue = 255;
            break;
        default:
            red = green = blue = v;
            break;
        }
        b.at(i) = RGB(red, green, blue);
    }
}

// Only the scheme's channels fall; the others keep 0.
void RampB(TableBuild &b, const Ramp &ramp)
{
    // A base value was once drawn here; the draw stays so that the random sequence, and with
    // it every seeded paint, stays the same.
    (void)b.w(128, 128);
    int red = 0, green = 0, blue = 0;
    for (int i = 1; i <= b.n; ++i) {
        const int v = ramp.v(i);
        switch (ramp.scheme) {
        case 1: red = v; break;
        case 2: green = v; break;
        case 3: red = green = v; break;
        case 4: red = blue = v; break;
        default: green = blue = v; break;
        }
        b.at(i) = RGB(red, green, blue);
    }
}

} // namespace

void rampSetUp(TableBuild &b)
{
    Ramp ramp;
    ramp.scheme = b.rndInt(5) + 1;
    ramp.step = CSng(255.0 / b.n);
    ramp.stripe = b.rndInt(26) + 1;
    const int kind = b.rndInt(2) + 1;
    if (kind == 1)
        RampA(b, ramp);
    else
        RampB(b, ramp);
}

void AddWhites(TableBuild &b)
{
    for (int i = 5; i <= b.n; i += 5)
        b.at(i) = b.white();
}

} // namespace tf
