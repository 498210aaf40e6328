#pragma once
// "Interne Kacheln": the program's own seamless background tiles (grey 128 x 128 pictures in
// the resources under ":/tiles", drawn by scripts/make-tiles.py), laid over the picture from
// its top left corner at their own size, between two colours or in their greys.

#include <QImage>
#include <vector>

namespace tf {

struct PaintContext;

struct Webtile {
    const char *file;    // the resource's name under :/tiles
    const char *caption; // German source text of the "Controls" context
};

// The tile set, in the order of the panel's list.
const std::vector<Webtile> &webtiles();
// The grey tile i, null when the resources do not hold it.
QImage webtileImage(int i);

// Paints the chosen tile (a random one with RandomValues) over the target. With
// XKachelFarben the greys run from the first colour (black) to the second (white): two
// picks with RandomColors, two cells with the table, else ColorFore and ColorBack.
void Create_Interne_Webtiles(PaintContext &ctx);

} // namespace tf
