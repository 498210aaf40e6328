#pragma once
// What a painter is given, and the one table from type key to painter.
//
// A painter paints one graphics type on the paint target. It receives a PaintContext: the
// session (colours, controls, random numbers, the doors to the user), the target pictures
// chosen by Set_BILD and the option variables read for this paint. It brackets its drawing
// with Start_Transparent / Ende_Transparent where its type blends, polls `stopRequested()`
// in long loops after `DoEvents()`, and reports its own faults or lets them reach the
// dispatcher, which reports them under "Create_Polygraphics".
//
// The dispatch table lists every key of the catalogue exactly once; a painter that has not
// landed yet is a null entry. The generators hold the table (the paint layer lies below them
// and cannot name them itself); whoever makes a session gives it the table it paints with,
// and a test may give one of its own.

#include "core/numeric.h"
#include "paint/optionvariables.h"

#include <span>

namespace tf {

class PictureBox;
class Session;
class Workspace;
struct ColourState;

struct PaintContext {
    Session &session;
    PictureBox &XBild; // the target: Bild or the visible selection
    PictureBox &XUndo;
    PictureBox &XWork;
    OptionVariables opt;

    Workspace &workspace();
    ColourState &colours();
    Single Rnd();
    void DoEvents();
    bool stopRequested() const;
    // Clears the target to its BackColor and Picture: Bild_CLEAR for Bild, Cls for a
    // selection.
    void Bild_CLEAR();
};

using Painter = void (*)(PaintContext &);

struct PainterEntry {
    const char *key;
    Painter paint; // null: not built in yet
    // False for the types that paint into another window or need no undo image: the
    // dispatcher skips its preparation (undo image, tool and status resets) for them.
    bool prepare = true;
    // True for the types that rework the picture that stands (tiles exchanged, the picture
    // smeared): on a cleared picture they show nothing, so a gallery paints one under them.
    bool overPicture = false;
};

// The entry of a key in a table; null when the key is not in it.
const PainterEntry *findPainter(std::span<const PainterEntry> table, const QString &key);

} // namespace tf
