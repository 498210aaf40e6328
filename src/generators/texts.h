#pragma once
// The text types of group 7: the user's text placed and turned once ("TEXT-Dialog"), set as
// a block of lines ("TEXT-Textblock"), repeated round a star ("TEXT-StarRotated"), along a
// circle ("TEXT-Circular") and along a spiral ("TEXT-Spiral"). The text and its font come
// from the text dialog (paint/textstate.h), the options from each type's panel
// (generators/textpanels.h); colours by the Text colour rule (generators/textdraw.h).
//
// Each routine reports its own faults under its name ("Do_Textdialog" ...), leaving the
// picture as far as it had got; "TEXT-Dialog" then starts its record anew (paint_count 0).

#include <QString>
#include <functional>
#include <vector>

namespace tf {

struct PaintContext;

// Places the text dialog's text once at txtDialogXYPos(0), (1), turned by TDW1(0): its ink's
// top left corner there, or its middle with do_textcenter, XTextDialog_Center or UseCenter.
void Do_Textdialog(PaintContext &ctx, bool do_transparence, bool do_textcenter,
                   bool allow_randoms, bool allow_mixfonts);
void Do_Textblock(PaintContext &ctx, bool allow_randoms, bool allow_mixfonts);
void Do_Textstar(PaintContext &ctx, bool allow_randoms);
void Do_TextCircular(PaintContext &ctx, bool allow_randoms);
void Do_TextSpiral(PaintContext &ctx, bool allow_randoms);

// The painters of the table.
void paintTextDialog(PaintContext &ctx);
void paintTextblock(PaintContext &ctx);
void paintTextStar(PaintContext &ctx);
void paintTextCircular(PaintContext &ctx);
void paintTextSpiral(PaintContext &ctx);

// One row of a text block: the parts before and after its first tab.
struct TextBlockRow {
    QString before, after;
    bool tab = false;
};
// The rows of a prepared text (rows split at "$$"), cut after the last row that holds text.
std::vector<TextBlockRow> textBlockRows(const QString &prepared);

// Breaks every row without a tab that is wider than `room` at its blanks into rows that fit
// (a word wider than the room stands alone); rows with a tab stay as they are.
std::vector<TextBlockRow> wrapTextBlockRows(const std::vector<TextBlockRow> &rows, double room,
                                            const std::function<double(const QString &)> &width);

// One piece of a row as it is laid: its text and the x of its left edge.
struct TextBlockPiece {
    QString text;
    double x = 0;
};
// Lays a row by the alignment (optTextBlockAlign) about `left` (already moved by the
// alignment: the middle for centred and the credits, the right edge for right-aligned) in a
// picture `b` wide, with `gap` the credits' gap; `width` measures a text.
std::vector<TextBlockPiece> layTextBlockRow(const TextBlockRow &row, int align, double left,
                                            int b, int gap,
                                            const std::function<double(const QString &)> &width);
// Where the block's reference line lies for an alignment: centred b/2; right b - left; the
// credits b/2 unless left lies in 50..b-50; else left itself.
double textBlockLeft(int align, double left, int b);

} // namespace tf
