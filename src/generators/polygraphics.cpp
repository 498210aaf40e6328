#include "generators/polygraphics.h"

#include "core/blit.h"
#include "core/picturebox.h"
#include "filters/dografic.h"
#include "paint/colourstate.h"
#include "paint/painter.h"
#include "paint/transparency.h"

namespace tf {

void paintBackgroundcolor(PaintContext &ctx)
{
    ctx.Bild_CLEAR();
    const ColorLong colour =
        ctx.colours().RandomColors ? Pick_RandomColor(ctx.session) : ctx.colours().ColorBack;
    PictureBox &target = ctx.XBild;
    const int w = ctx.opt.W;
    const int h = ctx.opt.H;
    if (ctx.opt.TranspPercent >= 2 && ctx.opt.TranspPercent <= 98) {
        // The colour mix (filter 45) works on a copy of the picture, which then takes the
        // picture's place in one piece: one copy, not two, of a picture of any size.
        QImage mixed = target.Image();
        FilterArgs mix;
        mix.colours[0] = colour;
        mix.sliders[0] = ctx.opt.TranspPercent;
        DoGraficFilters(ctx.session, 45, mixed, mix);
        if (!target.replaceImage(mixed))
            target.PaintPicture(mixed, 0, 0);
        target.markChanged();
        return;
    }
    target.setFillStyle(0);
    target.setFillColor(colour);
    target.setForeColor(colour);
    target.setDrawWidth(1);
    target.Line(0, 0, w - 1, h - 1, colour, LineFlags::BF);
}

} // namespace tf
