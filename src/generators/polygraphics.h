#pragma once
// The drawn types: the simple graphics types that place figures on the target in a loop of
// random numbers, between Bild_CLEAR and the transparency bracket (figures.h holds their
// common steps). Each unit says its figures at its top.

#include <cstdint>

namespace tf {

struct PaintContext;

// "Backgroundcolor": the whole target in one colour, a random one with RandomColors, else
// ColorBack. At a TranspPercent of 2 to 98 the colour is mixed over the former picture with
// strength 1 - TranspLevel (the blend of the transparency bracket, the colour in the place of
// the paint); otherwise it covers the picture.
void paintBackgroundcolor(PaintContext &ctx);

// poly_boxes.cpp
void paintBoxesKreisradius(PaintContext &ctx);
void paintBoxesRandomized(PaintContext &ctx);
void paintSquaresRandomized(PaintContext &ctx);
void paintKacheln(PaintContext &ctx);
void paintTunnel(PaintContext &ctx);
void paintBitbltKacheln(PaintContext &ctx);
void paintBitbltSchmieren(PaintContext &ctx);

// poly_lines.cpp
void paintLinesQuarterarea(PaintContext &ctx);
void paintLinesPolygonal(PaintContext &ctx);
void paintLinesMikado(PaintContext &ctx);
void paintSinus(PaintContext &ctx);
void paintPulse(PaintContext &ctx);
void paintPulseSky(PaintContext &ctx);
void paintPulseGround(PaintContext &ctx);
void paintEqualizer(PaintContext &ctx);
// The bar count of "Equalizer": NumberValue held to 30 (and written back), 1 for 0.
int equalizerBars(int32_t &NumberValue);

// poly_charts.cpp
void paintExchangeRates(PaintContext &ctx);
void paintSoundwaves(PaintContext &ctx);
void paintHorizBars(PaintContext &ctx);
void paintVerticBars(PaintContext &ctx);

// poly_circles.cpp
void paintPolyElliptic(PaintContext &ctx);
void paintCircles(PaintContext &ctx);
void paintCircleEllipses(PaintContext &ctx);
void paintCircleKegel(PaintContext &ctx);
void paintCircleWaves(PaintContext &ctx);
void paintSoapBubbles(PaintContext &ctx);
void paintBlackRain(PaintContext &ctx);
void paintSnow(PaintContext &ctx);
void paintConfetti(PaintContext &ctx);

// poly_discs.cpp: the records and discs.
void paintLPBlack(PaintContext &ctx);
void paintLPCutOut(PaintContext &ctx);
void paintLPRingCutOut(PaintContext &ctx);
void paintCDStandard(PaintContext &ctx);
void paintCDColored(PaintContext &ctx);
void paintCDCutOut(PaintContext &ctx);

} // namespace tf
