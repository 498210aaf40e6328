// Draw_LeadBorder: a border of small panes along the four edges, each in its lead; and the
// frames type "Border-Tiffany-Rect" that paints it over the picture.
#include "generators/leadglass.h"

#include "core/fault.h"
#include "core/picturebox.h"
#include "generators/leadpen.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <algorithm>
#include <cmath>

namespace tf {

namespace {

// An unfilled cell of the window's own border is drawn again, at most this often before it
// stays white: a table of unfilled cells cannot hold the paint.
constexpr int RedrawLimit = 100;

struct Pane {
    int x1, y1, x2, y2;
};

ColorLong paneColour(Session &s, bool leadRect, bool withWhite)
{
    const ColourState &c = s.colours();
    const int upper = int(c.DuoColors.size()) - 1;
    for (int draw = 0; draw <= RedrawLimit && upper >= 1; ++draw) {
        const ColorLong colour =
            duoCell(c, CLng(Int(double(s.Rnd()) * upper) + 1)).value_or(NoColour);
        if (colour != NoColour)
            return colour;
        if (!leadRect)
            break;
    }
    return (leadRect || withWhite) ? RGB(255, 255, 255) : NoColour;
}

void drawLeadBorder(PaintContext &ctx, PictureBox &pic, int32_t width, const QString &kind)
{
    Session &s = ctx.session;
    const bool leadRect = kind == QLatin1String("LEADRECT");
    const int picW = pic.Width(), picH = pic.Height();
    const int32_t pen = std::max<int32_t>(1, ctx.opt.PenWidth);
    const int32_t l = width + pen;
    const int32_t div = l < 21 ? l * 4 : (l < 31 ? l * 3 : l * 2);
    const int32_t nx = CLng(double(picW) / div), ny = CLng(double(picH) / div);
    if (nx == 0 || ny == 0)
        throw Fault(Fault::DivisionByZero);
    const double paneW = std::round(double(picW - l + 1) / nx);
    const double paneH = std::round(double(picH - l + 1) / ny);

    // Pinwheel order, counter-clockwise: the top row from the left corner, the left column
    // below it, the bottom row from the left column on, the right column up to the top row.
    // The four strips meet without overlap and cover the whole edge.
    std::vector<Pane> panes;
    for (int i = 1; i <= nx; ++i)
        panes.push_back({int((i - 1) * paneW), 0, i == nx ? picW - l - 1 : int(i * paneW) - 1,
                         l - 1});
    for (int j = 1; j <= ny; ++j)
        panes.push_back({0, l + int((j - 1) * paneH), l - 1,
                         j == ny ? picH - 1 : l + int(j * paneH) - 1});
    for (int i = 1; i <= nx; ++i)
        panes.push_back({l + int((i - 1) * paneW), picH - l,
                         i == nx ? picW - 1 : l + int(i * paneW) - 1, picH - 1});
    for (int j = 1; j <= ny; ++j)
        panes.push_back({picW - l, int((j - 1) * paneH), picW - 1,
                         j == ny ? picH - l - 1 : int(j * paneH) - 1});

    const bool withWhite = s.controls().checked(QStringLiteral("XFill_White"));
    // The frames type fills its panes only with XFill; the window's border always.
    const bool fill = leadRect || ctx.opt.UseFill;
    const bool lead = leadRect || s.controls().checked(QStringLiteral("XBorders"));
    const LeadPen leadPen(pic, s.colours().ColorBorder, pen);
    pic.setDrawMode(13);
    pic.setDrawWidth(1);
    for (const Pane &p : panes) {
        if (p.x2 < p.x1 || p.y2 < p.y1)
            continue;
        const ColorLong colour = fill ? paneColour(s, leadRect, withWhite) : NoColour;
        if (colour != NoColour)
            pic.Line(p.x1, p.y1, p.x2, p.y2, colour, LineFlags::BF);
        if (lead)
            leadPen.box(p.x1, p.y1, p.x2, p.y2);
    }
    pic.markChanged();
}

} // namespace

void Draw_LeadBorder(PaintContext &ctx, PictureBox &picture, int32_t &Width, const QString &Kind)
{
    guarded(QStringLiteral("Draw_LeadBorder"), [&] { drawLeadBorder(ctx, picture, Width, Kind); });
}

void paintTiffanyBorder(PaintContext &ctx)
{
    // Called inside the frames routine, which has cleared, set the lead-glass table when the
    // table is in force and started the transparency.
    Session &s = ctx.session;
    PictureBox &pic = ctx.XBild;
    int32_t width = std::clamp(
        s.controls().value(ControlKey{QStringLiteral("txtRahmendicke"), -1}), 1,
        std::max(1, std::min(pic.Width(), pic.Height()) / 2));
    if (ctx.opt.UseFill && !ctx.opt.UseDuoTable)
        Set_Duo_Colortable(s, 0, ctx.opt.UseFillWhite, QStringLiteral("DuoMLeadGlass"), 5, 5);
    Draw_LeadBorder(ctx, pic, width, QStringLiteral("Border"));
}

} // namespace tf
