#pragma once
// The JASC palette file: text lines, "JASC" somewhere in the first, a version line and a count
// line that are not read, then one entry "red green blue" per line.
//
// Reading rules:
// - Lines end at LF, CR or CR LF; the last line needs no end. Reading a line past the end of
//   the file is a failure (so an empty file, or one of fewer than three lines, fails).
// - Line 1 must contain "JASC" (case matters); otherwise the file is no palette and nothing
//   else is read.
// - After the three header lines, up to 256 lines until the end of the file give entries
//   0, 1, ...; the count line is not honoured.
// - An entry line loses its leading blanks and is scanned character by character: a blank
//   ends a number, the first non-blank after blanks starts the next one, the scan stops at the
//   fourth number or at any character other than a digit or a blank, and what was read so far
//   counts. A missing number is 0; a number above 255 is an Overflow failure.
// - Characters of a line beyond the first 65536 are ignored.

#include "core/colour.h"

#include <QByteArray>
#include <QString>
#include <vector>

class QIODevice;

namespace tf {

struct JascPalette {
    enum class Outcome {
        Read,    // a palette: `entries` holds what the file gave (possibly none)
        NotJasc, // line 1 lacks "JASC": nothing was read
        Failed,  // the file could not be read to its end: `entries` holds those before
    };
    Outcome outcome = Outcome::Failed;
    std::vector<ColorLong> entries; // RGB(red, green, blue), in file order
    int failedLine = 0;             // the line (from 1) that failed
    int faultNumber = 0;            // the fault of the failure: 6 Overflow, 62, 53 ...
};

JascPalette readJascPalette(QIODevice &in);
JascPalette readJascPalette(const QByteArray &bytes);
// A file that cannot be opened is a failure (File not found) at line 1.
JascPalette readJascPaletteFile(const QString &path);

} // namespace tf
