#pragma once
// The circle gradients "Radial", "Sunburst" and "Radial-4spirals" (circlegradients.cpp says
// the figures), with their option panel feat_04CircleGradients (centrepanels.h).

#include "core/colour.h"
#include "paint/duocolortable.h"

namespace tf {

struct PaintContext;
class PictureBox;
class StopRule;

enum class ScheibeKind { Rings, Rays, Spiral };

// One disc of Kreis_Scheibe: centre, radius, the ring step (0.05..0.95: the coarser, the
// fewer levels), the sector in degrees, how often the ramp runs, the two colours, and the
// edges between the levels drawn `pen` wide in `border` (none when border is NoColour).
struct Scheibe {
    double cx = 0, cy = 0, radius = 0;
    double ringStep = 0.1;
    double startDeg = 0, endDeg = 360;
    int divisions = 1;
    ScheibeKind kind = ScheibeKind::Rings;
    bool clockwise = false; // the spiral's sense
    ColorLong from = 0, to = 0xFFFFFF;
    ColorLong border = NoColour;
    int pen = 0;
};

// The levels of a ring step: round(1 / s²) + 1, s held to 0.05..0.95.
int ringLevels(double ringStep);
// The ramp's value (0 the first colour, 1 the second) at p: up over [0, 1], down over
// [1, 2], in `levels` steps.
double rampAt(double p, int levels);

// Paints the disc into the picture, per pixel, its rim and sector edges soft; the rest of
// the picture stays. Gives way every 64 rows; false when a Stop came (the rows painted so
// far stay).
bool Kreis_Scheibe(PictureBox &pic, const Scheibe &S, StopRule &stop);

enum class CircleGradient { Radial, Sunburst, FourSpirals };
void Do_CircleGradients(PaintContext &ctx, CircleGradient type);
void paintRadial(PaintContext &ctx);
void paintSunburst(PaintContext &ctx);
void paintRadial4Spirals(PaintContext &ctx);

} // namespace tf
