#pragma once
// Laying a new paint over the old picture at a set transparency.
//
// Every painter is bracketed by Start_Transparent and Ende_Transparent: in between it paints
// on its target `XBild` as if nothing were special. Start_Transparent lays the undo image (the
// picture before the paint) into the work picture `XWork`; Ende_Transparent blends the paint
// over it and brings the result back to `XBild`. The bracket is active only for a
// `TranspPercent` of 2 to 98: at 0 and 1, and at 99 and 100, the paint lands plain. That gap
// at both ends is deliberate.
//
// The blend, per channel blue, green, red of each pixel, with `new` the paint and `old` the
// former picture: result = new - factor * (new - old), in double precision, rounded half to
// even. Factor 0 keeps the paint whole, factor 1 the old picture.

#include <QImage>

#include "core/colour.h"

namespace tf {

class PictureBox;
class Session;
class Workspace;

struct TransparencyState {
    int TranspPercent = 0;     // the value of ScrollTransparence, 0..100
    double TranspFactor = 0.0; // TranspPercent / 100
    // The present paint target and its undo and work pictures, chosen by Set_BILD.
    PictureBox *XBild = nullptr;
    PictureBox *XUndo = nullptr;
    PictureBox *XWork = nullptr;

    // Sets TranspPercent (clamped to 0..100) and TranspFactor together.
    void setPercent(int percent);
    // True when the bracket blends: TranspPercent is at least 2 and below 99.
    bool active() const { return TranspPercent >= 2 && TranspPercent < 99; }
};

// One channel of the blend: new - factor * (new - old), rounded half to even.
int blendChannel(int newValue, int oldValue, double factor);

// Blends `paint` over `old` in place: every pixel of `old` becomes the blend of the pixel of
// `paint` at the same place over it. Both are Format_RGB32; the common part of their sizes is
// blended.
void blendOver(QImage &old, const QImage &paint, double factor);
// Mixes one colour over a picture in place: the colour takes the place of the paint in the
// blend, so each pixel becomes colour - factor * (colour - pixel).
void blendColourOver(QImage &picture, ColorLong colour, double factor);

// Chooses the paint target: the visible selection (PicSelect, else picSelectC) with PicUndo
// and PicWork, else Bild with BildUndo and BildWork.
void Set_BILD(Session &s);
// True when the target is a selection rather than Bild.
bool targetIsSelection(const Session &s);

// Opens the bracket: when active, XWork takes the undo image of the target and the picture is
// marked changed. The undo image must have been taken before (the dispatcher does).
void Start_Transparent(Session &s);
// Closes the bracket: when active, XWork takes the blend of XBild over it, and XBild takes
// the result.
void Ende_Transparent(Session &s);

} // namespace tf
