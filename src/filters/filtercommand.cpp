#include "filters/filtercommand.h"

#include "core/blit.h"
#include "core/fault.h"
#include "core/picturebox.h"
#include "filters/dografic.h"
#include "paint/colourstate.h"
#include "paint/paintdriver.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QCoreApplication>

namespace tf {

namespace {

// The "fixed" panel of the status bar after a filter changed the picture.
void setFixStatus(Session &s, bool fixed)
{
    s.fixings().Set_Fixstatus(fixed);
}

// Takes the undo image of the target; a cut-out selection draws into its persistent image.
void takeUndo(Session &s, const FilterTarget &t)
{
    Workspace &ws = s.workspace();
    switch (t.kind) {
    case FilterTarget::Rectangle:
        ws.PicSelect_nachUndo();
        break;
    case FilterTarget::CutOut:
        ws.picSelectC.setAutoRedraw(true);
        ws.PicSelectC_nachUndo();
        break;
    case FilterTarget::Picture:
        ws.Bild_nachUndo();
        break;
    }
}

// The work picture takes the target's size and pixels.
void fillWork(const FilterTarget &t)
{
    PictureBox &work = *t.work;
    if (work.Width() != t.picture->Width() || work.Height() != t.picture->Height())
        work.resize(t.picture->Width(), t.picture->Height());
    work.mutableImage() = t.picture->Image();
    work.markChanged();
}

// The target takes the size of `size`: Bild lays the workspace out anew (and Undo gives the
// former size back), a selection keeps its place.
void sizeTarget(Session &s, const FilterTarget &t, QSize size, const char *word = "BILDRESIZED")
{
    if (t.picture->Image().size() == size) return;
    Workspace &ws = s.workspace();
    if (t.kind == FilterTarget::Picture) {
        ws.New_BildSize(size.width(), size.height());
        if (!ws.lastaction.contains(QLatin1String(word))) ws.lastaction += QLatin1String(word);
    } else {
        t.picture->resize(size.width(), size.height());
    }
}

// The target shows `result` over its whole size (stretching and rotation may change it).
void showOnTarget(Session &s, const FilterTarget &t, const QImage &result,
                  const char *sizeWord = "BILDRESIZED")
{
    sizeTarget(s, t, result.size(), sizeWord);
    t.picture->mutableImage() = result;
    t.picture->markChanged();
    t.picture->Refresh();
    s.workspace().BildChanged = true;
}

bool filterWork(Session &s, const FilterTarget &t, int number, const FilterArgs &args)
{
    QImage &work = t.work->mutableImage();
    const bool ok = DoGraficFilters(s, number, work, args);
    t.work->markChanged();
    return ok;
}

} // namespace

FilterTarget chooseFilterTarget(Session &s)
{
    Workspace &ws = s.workspace();
    if (ws.PicSelect.Visible()) return {&ws.PicSelect, &ws.PicWork, FilterTarget::Rectangle};
    if (ws.picSelectC.Visible()) return {&ws.picSelectC, &ws.PicWork, FilterTarget::CutOut};
    return {&ws.Bild, &ws.BildWork, FilterTarget::Picture};
}

int32_t entryArgument(Session &s, const FilterMenuEntry &e)
{
    const ColourState &c = s.colours();
    switch (e.rule) {
    case ArgumentRule::Fixed:
        return e.argument;
    case ArgumentRule::ReliefColour:
        return c.RandomColors ? Pick_RandomColor(s) : c.ColorFore;
    case ArgumentRule::ThresholdColour:
        if (c.RandomColors) {
            const int g = roundHalfEven(double(s.Rnd()) * 200.0 + 54.0);
            return RGB(g, g, g);
        }
        return c.ColorFore;
    case ArgumentRule::CurrentColour:
        return c.ColorFore;
    }
    return e.argument;
}

FilterArgs defaultArguments(const FilterRow &row)
{
    FilterArgs a;
    for (size_t i = 0; i < row.sliders.size() && i < 3; ++i)
        a.sliders[i] = row.sliders[i].def;
    if (!row.sliders.empty()) a.argument = row.sliders[0].def;
    a.colours = row.colourDefaults;
    if (row.number >= 1000) a.selector = row.number - 1000;
    return a;
}

bool Menu_handle_Filter(Session &s, int number, const FilterArgs &args)
{
    s.filters().FilterG = number;
    const FilterTarget t = chooseFilterTarget(s);
    takeUndo(s, t);
    if (t.kind == FilterTarget::Picture) setFixStatus(s, false);
    fillWork(t);
    if (!filterWork(s, t, number, args)) return false;
    showOnTarget(s, t, t.work->Image());
    return true;
}

bool runTargetRoutine(Session &s, int number, const FilterArgs &args)
{
    s.filters().FilterG = number;
    return runTargetRoutine(s, [&](QImage &work) { return DoGraficFilters(s, number, work, args); });
}

bool runTargetRoutine(Session &s, const std::function<bool(QImage &)> &work)
{
    patch_lastactionpaint(s);
    const FilterTarget t = chooseFilterTarget(s);
    // Start_TransparentWork / Start_TransparentSelect: undo, and the target into the work
    // picture.
    takeUndo(s, t);
    fillWork(t);
    const bool ok = work(t.work->mutableImage());
    t.work->markChanged();
    if (!ok) return false;
    // Ende_TransparentWork / Ende_TransparentSelect: the changed picture over the target.
    const TransparencyState &tr = s.transparency();
    if (tr.active()) {
        QImage blended = t.picture->Image();
        blendOver(blended, t.work->Image(), tr.TranspFactor);
        showOnTarget(s, t, blended);
    } else {
        showOnTarget(s, t, t.work->Image());
    }
    return true;
}

bool runOnTarget(Session &s, const FilterTarget &t, const QString &tag,
                 const std::function<void(QImage &)> &work, const char *sizeWord)
{
    if (s.runState().busy()) return false;
    QImage result = t.picture->Image().convertToFormat(QImage::Format_RGB32);
    result.detach();
    if (!guarded(tag, [&] { work(result); })) return false;
    patch_lastactionpaint(s);
    takeUndo(s, t);
    if (t.kind == FilterTarget::Picture) setFixStatus(s, false);
    showOnTarget(s, t, result, sizeWord);
    t.picture->setPicture(t.picture->Image());
    // The work picture follows the target, as after a filter.
    t.work->resize(result.width(), result.height());
    t.work->mutableImage() = result;
    t.work->markChanged();
    return true;
}

bool runMenuEntry(Session &s, const FilterRow &row, const FilterMenuEntry &e)
{
    if (!row.available() || e.run == RunMode::Dialog || e.run == RunMode::Internal) return false;
    FilterArgs args = defaultArguments(row);
    args.argument = entryArgument(s, e);
    if (e.run == RunMode::TargetRoutine) return runTargetRoutine(s, row.number, args);
    patch_lastactionpaint(s);
    return Menu_handle_Filter(s, row.number, args);
}

FilterDialogRun::FilterDialogRun(Session &s, const FilterRow &row)
    : m_s(s), m_row(row), m_target(chooseFilterTarget(s))
{
    s.filters().FilterG = row.number;
    patch_lastactionpaint(s);
    m_left = m_target.picture->Left();
    m_top = m_target.picture->Top();
    takeUndo(s, m_target);
    fillWork(m_target);
    m_original = m_target.picture->Image();
    s.filters().dialogOpen = true;
}

FilterDialogRun::~FilterDialogRun()
{
    if (!m_finished) finish(true, false);
}

bool FilterDialogRun::preview(const FilterArgs &args)
{
    bool ok = false;
    guarded(QStringLiteral("Gamma_cmdPreview"), [&] {
        // The work picture starts from the target as it was, also in size.
        m_target.work->resize(m_original.width(), m_original.height());
        m_target.work->mutableImage() = m_original;
        FilterArgs a = args;
        a.background = m_s.colours().ColorBack;
        // The full run shows its progress in the main window.
        m_s.filters().dialogOpen = false;
        ok = DoGraficFilters(m_s, m_row.runsAs(), m_target.work->mutableImage(), a);
        m_s.filters().dialogOpen = true;
        m_target.work->markChanged();
        if (ok) showOnTarget(m_s, m_target, m_target.work->Image());
    });
    return ok;
}

QImage FilterDialogRun::previewOf(const QImage &reduced, FilterArgs args, double scale,
                                  QPoint origin)
{
    if (args.position.x() >= 0) {
        const QPoint p = args.position - origin;
        args.position = QPoint(int(p.x() * scale), int(p.y() * scale));
    }
    args.background = m_s.colours().ColorBack;
    QImage result = reduced.convertToFormat(QImage::Format_RGB32);
    DoGraficFilters(m_s, m_row.runsAs(), result, args);
    return result;
}

bool FilterDialogRun::finish(bool cancelled, bool previewed)
{
    m_finished = true;
    m_s.filters().dialogOpen = false;
    Workspace &ws = m_s.workspace();
    PictureBox &target = *m_target.picture;
    if (cancelled) {
        if (m_target.kind != FilterTarget::Picture && (m_row.number == 52 || m_row.number == 53)) {
            target.setLeft(m_left);
            target.setTop(m_top);
        }
        sizeTarget(m_s, m_target, m_original.size());
        ws.Undoimage_auf_Bild(target, m_target.kind != FilterTarget::Picture, false);
        target.Refresh();
        if (m_target.kind == FilterTarget::Picture) setFixStatus(m_s, false);
        return false;
    }
    m_s.DoEvents();
    if (!previewed) {
        m_s.ask(QStringLiteral("Please contact Vorun! Err-Code: 17"), Buttons::Ok, Icon::Exclamation,
                QStringLiteral("menu_handle_frmGamma"));
        return false;
    }
    target.setPicture(target.Image());
    m_target.work->setPicture(target.Image());
    target.Refresh();
    if (m_target.kind == FilterTarget::Picture) setFixStatus(m_s, false);
    return true;
}

} // namespace tf
