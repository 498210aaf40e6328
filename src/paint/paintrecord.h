#pragma once
// What a paint was made of, and the command line that makes it again.
//
// Every paint records its type, the size of its target, the colours, the option controls
// that differ from their defaults, its transparency and the seed its random numbers came
// from. `paintCommandArguments` turns the record into the arguments of
// `tarvelle-forge paint`, which reproduce the paint on a cleared picture of that size.

#include "core/colour.h"
#include "paint/controls.h"

#include <QString>
#include <QStringList>
#include <cstdint>
#include <utility>
#include <vector>

namespace tf {

struct PaintRecord {
    QString GrafKey;
    int width = 0;
    int height = 0;
    ColorLong ColorFore = 0;
    ColorLong ColorBack = 0;
    ColorLong ColorBorder = 0;
    // The text dialog's colours (TextFore, TextBack).
    ColorLong TextFore = 0x000000;
    ColorLong TextBack = 0xFFFFFF;
    bool RandomColors = true;
    bool RandomValues = true;
    int TranspPercent = 0;
    // The colour dialog's tables and palette: which duotone box was set (-1 none), and the
    // palette file or system palette that Pal256 came from.
    int duotones = -1;
    QString paletteFile;
    int systemPalette = 0;
    // The photos of a mosaic type: the directory or the picture file (empty for other types).
    QString photoSource;
    // The controls that differ from their defaults, the transparency scroll bar excepted.
    std::vector<std::pair<ControlKey, QString>> controls;
    uint32_t seed = 0;
};

// "#RRGGBB" of a colour long.
QString colourArgument(ColorLong c);
// The arguments after the program's name: "paint", the key, and the options.
QStringList paintCommandArguments(const PaintRecord &r);
// One line for a POSIX shell: "tarvelle-forge paint ..." with every argument quoted that
// needs it.
QString paintCommandLine(const PaintRecord &r);
// An argument quoted for a POSIX shell: as it stands when it holds only safe characters,
// else in single quotes.
QString shellQuote(const QString &argument);

} // namespace tf
