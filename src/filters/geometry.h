#pragma once
// The picture commands of the menu "Bild": quarter turns, the picture size (Resample smooth or
// Resize by the nearest pixel), cropping to the selection and the canvas size. The pure
// functions work on a picture (Format_RGB32); the commands act with undo, and Undo gives the
// former size back ("$TURN90", "BILDRESIZED" in lastaction).

#include "core/colour.h"

#include <QImage>
#include <QRect>

namespace tf {

class Session;

// The picture turned by quarters clockwise (1 right, 2 half, 3 left), exactly, on up to
// `threads` threads (0 all).
QImage turnedQuarters(const QImage &picture, int quarters, int threads = 0);

// The picture at w x h: bilinear (`smooth`, cDIBSection::Resample) or the nearest pixel
// (cDIBSection::Resize). Null after a reported fault.
QImage scaledPicture(const QImage &picture, int w, int h, bool smooth);

// Where the picture stands on a new canvas: 0 top left, 1 top, 2 top right, 3 left, 4 middle,
// 5 right, 6 bottom left, 7 bottom, 8 bottom right.
QImage onCanvas(const QImage &picture, int w, int h, int anchor, ColorLong background);

// The largest side a picture may be given by these commands.
constexpr int MaxPictureSide = 14000;

// Turns the filter target (a shown selection keeps its place, else Bild) by quarters.
bool Menu_Turn(Session &s, int quarters);
// Bild at a new size, smooth (Resample) or not (Resize).
bool Menu_PictureSize(Session &s, int w, int h, bool smooth);
// Bild becomes the part the shown selection covers (its own picture); the selection goes.
// False with a message when no selection is shown.
bool Menu_CropToSelection(Session &s);
// Bild on a canvas of w x h in the background colour, placed by `anchor`.
bool Menu_CanvasSize(Session &s, int w, int h, int anchor);

} // namespace tf
