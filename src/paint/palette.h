#pragma once
// The palette of 256 colours built from the two colour fields, and the strip that shows it.
//
// The strip `picPal256` is the colour dialog's picture control, with AutoRedraw on so that its
// lines persist; the routines here draw on it when the caller passes it and leave it alone
// otherwise (the command line has none). Drawing does not clear the strip: each call draws its
// lines over what is there.

#include "core/colour.h"

#include <QImage>
#include <QSize>
#include <vector>

namespace tf {

class PictureBox;
class Session;

// Rebuilds Pal256 (0..255) as the ramp from ColorFore to ColorBack with a coarse whole-number
// slope per channel: 1 (or -1 towards a lower second value) when the two values differ by more
// than 128, else 0, so that such a channel stays at the foreground's value. Entry i is the
// first colour plus slope * i, kept to 0..255. Draws the strip with 256 lines at
// x = i / 256 * Width. For the graphics type "Plasma" with RandomColors off the plasma
// palette is rebuilt as well.
void Create2ColorPAL(Session &s, PictureBox *picPal256 = nullptr);

// What the colour dialog does when it loads: RandomColors and RandomValues on, ColorBorder
// the foreground, Create2ColorPAL, and the plasma palette from the two colours.
void ColorDialog_Load(Session &s, PictureBox *picPal256 = nullptr);

// The palette as 256 vertical lines of `height` pixels from the top, line i at
// x = i / 256 * span in the colour Pal256(i).
void drawPal256(PictureBox &picPal256, const std::vector<ColorLong> &pal256, double span,
                int height = 12);
// The smoothed palette of a file as 512 lines 14 high, line i at x = i / 511 * (Width + 1),
// with red and blue put back.
void drawPal512(PictureBox &picPal256, const std::vector<ColorLong> &pal512);
// A white picture of `size` with the palette drawn as Create2ColorPAL draws the strip, the
// lines running the picture's full height.
QImage pal256Strip(const std::vector<ColorLong> &pal256, QSize size);

} // namespace tf
