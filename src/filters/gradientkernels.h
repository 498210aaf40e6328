#pragma once
// The two kernels of the gradient group that run as filters.
//
// frameGradient (filter 45 with FilterArgs::frame on) reads the unchanged copy S and writes D.
// Each pixel mixes a colour of the ramp from "Color from" (c0) to "Color to/back" (c1) over
// the picture by the paint's blend, colour - keep' * (colour - old), with keep' >= keep:
//   - a passepartout band (frame.borders[2] >= 1 wide) round the edge takes c0 whole; the
//     gradient fills what lies inside it;
//   - style 0, linear: the ramp runs across (horizontal) or down, keep' = keep;
//   - style 1, frame: bands borders[0] wide at the left and right and borders[1] at the top
//     and bottom; t = the nearer band's depth (0 at the edge, 1 at its inner side), the colour
//     at t, keep' from keep at the edge to 1 at the inner side: the frame fades into the
//     picture, which stays as it was inside;
//   - style 2, rectangle: t from the edge (0) to the middle (1) by the nearest edge, keep';
//   - style 3, ellipse: t from the corners (0) to the middle (1) by the elliptic distance.
// `soft` eases t (and the frame's fade) with 3t² - 2t³; `swap` exchanges c0 and c1.
//
// frequencyWaves (DoFrequencyWaves 3 and 4) lays a wave between the colours over `first`
// into `result`, each pixel result = colour - (1 - a) * (colour - first) with a =
// sliders[1] / 100 and colour = c0 * v + c1 * (1 - v). The wave is f percent of the picture's
// longer side long for a frequency f = sliders[0] up to 100, 10000 / f percent above (at least
// 4 pixels). Selector 3, parallel waves:
// v = (1 + cos(2 pi s / length)) / 2 with s the distance along the direction from `position`
// to `position2`; selector 4, circular waves from both points:
// v = (2 + cos(2 pi d1 / length) + cos(2 pi d2 / length)) / 4.

#include "filters/filterargs.h"

#include <QImage>

namespace tf {

class FilterRun;

void frameGradient(FilterRun &run);
void frequencyWaves(int selector, const QImage &first, QImage &result, const FilterArgs &args);

} // namespace tf
