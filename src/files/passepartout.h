#pragma once
// Painting a picture in a passepartout (what frmPasseDemo shows, saves and prints).
//
// The mat is set.border() pixels wide on each side, so the result is the picture's size plus
// twice that. Frames are drawn from the outermost (7) inwards; a frame of width below 1 is left
// out. Without the gradient each frame is a solid band of its colour. With it, a band of width
// w runs through w one-pixel rings: ring s (1 .. w, from the outside) has, per channel,
// c1 + sign(c2 - c1) * s * |c2 - c1| / w in double arithmetic, rounded half to even, with c1
// the colour of the band drawn before (outside it; for the outermost band its own) and c2 its
// own, so that every band ends on its own colour.

#include "files/passepartoutfile.h"
#include "files/picturelimits.h"

#include <QImage>
#include <QSize>

namespace tf {

// `picture` scaled down with its aspect to at most maxWidth x maxHeight (the "Max. Breite" and
// "Max. Höhe" of the size-fit frame); 0 means no limit on that side. A picture that fits is
// returned as it is; a smaller one is never enlarged. The scaling is the surface's bilinear
// Resample.
QImage fitIntoLimits(const QImage &picture, int maxWidth, int maxHeight);

// The picture in the mat of `set` (RGB32). A null picture, or a mat that would make a side
// longer than MaxDecodeSide (14000), gives a null image.
QImage Draw_Passepartout(const QImage &picture, const PPRecord &set);

} // namespace tf
