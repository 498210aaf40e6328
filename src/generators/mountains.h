#pragma once
// The mountains: "Mountains", "Mountains-Gradient" and "Mountains-Pen" (mountains.cpp says the
// figures), with their option panel feat_07Mountains (centrepanels.h).

#include <vector>

namespace tf {

struct PaintContext;

enum class MountainStyle { Pen, Fill, Gradient };

// A ridge of w heights (rows from the top) between lo and hi, from the session's random
// generator: big shapes and fine crags, the step from column to column at most `amplitude`.
std::vector<double> mountainRidge(PaintContext &ctx, int w, double amplitude, double lo,
                                  double hi);

// The mountain of `style`; `horizonTop` mirrors it to the top (the horizon "Oben"), unless
// random values draw it.
void Do_Mountains(PaintContext &ctx, MountainStyle style, bool horizonTop);
void paintMountains(PaintContext &ctx);
void paintMountainsPen(PaintContext &ctx);
void paintMountainsGradient(PaintContext &ctx);

} // namespace tf
