#pragma once
// The plasma's palette: 512 colours the plasma's heights are shown in.
//
// Entries are 32-bit pixels with blue in the low byte (0x00RRGGBB), the layout of a QImage of
// Format_RGB32 and of Pal512, so a plasma writes them into a picture as they stand.
//
// `Plasma_Palette` builds the ramp between two colours in one of four forms (`Mode`):
//   0  one ramp from the first colour to the second over all 512 entries;
//   1  the ramp of 256 entries and its mirror: first colour, second colour, first colour;
//   2  two such mirrored ramps of 128 entries each way, so the clouds show twice the bands;
//   3  round four colours: the first to the second, on to the two further colours and back
//      to the first, 128 entries each way.
// Forms 1 to 3 end where they begin, so a wrapped plasma stays seamless in colour too.
//
// The session keeps the palette on show in ColourState::PlasmaPalette; `rebuildPlasmaPalette`
// renews it from the colour state as the colour dialog's changes require.

#include "core/colour.h"

#include <array>
#include <cstdint>

namespace tf {

class Session;

using Palette512 = std::array<uint32_t, 512>;
inline constexpr int PlasmaMaxIndex = 511;

// The ramp between `a` and `b` in the form `mode` (0..3, others count as 0); `c` and `d` are
// the further colours of form 3. Each channel runs in even steps from its value in one
// colour to its value in the other.
Palette512 Plasma_Palette(ColorLong a, ColorLong b, int mode, ColorLong c = 0, ColorLong d = 0);

// The form of the palette the plasma panel asks for: "Horizontal einhüllen" adds 1,
// "Vertikal einhüllen" 2 (a wrapped plasma gets a palette that ends where it begins).
int plasmaPaletteMode(const Session &s);

// The palette a plasma paints with now: the loaded palette (Pal512) while it is fixed and
// "Gelad. Palette verwenden" is checked; with random colours a ramp between two random
// colours (and two more for form 3); otherwise the ramp between ColorFore and ColorBack.
// Random colours draw from the session's generator.
Palette512 plasmaPaletteFor(Session &s);

// Renews ColourState::PlasmaPalette by plasmaPaletteFor.
void rebuildPlasmaPalette(Session &s);

// A palette colour (blue in the low byte) as a colour long, and back.
inline ColorLong plasmaToColorLong(uint32_t bgr)
{
    return ColorLong(((bgr >> 16) & 255) | (bgr & 0xFF00) | ((bgr & 255) << 16));
}
inline uint32_t colorLongToPlasma(ColorLong c)
{
    return (uint32_t(RedOf(c)) << 16) | (uint32_t(GreenOf(c)) << 8) | uint32_t(BlueOf(c));
}

} // namespace tf
