#pragma once
// The drawn types: the simple graphics types that place figures on the target in a loop of
// random numbers, between Bild_CLEAR and the transparency bracket.

namespace tf {

struct PaintContext;

// "Backgroundcolor": the whole target in one colour, a random one with RandomColors, else
// ColorBack. At a TranspPercent of 2 to 98 the colour is mixed over the former picture with
// strength 1 - TranspLevel (the blend of the transparency bracket, the colour in the place of
// the paint); otherwise it covers the picture.
void paintBackgroundcolor(PaintContext &ctx);

} // namespace tf
