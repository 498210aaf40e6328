#pragma once
// What a picture file carries besides its pixels: the resolution it prints at, the program
// that wrote it, and the recipe of paints that made it.
//
// PNG keeps them in chunks (pHYs; tEXt "Software"; iTXt "Recipe"), JPEG in the JFIF header's
// density and one comment, BMP only the resolution (pixels per metre of its info header).

#include <QString>
#include <QStringList>

namespace tf {

struct PictureMeta {
    int dpi = 0;          // dots per inch; 0: not stated
    QString software;     // "tarvelle-forge 0.1.0"
    QStringList recipe;   // one "tarvelle-forge paint ..." command line per paint, in order
};

// The program name and version as the files carry it.
QString softwareText();

// Dots per inch <-> pixels per metre, rounded half to even.
int dotsPerMetre(int dpi);
int dpiOfDotsPerMetre(int dotsPerMetre);

// The recipe and the program in one text: a first line with the program, then one command per
// line. The JPEG comment is this text.
QString metaCommentText(const PictureMeta &meta);
// The command lines of a recipe text: its lines that begin "tarvelle-forge paint ".
QStringList recipeLinesOf(const QString &text);

} // namespace tf
