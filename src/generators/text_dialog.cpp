// "TEXT-Dialog": the text dialog's text once, at a position and an angle, with its shadow.
#include "generators/textdraw.h"
#include "generators/texts.h"

#include "core/fault.h"
#include "core/numeric.h"
#include "core/picturebox.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <cmath>

namespace tf {

using namespace text;

namespace {

ControlKey key(const char *name, int index = -1) { return ControlKey{QString::fromLatin1(name), index}; }

void textDialog(PaintContext &ctx, bool do_transparence, bool do_textcenter, bool allow_randoms,
                bool allow_mixfonts)
{
    Session &s = ctx.session;
    TextPaintRecord &rec = s.text().record;
    const Controls &c = s.controls();
    ++rec.paint_count;
    if (rec.paint_count == 1) {
        rec.keep_b = ctx.opt.W;
        rec.keep_h = ctx.opt.H;
    }

    // The colours: a call without random colours after the first keeps the pair it drew.
    TextColours colours = textColourRule(ctx, allow_randoms);
    if (allow_randoms || rec.paint_count == 1) {
        rec.text_color = colours.table ? colours.duoFore : colours.text;
        rec.shadow_color = colours.table ? colours.duoBack : colours.shadow;
        rec.duo_fore = colours.duoFore;
        rec.duo_back = colours.duoBack;
    }
    const ColorLong textColour = rec.text_color;
    const ColorLong shadow = shadowColour(c, rec.shadow_color, textColour);

    const QString line = prepareText(ctx, "XTextDialog_BigLetters", -1, false, allow_mixfonts);
    TextFont font = dialogFont(c);
    mixFont(ctx, font);
    const int angle = c.value(key("TDW1", 0));
    const double x1 = Val(c.text(key("txtDialogXYPos", 0)));
    const double y1 = Val(c.text(key("txtDialogXYPos", 1)));
    const bool centre = do_textcenter || ctx.opt.UseCenter || c.checked(key("XTextDialog_Center"));

    // Get_TextposBox: where the ink of the turned text lies, measured from its origin.
    const QRectF ink = inkBox(font, line, angle);
    const QPointF origin = centre ? QPointF(x1 - ink.center().x(), y1 - ink.center().y())
                                  : QPointF(x1 - ink.left(), y1 - ink.top());

    ctx.Bild_CLEAR();
    if (do_transparence) Start_Transparent(s);
    PictureBox &pic = ctx.XBild;
    const int thickness = shadowThickness(c);
    if (thickness > 0) {
        const QPoint d = shadowOffset(angle, thickness);
        pic.setForeColor(shadow);
        Print_Rotated(pic, line, origin.x() + d.x(), origin.y() + d.y(), angle, font);
    }
    pic.setForeColor(textColour);
    Print_Rotated(pic, line, origin.x(), origin.y(), angle, font);
    if (do_transparence) Ende_Transparent(s);
    pic.Refresh();
}

} // namespace

void Do_Textdialog(PaintContext &ctx, bool do_transparence, bool do_textcenter,
                   bool allow_randoms, bool allow_mixfonts)
{
    if (!guarded(QStringLiteral("Do_Textdialog"), [&] {
            textDialog(ctx, do_transparence, do_textcenter, allow_randoms, allow_mixfonts);
        }))
        ctx.session.text().record.paint_count = 0;
}

void paintTextDialog(PaintContext &ctx)
{
    Do_Textdialog(ctx, true, false, true, true);
}

} // namespace tf
