// "Repaint letztes Set" and the Superformat's size from the paint dialog.
#include "generators/mondrian.h"

#include "core/fault.h"
#include "paint/controls.h"
#include "paint/paintdriver.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace tf {

namespace {

constexpr int32_t SuperMin = 128;
constexpr int32_t SuperMax = 0x36B0; // 14000

const QLatin1String MondrianKey("ART-Mondrian");
const QLatin1String MondrianSuperKey("ART-MondrianSuper");

} // namespace

std::optional<SuperSize> superSizeFromFields(Session &s)
{
    const Controls &k = s.controls();
    const double w = Val(k.text(ControlKey{QStringLiteral("txtSuperSize"), 0}));
    const double h = Val(k.text(ControlKey{QStringLiteral("txtSuperSize"), 1}));
    if (w < 1 || h < 1) {
        s.ask(QCoreApplication::translate("Mondrian", "0 - sizes not allowed"), Buttons::Ok,
              Icon::Exclamation);
        return std::nullopt;
    }
    SuperSize size;
    size.w = int32_t(std::clamp(std::round(w), double(SuperMin), double(SuperMax)));
    size.h = int32_t(std::clamp(std::round(h), double(SuperMin), double(SuperMax)));
    return size;
}

PaintOutcome BtnMondrian_Repaint(Session &s)
{
    if (s.runState().busy())
        return PaintOutcome::Busy;
    PaintState &p = s.paint();
    // The panel serves both keys of the family; from elsewhere the repaint paints the picture.
    if (p.GrafKey != MondrianSuperKey)
        p.GrafKey = MondrianKey;
    if (p.GrafKey == MondrianSuperKey && !superSizeFromFields(s))
        return PaintOutcome::Failed;
    MondrianTables &t = s.mondrian();
    t.RepaintAsked = true;
    const PaintOutcome outcome = paintAgain(s);
    t.RepaintAsked = false;
    return outcome;
}

} // namespace tf
