#pragma once
// The figures around a centre: rosettes, spirals, the spirograph, mountains, the wave grid,
// the rotating lines and the circle gradients. The long ones follow the stop rule of
// longrun.h. Each unit says its figures at its top.

#include "core/colour.h"

namespace tf {

struct PaintContext;
class PictureBox;

// rosettes.cpp: "Rosetta", "Rosetta-Pixelized", "Rosetta-Crazy", "Rosetta-Pixelized-Crazy".
void Create_Rosettas(PaintContext &ctx, bool pixelized, bool crazy, bool transparent);
void paintRosetta(PaintContext &ctx);
void paintRosettaPixelized(PaintContext &ctx);
void paintRosettaCrazy(PaintContext &ctx);
void paintRosettaPixelizedCrazy(PaintContext &ctx);

// The two radii of a rosette: r (the ring the circles' centres lie on, never 0 or less) and
// s (the circles' radius, never 0 or less), from four draws of Rnd in 0..1.
struct RosetteRadii {
    int r;
    int s;
};
RosetteRadii rosetteRadii(double rnd1, double rnd2, double rnd3);

} // namespace tf

namespace tf {

// spirals.cpp: "Spiral" (one spiral and a disc at its heart), "Twister" (four spirals a
// quarter turn apart).
void Do_Spirals(PaintContext &ctx, bool twister);
void paintSpiral(PaintContext &ctx);
void paintTwister(PaintContext &ctx);

} // namespace tf

namespace tf {

class StopRule;

// spirograph.cpp: "Spirograph". The wheel that closes the curve: `lobes` loops after `turns`
// turns round the ring, the wheel's radius ring * turns / lobes (lobes > turns, coprime).
struct SpirographGear {
    int turns = 1;
    int lobes = 2;
    double wheel = 0;
};
SpirographGear spirographGear(double ring, double wheel, int turns);
// The curve of a wheel of radius about r (at 712 pixels) rolling k times round a ring that
// fills the picture about (cx, cy), the pen at `aspect` of the wheel's radius; false when a
// Stop came.
bool Draw_Spirograph(PaintContext &ctx, double cx, double cy, int r, int k, double aspect,
                     ColorLong colour, StopRule &stop);
void Do_Spirograph(PaintContext &ctx);

} // namespace tf

namespace tf {

// rotating70th.cpp: "70th-Rotating", "70th-Rotating-Crazy". The two ends of the k-th line
// of `style` (0..3) at the turning angle a (degrees) on circles about the centre, as radius
// and angle (radians, counter-clockwise with y up).
struct RotatingLine {
    double r1, a1, r2, a2;
};
RotatingLine rotatingLine(int style, double a, double R);
void Do_Rotating70th(PaintContext &ctx, bool crazy);
void paintRotating70th(PaintContext &ctx);
void paintRotating70thCrazy(PaintContext &ctx);

} // namespace tf
