// The painters of "PIC-Mosaik" and "PIC-MosaikSuper" around PicMosaikRun, with the checks and
// questions of a Superformat mosaic, and the options a run reads.
#include "generators/picmosaik.h"

#include "core/fault.h"
#include "core/picturebox.h"
#include "files/picturefile.h"
#include "generators/framecanvas.h"
#include "generators/longrun.h"
#include "generators/picmosaik_p.h"
#include "generators/picmosaik_texts.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/superformatpaint.h"
#include "paint/transparency.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace tf {

namespace {

ControlKey key(const char *name, int index = -1)
{
    return {QString::fromLatin1(name), index};
}

constexpr int32_t SuperMin = 128;
constexpr int32_t SuperMax = 14000;
// Above this side a Superformat mosaic asks before it starts.
constexpr int32_t LongCalculationSide = 4600;

// The Superformat's checks and questions before a mosaic is painted into it; the size to
// paint, or nothing when the paint ends here.
std::optional<QSize> superSizeAsked(Session &s)
{
    const Controls &k = s.controls();
    const double w = Val(k.text(key("txtSuperSize", 0)));
    const double h = Val(k.text(key("txtSuperSize", 1)));
    if (w < 1 || h < 1) {
        s.ask(QCoreApplication::translate("Mondrian", "0 - sizes not allowed"), Buttons::Ok,
              Icon::Exclamation);
        return std::nullopt;
    }
    if (!s.colours().RandomValues) {
        // A frame wider or taller than 1000 pixels is a very large picture to fill: the split
        // count that would keep the frames near 1000 pixels is offered.
        const double m2 = 2.0 * Val(k.text(key("txtPMKachel", 2)));
        const int hSplits = std::max<int>(2, CInt(Val(k.text(key("txtPMKachel", 0)))));
        const int vSplits = std::max<int>(2, CInt(Val(k.text(key("txtPMKachel", 1)))));
        const bool symH = k.checked(key("XPicMosaik", 0));
        const bool symV = k.checked(key("XPicMosaik", 1));
        QString hint;
        if ((w - m2) / hSplits > 1000) {
            const double pad = symH ? w : 1000;
            hint = mosaiktext::hSplitsHint(CLng((w - m2) / 1000 * pad / 1000) + 2);
        }
        if ((h - m2) / vSplits > 1000) {
            const double pad = symV ? h : 1000;
            if (!hint.isEmpty())
                hint += mosaiktext::hvSplitsJoin();
            hint += mosaiktext::vSplitsHint(CLng((h - m2) / 1000 * pad / 1000) + 2);
        }
        if (!hint.isEmpty() &&
            s.ask(mosaiktext::largeFramesQuestion(hint), Buttons::YesNo, Icon::Question) ==
                Answer::Yes)
            return std::nullopt;
    }
    if ((w > LongCalculationSide || h > LongCalculationSide) &&
        s.ask(mosaiktext::longCalculation(), Buttons::OkCancel, Icon::Exclamation) ==
            Answer::Cancel)
        return std::nullopt;
    return QSize(int(std::clamp(std::round(w), double(SuperMin), double(SuperMax))),
                 int(std::clamp(std::round(h), double(SuperMin), double(SuperMax))));
}

void runLayout(PaintContext &ctx, FrameCanvas &canvas, const PicMosaikCall &call)
{
    PicMosaikRun run(ctx, call);
    if (!run.start(canvas))
        return;
    StopRule stop(ctx);
    StatusSink &status = ctx.session.status();
    while (run.paintNext(canvas)) {
        status.setProgress(run.framesDone(), std::max(1, run.frameCount()));
        if (!stop.next())
            break;
    }
    run.finish(canvas);
    status.setProgress(0, 0);
}

} // namespace

