// "Jalousie": slats of one step's height from the top down. The colour of the slats runs from
// the first colour towards the second: each channel advances by (end - start) / 256 * step / 2
// a slat, held to 0..255 (so the run keeps its pace whatever the step, and a tall picture
// runs past the second colour to the channel's limit). With "4 Farben" the right half of
// every slat runs through a second pair. "Diagonal" leans the slats by the picture's
// height/width ratio, so a slat runs from the lower left towards the upper right, and twice
// as many slats cover the picture.
#include "generators/papers.h"

#include "generators/figures.h"

#include "core/gdi.h"
#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/controls.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tf {

using namespace fig;

int jalousieStep(const QString &text, int width)
{
    const double v = Val(text);
    if (!(v >= 1)) return 1;
    return int(std::min<double>(v, std::max(1, width)));
}

namespace {

// One running colour: the start channels and the step of each channel per 256th.
struct Run {
    std::array<double, 3> at{};
    std::array<double, 3> per{};

    Run(ColorLong from, ColorLong to)
    {
        const std::array<int, 3> a{RedOf(from), GreenOf(from), BlueOf(from)};
        const std::array<int, 3> b{RedOf(to), GreenOf(to), BlueOf(to)};
        for (int c = 0; c < 3; ++c) {
            at[c] = a[c];
            per[c] = (b[c] - a[c]) / 256.0;
        }
    }
    ColorLong colour() const
    {
        return RGB(rounded(at[0]), rounded(at[1]), rounded(at[2]));
    }
    void advance(int step)
    {
        for (int c = 0; c < 3; ++c) at[c] = std::clamp(at[c] + per[c] * step / 2.0, 0.0, 255.0);
    }
};

// A slat from x1 to x2, rows top..top+height, leaning by `lean` pixels per pixel to the right.
void slat(DeviceContext &dc, int x1, int x2, double top, double height, double lean,
          ColorLong colour)
{
    const Brush brush{false, colour};
    if (lean == 0.0) {
        const RECT r{x1, int(std::lround(top)), x2, int(std::lround(top + height))};
        FillRect(dc, r, brush);
        return;
    }
    const Brush before = dc.brush;
    const Pen beforePen = dc.pen;
    dc.brush = brush;
    dc.pen = Pen{PS_NULL, 1, colour};
    const POINTAPI pts[4] = {
        {x1, int(std::lround(top - lean * x1))},
        {x2, int(std::lround(top - lean * x2))},
        {x2, int(std::lround(top + height - lean * x2))},
        {x1, int(std::lround(top + height - lean * x1))},
    };
    Polygon(dc, pts, 4);
    dc.brush = before;
    dc.pen = beforePen;
}

} // namespace

void Create_Jalousie(PaintContext &ctx)
{
    const Controls &controls = ctx.session.controls();
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int step = jalousieStep(controls.text(QStringLiteral("txtStep")), w);
    const bool four = controls.checked(ControlKey{QStringLiteral("XJalousieG"), 0});
    const bool diagonal = controls.checked(ControlKey{QStringLiteral("XJalousieG"), 1});
    const float ratio = float(h) / float(std::max(1, w));

    const ColourState &cs = ctx.colours();
    ColorLong c1 = cs.ColorFore, c2 = cs.ColorBack, c3 = c1, c4 = c2;
    if (cs.RandomColors) {
        c1 = Pick_RandomColor(ctx.session);
        c2 = Pick_RandomColor(ctx.session);
        if (four) {
            c3 = Pick_RandomColor(ctx.session);
            c4 = Pick_RandomColor(ctx.session);
        }
    }
    begin(ctx, 1);
    Run left(c1, c2), right(c3, c4);
    PictureBox &pic = ctx.XBild;
    DeviceContext &dc = pic.hDC();
    const double height = double(pic.Height()) / (double(h) / step);
    const int half = four ? w / 2 : w;
    // Leaning slats start a picture's height lower, so that they also cover the lower right.
    const int last = diagonal ? 2 * h : h;
    for (int i = 1; i <= last; i += step) {
        const double top = i - 1;
        slat(dc, 0, half, top, height, diagonal ? ratio : 0.0, left.colour());
        if (four) slat(dc, half, w, top, height, diagonal ? ratio : 0.0, right.colour());
        left.advance(step);
        right.advance(step);
        if (i % 64 == 1) {
            ctx.DoEvents();
            if (ctx.stopRequested()) break;
        }
    }
    pic.markChanged();
    end(ctx);
}

} // namespace tf
