// The gradients that run through the filters: "Framegradient-Transp" (filter 45) and
// "Frequenzgradient-Transp" (the frequency waves 3 and 4).
#include "generators/gradients.h"

#include "core/blit.h"
#include "core/picturebox.h"
#include "filters/dografic.h"
#include "paint/colourstate.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>

namespace tf {

namespace {

// The random frame widths are at most this part of the smaller side.
constexpr int BorderDivisor = 4;

ControlKey key(const char *name, int index = -1) { return {QString::fromLatin1(name), index}; }

// The two colours without the colour table: random ones, else foreground and background.
std::pair<ColorLong, ColorLong> plainPair(PaintContext &ctx)
{
    if (ctx.colours().RandomColors) {
        const ColorLong a = Pick_RandomColor(ctx.session);
        return {a, Pick_RandomColor(ctx.session)};
    }
    return {ctx.colours().ColorFore, ctx.colours().ColorBack};
}

} // namespace

void Create_GradientFrames(PaintContext &ctx)
{
    PictureBox &target = ctx.XBild;
    const int w = target.Width(), h = target.Height();
    const int m = std::min(w, h);
    FilterArgs args;
    FilterArgs::FrameGradient &f = args.frame;
    f.on = true;
    double strength = 0.0;
    if (ctx.colours().RandomValues) {
        f.style = int(Int(ctx.Rnd() * 4.0f));
        f.horizontal = Int(ctx.Rnd() * 2.0f) != 0;
        if (f.style == 0) strength = ctx.Rnd() * 0.6f + 0.2f;
        f.swap = Int(ctx.Rnd() * 2.0f) != 0;
        f.soft = Int(ctx.Rnd() * 2.0f) != 0;
        f.borders[0] = CLng(ctx.Rnd() * float(m) / BorderDivisor);
        f.borders[1] = CLng(ctx.Rnd() * float(m) / BorderDivisor);
        f.borders[2] = Int(ctx.Rnd() * 2.0f) == 1 ? CLng(ctx.Rnd() * float(m) / BorderDivisor)
                                                   : -1;
    } else {
        const Controls &c = ctx.session.controls();
        strength = 1.0 - c.value(key("scrollGColorProz")) / 100.0;
        f.horizontal = c.listIndex(key("optGColorVer")) == 0;
        f.style = std::clamp(c.listIndex(key("optGColorTyp")), 0, 3);
        f.swap = c.checked(key("chkGColorHV", 0));
        f.soft = c.checked(key("chkGColorHV", 1));
        f.borders[0] = CLng(c.number(key("txtGColorBorder", 0)));
        f.borders[1] = CLng(c.number(key("txtGColorBorder", 1)));
        f.borders[2] = c.checked(key("chkGPassepartout"))
                           ? CLng(c.number(key("txtGColorBorder", 2)))
                           : -1;
    }
    // A frame meets itself at half the smaller side.
    for (int &b : f.borders)
        if (b > m / 2) b = m / 2;
    const auto [from, to] = plainPair(ctx);
    args.colours = {from, to};
    args.frame.keep = strength;
    patch_lastactionpaint(ctx.session);

    // The filter works on the work picture, a copy of the picture as it stands, and the
    // result comes back in one block copy.
    PictureBox &work = ctx.XWork;
    BitBlt(work.hDC(), 0, 0, w, h, &target.hDC(), 0, 0, SRCCOPY);
    DoGraficFilters(ctx.session, 45, work.mutableImage(), args);
    work.markChanged();
    BitBlt(target.hDC(), 0, 0, w, h, &work.hDC(), 0, 0, SRCCOPY);
    target.markChanged();
}

void Create_GradientFrequences(PaintContext &ctx)
{
    PictureBox &target = ctx.XBild;
    ctx.Bild_CLEAR();
    auto [c1, c2] = plainPair(ctx);
    int filter, count, frequency, second;
    const Controls &c = ctx.session.controls();
    if (ctx.colours().RandomValues) {
        filter = Int(ctx.Rnd() * 2.0f) == 0 ? 4 : 3;
        count = int(Int(ctx.Rnd() * 7.0f)) + 1;
        if (count == 1)
            frequency = int(Int(ctx.Rnd() * 71.0f)) + 5;
        else
            frequency = CLng(std::min(100.0 / std::max(double(ctx.Rnd()), 1e-3), 1e5));
        second = c.value(key("scroll26FRQ", 0));
    } else {
        filter = c.listIndex(key("cmb26Frequenz")) == 0 ? 4 : 3;
        // The transparency of the paint dialog sets the wave length: the clearer, the shorter.
        frequency = CLng((1.0 - ctx.opt.TranspLevel) * 100.0);
        second = c.value(key("scroll26FRQ", 0));
        count = std::max(1, c.value(key("scroll26FRQ", 1)));
        if (count > 1 && (frequency < 1 || frequency > 99)) frequency = 50;
    }
    patch_lastactionpaint(ctx.session);

    PictureBox &work = ctx.XWork;
    const int w = target.Width(), h = target.Height();
    for (int i = 1; i <= count; ++i) {
        if (ctx.colours().RandomColors) {
            c1 = Pick_RandomColor(ctx.session);
            c2 = Pick_RandomColor(ctx.session);
        }
        if (ctx.colours().RandomValues) {
            filter = Int(ctx.Rnd() * 2.0f) == 0 ? 4 : 3;
            second = int(Int(ctx.Rnd() * 70.0f)) + 10;
        }
        // Each wave lies over what the ones before it left.
        BitBlt(work.hDC(), 0, 0, w, h, &target.hDC(), 0, 0, SRCCOPY);
        FilterArgs args;
        args.position = QPoint(int(ctx.Rnd() * float(w)), int(ctx.Rnd() * float(h)));
        args.position2 = QPoint(int(ctx.Rnd() * float(w)), int(ctx.Rnd() * float(h)));
        args.colours = {c1, c2};
        args.sliders = {frequency, second, 0};
        DoFrequencyWaves(ctx.session, filter, work.Image(), target.mutableImage(), args);
        target.markChanged();
        target.Refresh();
        ctx.DoEvents();
    }
}

} // namespace tf
