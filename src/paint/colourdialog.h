#pragma once
// What the colour dialog's controls do to the colour state, apart from the widgets: the GUI
// calls these from its handlers and shows the state afterwards; tests call them directly.
//
// Every routine that takes the strip draws on it when it is given.

#include "core/colour.h"

namespace tf {

class PictureBox;
class Session;

// The three clickable colour charts.
enum class PaletteChart {
    picPalette,     // the colour chart
    picPaletteGrey, // the grey chart
    picPal256,      // the palette strip
};

// Where a picked colour goes: the left button alone sets the foreground, with Shift also the
// border, with Ctrl the border alone; the right button sets the background.
struct PickButtons {
    bool right = false;
    bool shift = false;
    bool ctrl = false;
};

// A press (or a move with a button held) on a chart that read `colour` under the mouse. On the
// two charts, unless XLockPalette is set, the palette follows the new colours; the strip's own
// colours never rebuild it.
void pickChartColour(Session &s, PaletteChart chart, ColorLong colour, PickButtons buttons,
                     PictureBox *picPal256 = nullptr);
// The mouse released over a chart: with XDuotones(1) a new 5 x 5 table, "DuoMyPicPalette" from
// the strip, "DuoMLeadGlass" from the two charts, and DuoActive.
void releaseChart(Session &s, PaletteChart chart);

// A right click on the foreground or background field: the text dialog takes that colour.
void takeTextFore(Session &s);
void takeTextBack(Session &s);

// A colour accepted in the system's colour chooser for the foreground, the background or the
// border field. Foreground and background rebuild the palette and, with XDuotones(1), the
// table ("DuoMLeadGlass", 5 x 5).
void chooseForeColor(Session &s, ColorLong colour, PictureBox *picPal256 = nullptr);
void chooseBackColor(Session &s, ColorLong colour, PictureBox *picPal256 = nullptr);
void chooseBorderColor(Session &s, ColorLong colour);

// A new background while the rectangular selection is shown: the place under the selection on
// Bild takes the background colour, and Bild keeps it as its picture.
void backgroundUnderSelection(Session &s);

// "picColoSwitch": exchanges foreground and background and, with XDuotones(1), renews the table.
void switchColours(Session &s);
// "=": the background becomes the foreground.
void identColours(Session &s);

// The check boxes, clicked into the state `on` (index 0 or 1 for XDuotones).
void clickDuotones(Session &s, int index, bool on);
void clickRandomColors(Session &s, bool on);
void clickRandomValues(Session &s, bool on);
void clickLockPalette(Session &s, bool on, PictureBox *picPal256 = nullptr);

} // namespace tf
