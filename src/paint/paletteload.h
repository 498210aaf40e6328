#pragma once
// Loading a palette into the colour state: from a JASC file chosen by the user, or from the
// library of system palettes.
//
// A load makes Pal512 0..511 and Pal256 0..255, both black, and reads the file's entries into
// them (Pal512 with red and blue exchanged), so that a short file leaves black behind its
// last entry. A file that reads to its end then gives the smoothed Pal512, sets PalFromFile
// and PalFixed, and turns the colour dialog over to the palette: random colours off,
// XDuotones(1) and XLockPalette on, a "DuoMyPicPalette" table of 5 x 5 and DuoActive.
//
// A file whose first line lacks "JASC" changes nothing further and shows nothing. A file that
// fails to read (not there, too short, a number above 255) shows "Palette file error or not
// there" and leaves the entries read before the failure in place.

#include "core/colour.h"

#include <QString>
#include <vector>

namespace tf {

class PictureBox;
class Session;

enum class PaletteLoadOutcome {
    Loaded,
    NotJasc,   // the file is no JASC palette: its name is to be forgotten
    Failed,    // the error was shown: the file name is to be forgotten
    Cancelled, // no file was chosen
};

struct PaletteLoadResult {
    PaletteLoadOutcome outcome = PaletteLoadOutcome::Cancelled;
    // The folder of the chosen file, to be remembered as the palette folder (empty on cancel).
    QString folder;
};

// The menu command "&Palette laden..." once the file dialog has answered; an empty path is a
// cancelled dialog (Pal512 is made black all the same, as the command does before it asks).
// The strip is drawn when given. Faults are reported under "Menu_LoadPalette".
PaletteLoadResult Menu_LoadPalette(Session &s, const QString &path, PictureBox *picPal256 = nullptr);

// Loads the system palette `index` (from 1, see systempalettes.h) through a temporary JASC
// file "~RES…" in the system's temp folder, which is removed afterwards. Answers whether the
// palette came in. Faults (an unknown index) are reported under "Lade_RESPalette".
bool Lade_RESPalette(Session &s, int index, PictureBox *picPal256 = nullptr);

// The menu command "Syste&mpaletten..." once the chooser has answered: loads the palette for
// an index above 0.
bool mn_SystemPalette(Session &s, int chosen, PictureBox *picPal256 = nullptr);

// Reads a palette file into the dimensioned Pal256 and Pal512 and, when it reads to its end,
// smooths Pal512, draws it on the strip and sets PalFromFile and PalFixed (and the plasma
// panel's "loaded palette" box, where that panel is registered).
PaletteLoadOutcome Read_PAL(Session &s, const QString &path, PictureBox *picPal256 = nullptr);

// Spreads the 256 entries of a palette over 0..511: entry i moves to 2i-1, each even entry
// becomes the truncated mean, byte by byte, of its two neighbours, and 510 and 511 repeat 509.
void smoothPal512(std::vector<ColorLong> &pal512);

} // namespace tf
