#pragma once
// The options of `paint`, which `animate` shares: what to paint, at which size and seed, with
// which controls and colours.

#include "core/colour.h"

#include <QSize>
#include <cstdint>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>
#include <vector>

namespace tf {
class Session;
}

namespace tf::cli {

struct PaintOptions {
    QString type;
    QString output;
    std::optional<QSize> size;
    std::optional<uint32_t> seed;
    std::vector<std::pair<QString, QString>> sets; // control, value as written
    std::optional<ColorLong> fore, back, border;
    std::optional<ColorLong> textFore, textBack; // the text dialog's colours
    QString textFile;                            // --text-file: the text dialog's text
    std::optional<bool> randomColors, randomValues;
    std::optional<int> transparency;
    QString over;
    std::optional<int> duotones;    // the duotone box to set, 0 or 1
    QString palette;                // a JASC palette file
    std::optional<int> systemPalette;
    bool keepSize = false;          // --over: a large picture at its own size
    QString recipe;                 // paint the recipe of this picture file
    QString source;                 // --source: the photos of the mosaic types
    QString presentation;           // repaint the layout of this .tvp file (the photo mosaic)
};

// Reads the words of a paint command; a UsageError for a mistake.
PaintOptions parsePaintOptions(const QStringList &words);
// "WIDTHxHEIGHT"; a UsageError outside 1..14000.
QSize parseSize(const QString &text);
// The --set values and the transparency; a UsageError for an unknown control or value.
void applyControls(Session &s, const PaintOptions &o);
// Sets the colours, the palette and the duotone table as the colour dialog would; answers
// false after a message when the palette cannot be loaded.
bool applyColours(Session &s, const PaintOptions &o);
// The photo source of a type that reads one (--source, a directory or a picture file):
// checked as a paint would check it, so that a missing or empty source ends the command with
// the program's message and exit code 2 before anything is painted or written. A UsageError
// for --source given to a type that reads no photos.
int applyPicSource(Session &s, const PaintOptions &o);

} // namespace tf::cli
