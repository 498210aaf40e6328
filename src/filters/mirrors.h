#pragma once
// The mirrors: the whole picture turned over ("Vertikal spiegeln" left to right, "Horizontal
// spiegeln" top to bottom) and the half mirrors ("Halbspiegel"), which draw one half of the
// picture over the other, mirrored. They work with StretchBlt on the picture and keep its
// size; the commands act on the filter target (a shown selection, else Bild) with undo.
//
// The half mirrors take their rectangles from W/2 and H/2 rounded as the graphics call's whole
// numbers are (half to even, each value on its own), so with an odd width or height the two
// halves overlap or leave the middle line as it was.

#include <QImage>

namespace tf {

class Session;

// The half mirrors by their menu index.
enum class HalfMirror {
    LeftToRight = 0, // the right half shows the left half mirrored
    RightToLeft = 1,
    TopToBottom = 2, // the lower half shows the upper half mirrored
    BottomToTop = 3,
    Prismatic = 5, // left to right, then top to bottom: one quarter fills the picture
};

// In place on a picture (Format_RGB32).
void mirrorLeftRight(QImage &picture);
void mirrorTopBottom(QImage &picture);
void halfMirror(QImage &picture, HalfMirror which);

// The menu commands on the filter target; false when nothing was done.
bool mn_MirrorV(Session &s);
bool mn_MirrorH(Session &s);
bool mn_KlappH(Session &s, int index);

} // namespace tf
