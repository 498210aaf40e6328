#include "paint/plasmapalette.h"

#include "core/numeric.h"
#include "paint/session.h"

namespace tf {

namespace {

// `count` entries from `a` at `first` to `b` at `first + count - 1`, each channel in even
// steps rounded half to even.
void ramp(Palette512 &p, int first, int count, ColorLong a, ColorLong b)
{
    const int ar = RedOf(a), ag = GreenOf(a), ab = BlueOf(a);
    const double dr = RedOf(b) - ar, dg = GreenOf(b) - ag, db = BlueOf(b) - ab;
    const double span = count > 1 ? count - 1 : 1;
    for (int i = 0; i < count; ++i) {
        const double t = i / span;
        const int r = int(roundHalfEven(ar + dr * t));
        const int g = int(roundHalfEven(ag + dg * t));
        const int bl = int(roundHalfEven(ab + db * t));
        p[size_t(first + i)] = (uint32_t(r) << 16) | (uint32_t(g) << 8) | uint32_t(bl);
    }
}

// Entries first + count .. first + 2 count - 1 mirror the `count` entries before them.
void mirror(Palette512 &p, int first, int count)
{
    for (int i = 0; i < count; ++i)
        p[size_t(first + 2 * count - 1 - i)] = p[size_t(first + i)];
}

const ControlKey WrapH{QStringLiteral("XPlasmas"), 0};
const ControlKey WrapV{QStringLiteral("XPlasmas"), 1};
const ControlKey UseLoaded{QStringLiteral("XPlasmas"), 2};

} // namespace

Palette512 Plasma_Palette(ColorLong a, ColorLong b, int mode, ColorLong c, ColorLong d)
{
    Palette512 p{};
    switch (mode) {
    case 1:
        ramp(p, 0, 256, a, b);
        mirror(p, 0, 256);
        break;
    case 2:
        for (int half = 0; half < 2; ++half) {
            ramp(p, half * 256, 128, a, b);
            mirror(p, half * 256, 128);
        }
        break;
    case 3:
        // Round the four colours and back to the first: no step anywhere.
        ramp(p, 0, 129, a, b);
        ramp(p, 128, 129, b, c);
        ramp(p, 256, 129, c, d);
        ramp(p, 384, 128, d, a);
        break;
    default:
        ramp(p, 0, 512, a, b);
        break;
    }
    return p;
}

int plasmaPaletteMode(const Session &s)
{
    const Controls &c = s.controls();
    return (c.checked(WrapH) ? 1 : 0) + (c.checked(WrapV) ? 2 : 0);
}

Palette512 plasmaPaletteFor(Session &s)
{
    ColourState &c = s.colours();
    if (c.PalFromFile && c.PalFixed && c.Pal512.size() >= 512 && s.controls().checked(UseLoaded)) {
        Palette512 p{};
        for (size_t i = 0; i < p.size(); ++i)
            p[i] = uint32_t(c.Pal512[i]) & 0xFFFFFFu;
        return p;
    }
    const int mode = plasmaPaletteMode(s);
    if (c.RandomColors) {
        const ColorLong a = Pick_RandomColor(s);
        const ColorLong b = Pick_RandomColor(s);
        if (mode != 3) return Plasma_Palette(a, b, mode);
        const ColorLong third = Pick_RandomColor(s);
        return Plasma_Palette(a, b, mode, third, Pick_RandomColor(s));
    }
    if (mode != 3) return Plasma_Palette(c.ColorFore, c.ColorBack, mode);
    // The two further colours of form 3 are drawn at random in either case.
    const ColorLong third = Pick_RandomColor(s);
    return Plasma_Palette(c.ColorFore, c.ColorBack, mode, third, Pick_RandomColor(s));
}

void rebuildPlasmaPalette(Session &s) { s.colours().PlasmaPalette = plasmaPaletteFor(s); }

} // namespace tf
