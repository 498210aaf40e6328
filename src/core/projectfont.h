#pragma once
// The font the program installs with itself (Debian's fonts-dejavu-core): the default of the
// text types, loaded from its file, so that a text painted with it looks the same on every
// machine whatever else the system's font configuration offers.

#include <QString>

namespace tf {

// Where the font's file lies.
constexpr const char *ProjectFontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
// Its family name, as the text dialog and the command line give it.
constexpr const char *ProjectFontFamily = "DejaVu Sans";

// Registers the font file with the application's fonts once (needs a GUI application, which
// the desktop program and the command line both make); answers false when the file is not
// there, in which case the family resolves through the system's font configuration.
bool loadProjectFont();

} // namespace tf
