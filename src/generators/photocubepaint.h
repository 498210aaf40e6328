#pragma once
// The photo cube's paint ("Photo-CUBE" in the picture, "Photo-CUBESuper" in a Superformat
// surface): the size check of `Create_PhotoCube`, the look of one paint and the route of
// `Draw_Photo_CUBE` into either target. The picture itself is photocube.h.
//
// Order of a paint: the look (random values draw six numbers), the scene for the target's
// size, then the three photos at the size a face shows them, and only then the target is
// touched: a missing or unreadable source leaves the picture (and the Superformat surface)
// as it was. Rows are painted in bands, each band on every core (the rows are a pure
// function of the scene, so the result does not depend on the thread count); between bands
// the paint gives way and honours Stop, leaving what is painted.
#include "generators/photocube.h"

#include <QImage>
#include <QSize>
#include <array>
#include <optional>

namespace tf {

struct PaintContext;
class Session;

// Where a cube's three photos come from, asked once the face's size on screen is known.
class CubePhotoSource {
public:
    virtual ~CubePhotoSource() = default;
    // The pictures for the top, the left and the right face, each mapped whole onto its face
    // (so square ones keep their proportions), at least `faceSide` a side where the photo
    // has that many pixels. False when there are none; the source has told the user why.
    virtual bool facesFor(PaintContext &ctx, int faceSide, std::array<QImage, 3> &faces) = 0;
};

// The Superformat size for "Photo-CUBESuper", checked as the photo mosaic checks it:
// "0 - sizes not allowed" for a side below 1, the confirmation above 4600 pixels a side
// (Cancel: nothing), each side clamped to 128..14000.
std::optional<QSize> checkPhotoCubeSuperSize(Session &s);

// The look of this paint: drawn at random with random values on, else the panel's; the
// ground is the colour state's back colour.
CubeLook cubeLookOfPaint(PaintContext &ctx);

// Paints the cube into the paint target (`XBild`) or, with `super`, into the Superformat
// surface of `superSize`, shown in the Superformat viewer. Faults are reported under
// "Draw_Photo_CUBE".
void Draw_Photo_CUBE(PaintContext &ctx, CubePhotoSource &photos, bool super,
                     QSize superSize = QSize());

// The command: the size check for the Superformat, then the cube from the panel's photo
// source (the session's PicSourceList, as the photo mosaic uses it).
void Create_PhotoCube(PaintContext &ctx, bool super);

// The painters of "Photo-CUBE" and "Photo-CUBESuper".
void paintPhotoCube(PaintContext &ctx);
void paintPhotoCubeSuper(PaintContext &ctx);

} // namespace tf
