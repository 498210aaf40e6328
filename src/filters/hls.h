#pragma once
// Hue, lightness and saturation, in single precision as the colour work requires, and the hue
// replacement of a picture.
//
// Scale: red, green, blue 0..255; L and S 0..1; H in sextants from -1 to 5 (0 red, 2 green,
// 4 blue), a hue below 0 being a red-to-magenta hue that is not wrapped.

#include "core/numeric.h"

namespace tf {

struct PixelPlane;

// The larger and the smaller of three singles.
Single maximumOf(const Single &a, const Single &b, const Single &c);
Single minimumOf(const Single &a, const Single &b, const Single &c);

void RGBToHLS(int red, int green, int blue, Single &H, Single &S, Single &L);
// Each channel is the single times 255 rounded half to even; no clamp is made.
void HLSToRGB(Single H, Single S, Single L, int &red, int &green, int &blue);

// Colourise: every pixel keeps its lightness and takes the hue fHue, and with Monochrome the
// saturation fSaturation (else its own). Pixels are 4 bytes blue, green, red, unused; rows are
// spread over `threads` (0: every core).
void Colourise(const PixelPlane &picture, Single fHue, Single fSaturation, bool Monochrome,
               int threads = 0);

} // namespace tf
