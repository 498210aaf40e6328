#pragma once
// The figures around a centre: rosettes, spirals, the spirograph, mountains, the wave grid,
// the rotating lines and the circle gradients. The long ones follow the stop rule of
// longrun.h. Each unit says its figures at its top.

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