PicMosaikOptions readPicMosaikOptions(Session &s, bool super)
{
    const Controls &k = s.controls();
    PicMosaikOptions o;
    o.fromFile = k.listIndex(key("optPicMosaikSource")) == 0;
    o.duplicates = k.checked(key("XPicMosaik_Duplikate"));
    o.subDirs = k.checked(key("XPicMosaikSubDirs"));
    o.mix = k.checked(key("XPicMosaik_MixSlots"));
    o.allowSmall = k.checked(key("XPicMosaik_UseSmallPics", 0));
    o.tileSmall = k.checked(key("XPicMosaik_UseSmallPics", 1));
    o.shrink = k.checked(key("XPicMosaikStretchpics"));
    o.center = k.checked(key("XPicMosaikCenterPics"));
    o.antiAlias = k.checked(key("XPicMosaikAliasing"));
    o.colorize = k.checked(key("XPicMosaik_Colorize"));
    o.hueDegrees = k.value(key("picHue"));
    o.monochrome = k.checked(key("XMonochrome"));
    o.satStart = k.value(key("SliderSatur", 0));
    o.satRange = k.value(key("SliderSatur", 1));
    o.onlyGrey = k.checked(key("XPicMosaik_OnlyGrey"));
    o.fillAll = k.checked(key("XPicMosaik_FillAll"));
    // "Nur freie Rahmen füllen" (enabled only while not every frame is filled) never answers
    // in the Superformat.
    o.fillOnlyEmpty = !super && k.checked(key("XPicMosaik_FillOnlyEmpty"));
    o.opt = std::clamp(k.listIndex(key("cmbPicMosaik_Options")), 0, 9);
    o.panelH = CInt(std::max(2.0, Val(k.text(key("txtPMKachel", 0)))));
    o.panelV = CInt(std::max(2.0, Val(k.text(key("txtPMKachel", 1)))));
    o.margin = CLng(Val(k.text(key("txtPMKachel", 2))));
    o.doSub = k.checked(key("XPicMosaik", 2));
    o.harmonic = k.checked(key("XPicMosaik", 3));
    o.drawBorders = k.checked(key("XBorders"));
    o.centreLayout = k.checked(key("XCenter"));
    o.randomValues = s.colours().RandomValues;
    o.source = s.picSources().PicSource;
    return o;
}

void Draw_PicMosaik(PaintContext &ctx, FrameCanvas &canvas, const PicMosaikCall &call)
{
    try {
        runLayout(ctx, canvas, call);
    } catch (const Fault &f) {
        canvas.changed();
        // An overflow comes from a picture whose sizes the arithmetic cannot hold.
        if (f.number() == Fault::Overflow)
            ctx.session.ask(corruptPictureText(true), Buttons::Ok, Icon::Critical);
        else
            reportFault(QStringLiteral("Do_PicMosaik"), f.description());
    } catch (...) {
        canvas.changed();
        reportFault(QStringLiteral("Do_PicMosaik"),
                    describeCurrentException(std::current_exception()));
    }
}

void paintPicMosaik(PaintContext &ctx)
{
    Session &s = ctx.session;
    ctx.Bild_CLEAR();
    Start_Transparent(s);
    PictureCanvas canvas(ctx.XBild);
    const PicMosaikCall call = picMosaikCallFromPanel(
        ctx, QSize(canvas.width(), canvas.height()), s.mondrian().RepaintAsked);
    Draw_PicMosaik(ctx, canvas, call);
    Ende_Transparent(s);
    ctx.XBild.markChanged();
}

void paintPicMosaikSuper(PaintContext &ctx)
{
    Session &s = ctx.session;
    const std::optional<QSize> size = superSizeAsked(s);
    if (!size)
        return;
    SuperformatPaint super(ctx);
    if (!super.begin(*size, s.colours().ColorBack))
        return;
    DibCanvas canvas(super.surface());
    PicMosaikCall call =
        picMosaikCallFromPanel(ctx, super.size(), s.mondrian().RepaintAsked);
    call.Super = true;
    call.SuperW = super.size().width();
    call.SuperH = super.size().height();
    Draw_PicMosaik(ctx, canvas, call);
    super.end();
}

} // namespace tf
