// "TEXT-Textblock": the text as a block of lines, left, centred, right, as film credits
// ("Kinoabspann": the part before a tab right-aligned to the middle, the part after it
// left-aligned, a gap between) or left and right ("Links && rechts": the part after a tab at
// the right margin). The block starts at scrollTextBlock(0), (1) and walks down a line step
// per row; a row below the picture is not drawn. A row without a tab that is wider than the
// room between the two margins is broken at its blanks.
#include "generators/longrun.h"
#include "generators/textdraw.h"
#include "generators/textpanels.h"
#include "generators/texts.h"

#include "core/fault.h"
#include "core/numeric.h"
#include "core/picturebox.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <algorithm>
#include <cmath>

namespace tf {

using namespace text;

std::vector<TextBlockRow> textBlockRows(const QString &prepared)
{
    std::vector<TextBlockRow> rows;
    for (const QString &line : prepared.split(QStringLiteral("$$"))) {
        TextBlockRow row;
        const qsizetype tab = line.indexOf(QLatin1Char('\t'));
        row.tab = tab >= 0;
        row.before = row.tab ? line.left(tab) : line;
        if (row.tab) row.after = line.mid(tab + 1);
        rows.push_back(row);
    }
    while (!rows.empty() && rows.back().before.trimmed().isEmpty() &&
           rows.back().after.trimmed().isEmpty())
        rows.pop_back();
    return rows;
}

std::vector<TextBlockRow> wrapTextBlockRows(const std::vector<TextBlockRow> &rows, double room,
                                            const std::function<double(const QString &)> &width)
{
    std::vector<TextBlockRow> out;
    for (const TextBlockRow &row : rows) {
        if (row.tab || width(row.before) <= room) {
            out.push_back(row);
            continue;
        }
        QString line;
        for (const QString &word : row.before.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
            if (!line.isEmpty() && width(longer) > room) {
                out.push_back({line, QString(), false});
                line = word;
            } else {
                line = longer;
            }
        }
        out.push_back({line, QString(), false});
    }
    return out;
}

double textBlockLeft(int align, double left, int b)
{
    switch (align) {
    case AlignCentred: return b / 2.0;
    case AlignRight: return b - left;
    case AlignCinema: return left >= 50 && left <= b - 50 ? left : b / 2.0;
    default: return left;
    }
}

std::vector<TextBlockPiece> layTextBlockRow(const TextBlockRow &row, int align, double left,
                                            int b, int gap,
                                            const std::function<double(const QString &)> &width)
{
    std::vector<TextBlockPiece> out;
    const auto put = [&](const QString &t, double x) {
        if (!t.isEmpty()) out.push_back({t, x});
    };
    // Outside the credits and the two margins a tab stands for one blank's width.
    const QString joined = row.tab ? row.before + QLatin1Char(' ') + row.after : row.before;
    switch (align) {
    case AlignCentred: put(joined, left - width(joined) / 2); break;
    case AlignRight: put(joined, left - width(joined)); break;
    case AlignCinema:
        if (row.tab) {
            put(row.before, left - gap / 2.0 - width(row.before));
            put(row.after, left + gap / 2.0);
        } else {
            put(row.before, left - width(row.before) / 2);
        }
        break;
    case AlignLeftRight:
        put(row.before, left);
        if (row.tab) put(row.after, b - left - width(row.after));
        break;
    default:
        put(row.before, left);
        if (row.tab) put(row.after, left + width(row.before + QLatin1Char(' ')));
        break;
    }
    return out;
}

namespace {

ControlKey key(const char *name, int index = -1) { return ControlKey{QString::fromLatin1(name), index}; }

void textBlock(PaintContext &ctx, bool allow_randoms, bool allow_mixfonts)
{
    Session &s = ctx.session;
    const Controls &c = s.controls();
    const int b = ctx.opt.W, h = ctx.opt.H;
    ctx.Bild_CLEAR();
    Start_Transparent(s);
    const int margin = std::clamp(c.value(key("scrollTextBlock", 0)), 0, b);
    double left = margin;
    const int top = std::clamp(c.value(key("scrollTextBlock", 1)), 0, h);
    int align = c.listIndex(key("optTextBlockAlign"));
    if (s.colours().RandomValues && allow_randoms) {
        align = int(std::floor(double(ctx.Rnd()) * 5));
        if (align == AlignCentred) left = b / 2.0;
        else if (align == AlignRight) left = b - left;
    } else {
        left = textBlockLeft(align, left, b);
    }
    const int gap = std::max(0, int(Val(c.text(key("txtCinemaGap")))));

    const TextColours colours = textColourRule(ctx, allow_randoms);
    const ColorLong shadow = shadowColour(c, colours.shadow, colours.text);
    const int thickness = shadowThickness(c);
    const QString prepared =
        prepareText(ctx, "XTextBlock_BigLetters", -1, true, allow_mixfonts);
    TextFont font = dialogFont(c);
    // A long row is broken at its blanks to the width between two margins (at least a third
    // of the picture), measured in the dialog's font.
    const double room = std::max(b / 3.0, double(b - 2 * margin));
    const std::vector<TextBlockRow> rows = wrapTextBlockRows(
        textBlockRows(prepared), room,
        [&font](const QString &t) { return Measure_Rotated(font, t).width(); });
    const QPoint d = shadowOffset(0, thickness);

    StopRule stop(ctx);
    PictureBox &pic = ctx.XBild;
    double y = top;
    for (size_t i = 0; i < rows.size(); ++i) {
        if (y > h) break;
        mixFont(ctx, font);
        const auto width = [&font](const QString &t) { return Measure_Rotated(font, t).width(); };
        const ColorLong colour =
            colours.table ? tableColour(ctx, int(i) + 1, colours.text) : colours.text;
        for (const TextBlockPiece &piece : layTextBlockRow(rows[i], align, left, b, gap, width)) {
            if (thickness > 0) {
                pic.setForeColor(shadow);
                Print_Rotated(pic, piece.text, piece.x + d.x(), y + d.y(), 0, font);
            }
            pic.setForeColor(colour);
            Print_Rotated(pic, piece.text, piece.x, y, 0, font);
        }
        y += lineStep(font);
        if (!stop.next()) break;
    }
    Ende_Transparent(s);
    pic.Refresh();
}

} // namespace

void Do_Textblock(PaintContext &ctx, bool allow_randoms, bool allow_mixfonts)
{
    guarded(QStringLiteral("Do_Textblock"), [&] { textBlock(ctx, allow_randoms, allow_mixfonts); });
}

void paintTextblock(PaintContext &ctx)
{
    Do_Textblock(ctx, true, true);
}

} // namespace tf
