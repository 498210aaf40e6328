// The buttons of the photo mosaic's panel, and the call of a run read from the panel.
#include "generators/picmosaik.h"

#include "generators/mondrian.h"
#include "paint/controls.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>

namespace tf {

namespace {

const QLatin1String MosaikKey("PIC-Mosaik");
const QLatin1String MosaikSuperKey("PIC-MosaikSuper");

ControlKey key(const char *name, int index = -1)
{
    return {QString::fromLatin1(name), index};
}

} // namespace

PicMosaikCall picMosaikCallFromPanel(const PaintContext &ctx, QSize targetSize, bool repaint)
{
    const Controls &k = ctx.session.controls();
    PicMosaikCall call;
    call.Side = std::max(targetSize.width(), targetSize.height());
    // The pen of the mosaic is a third wider than the paint dialog's number.
    call.PenWidth = int16_t(std::max<int>(1, CInt(Val(k.text(key("cmbPen"))) * 1.33)));
    call.Repaint = repaint;
    call.SymH = int16_t(k.value(key("XPicMosaik", 0)));
    call.SymV = int16_t(k.value(key("XPicMosaik", 1)));
    call.AllFrames = int16_t(k.value(key("YPicMosaik_EachRahmen")));
    call.Format = std::clamp(k.listIndex(key("cmbPicMosaik_Format", 0)), 0, 2);
    call.Type = std::clamp(k.listIndex(key("cmbPicMosaik_Format", 1)), 0, 1);
    return call;
}

PaintOutcome BtnPicMosaik_Repaint(Session &s)
{
    if (s.runState().busy())
        return PaintOutcome::Busy;
    PaintState &p = s.paint();
    // The panel serves the cube and the show too; from there the repaint paints the picture.
    if (p.GrafKey != MosaikSuperKey)
        p.GrafKey = MosaikKey;
    if (p.GrafKey == MosaikSuperKey && !superSizeFromFields(s))
        return PaintOutcome::Failed;
    MondrianTables &t = s.mondrian();
    t.RepaintAsked = true;
    const PaintOutcome outcome = paintAgain(s);
    t.RepaintAsked = false;
    return outcome;
}

PaintOutcome BtnPicMosaik_SetPics(Session &s)
{
    if (s.runState().busy())
        return PaintOutcome::Busy;
    return s.view().choosePicSource() ? PaintOutcome::Painted : PaintOutcome::Failed;
}

} // namespace tf
