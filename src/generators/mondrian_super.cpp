// "ART-MondrianSuper": the Mondrian family painted straight into the Superformat surface, up
// to 14000 x 14000 pixels, and shown in the Superformat viewer. The picture on screen is left
// as it is.
#include "generators/framecanvas.h"
#include "generators/mondrian.h"
#include "generators/mondrianboogie.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/superformatpaint.h"

namespace tf {

void paintMondrianSuper(PaintContext &ctx)
{
    Session &s = ctx.session;
    SuperformatPaint super(ctx);
    // A new surface starts in the panel's ground colour of the Superformat.
    if (!super.begin(s.controls().value(ControlKey{QStringLiteral("pic4C"), 4})))
        return;
    DibCanvas canvas(super.surface());
    MondrianCall call = mondrianCallFromPanel(ctx, canvas, s.mondrian().RepaintAsked);
    call.Super = true;
    call.SuperW = super.size().width();
    call.SuperH = super.size().height();
    if (call.Type >= 2) {
        BoogieState state;
        Draw_MondrianBoogie(ctx, canvas, call, state);
    } else {
        Draw_Mondrian(ctx, canvas, call);
    }
    super.end();
}

} // namespace tf
