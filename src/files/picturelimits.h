#pragma once
// The sizes a loaded picture is held to, and the fit of a size into a box.
//
// A picture of at most BildMaxPixels pixels is taken over at its own size; a larger one is
// brought into the BildMaxSide box, so that work on screen stays quick. No decoder makes a
// picture beyond MaxDecodeSide pixels a side: that is the largest surface the program makes.

#include <QSize>

namespace tf {

inline constexpr int BildMaxPixels = 2560000; // 1600 x 1600
inline constexpr int BildMaxSide = 1600;
inline constexpr int MaxDecodeSide = 14000;

// True when a picture of w x h is taken at its own size (w*h < 2560001).
bool takenWhole(int w, int h);

// The size of width x height in a maxW x maxH box: a size that fits stays; otherwise the
// quotients r1 = maxW/width and r2 = maxH/height, stored in single precision, decide: with r1 >= r2 the
// height becomes maxH and the width rounds (half to even) from r2*width, else the width becomes
// maxW and the height rounds from r1*height. A side never rounds below 1.
void Fit_Into_Box(int width, int height, int maxW, int maxH, int &resultW, int &resultH);
QSize fitIntoBox(QSize size, QSize box);

} // namespace tf
