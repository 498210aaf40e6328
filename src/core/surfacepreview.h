#pragma once
// Showing a large surface without a second full-size copy of it: the part in view is sampled
// straight from the surface at the zoom in force, and views of the whole picture below the
// overview's scale come from a small overview made once.
//
// Zoomed coordinates: a surface of W x H shown at zoom z is a picture of round(W z) x
// round(H z); its pixel (X, Y) shows the surface's pixel (floor((X + 0.5) / z),
// floor((Y + 0.5) / z)) in picture coordinates (row 0 the top row as shown).

#include "core/dibsection.h"

#include <QImage>
#include <QRect>
#include <QSize>

namespace tf {

// The size of the whole surface at zoom z, at least 1 x 1.
QSize zoomedSize(const cDIBSection &dib, double zoom);

// The part `visible` (zoomed coordinates) of the surface at `zoom`, each pixel the nearest
// surface pixel, as an RGB32 picture of visible's size. The part of `visible` beyond the
// zoomed picture stays black. An empty surface gives a null picture.
QImage renderSurfacePart(const cDIBSection &dib, const QRect &visible, double zoom);

// The whole surface reduced by the smallest whole factor f that brings its longer side to at
// most `maxSide`: each pixel the mean of an f x f block (the blocks at the right and bottom
// edges are smaller). An RGB32 picture of ceil(W / f) x ceil(H / f); f = 1 copies.
QImage surfaceOverview(const cDIBSection &dib, int maxSide);

} // namespace tf
