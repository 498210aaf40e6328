#include "filters/colourcommand.h"

#include "core/fault.h"
#include "core/picturebox.h"
#include "filters/filtercommand.h"
#include "filters/filterrun.h"
#include "filters/hls.h"
#include "paint/paintdriver.h"
#include "paint/session.h"

namespace tf {

void colourisePicture(Session &s, QImage &picture, const ColouriseValues &v)
{
    if (picture.format() != QImage::Format_RGB32)
        picture = picture.convertToFormat(QImage::Format_RGB32);
    const PixelPlane plane{picture.bits(), picture.width(), picture.height(), picture.bytesPerLine()};
    Colourise(plane, v.hue, v.saturation, v.monochrome, s.filters().threads);
}

bool mn_Sepia(Session &s)
{
    return runTargetRoutine(s, [&](QImage &work) {
        return guarded(QStringLiteral("mn_Sepia"), [&] { colourisePicture(s, work, SepiaValues); });
    });
}

ColouriseRun::ColouriseRun(Session &s) : m_s(s)
{
    patch_lastactionpaint(s);
    const FilterTarget t = chooseFilterTarget(s);
    Workspace &ws = s.workspace();
    if (t.kind == FilterTarget::Rectangle) ws.PicSelect_nachUndo();
    else if (t.kind == FilterTarget::CutOut) ws.PicSelectC_nachUndo();
    else ws.Bild_nachUndo();
    m_original = t.picture->Image();
}

ColouriseRun::~ColouriseRun()
{
    if (!m_finished) finish(true, false, {});
}

void ColouriseRun::preview(const ColouriseValues &v)
{
    guarded(QStringLiteral("Menu_Colorize"), [&] {
        const FilterTarget t = chooseFilterTarget(m_s);
        QImage result = m_original;
        colourisePicture(m_s, result, v);
        t.picture->mutableImage() = result;
        t.picture->markChanged();
        t.picture->Refresh();
        m_s.workspace().BildChanged = true;
    });
}

bool ColouriseRun::finish(bool cancelled, bool previewed, const ColouriseValues &v)
{
    m_finished = true;
    const FilterTarget t = chooseFilterTarget(m_s);
    if (cancelled) {
        m_s.workspace().Undoimage_auf_Bild(*t.picture, t.kind != FilterTarget::Picture, false);
        t.picture->Refresh();
        return false;
    }
    if (!previewed) preview(v);
    t.picture->setPicture(t.picture->Image());
    t.picture->Refresh();
    return true;
}

} // namespace tf
