#include "paint/superformat.h"

#include "core/language.h"
#include "core/tempfiles.h"
#include "core/workspace.h"
#include "paint/controls.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <array>
#include <cmath>

namespace tf {

namespace {

// The keys that paint into the Superformat surface.
constexpr std::array<const char *, 3> SuperformatKeys{"ART-MondrianSuper", "PIC-MosaikSuper",
                                                      "Photo-CUBESuper"};

constexpr double CmPerInch = 2.54;

} // namespace

std::optional<QSize> superformatSize(const Controls &controls)
{
    const double w = controls.number(ControlKey{QStringLiteral("txtSuperSize"), 0});
    const double h = controls.number(ControlKey{QStringLiteral("txtSuperSize"), 1});
    if (!(w >= 1) || !(h >= 1)) return std::nullopt;
    auto side = [](double v) {
        return int(std::clamp(v, double(SuperMinSide), double(SuperMaxSide)));
    };
    return QSize(side(w), side(h));
}

qint64 surfaceBytes(QSize size)
{
    if (size.isEmpty()) return 0;
    const qint64 stride = (qint64(size.width()) * 3 + 3) & ~qint64(3);
    return stride * size.height();
}

QString superformatPlanLabel(const Controls &controls)
{
    const auto size = superformatSize(controls);
    if (!size) return QCoreApplication::translate("Superformat", "0 - sizes not allowed");
    double dpi = controls.number(ControlKey{QStringLiteral("cmbDPI")});
    if (!(dpi >= 1)) dpi = 300;
    const QLocale locale(currentLanguage() == Language::German ? QLocale::German
                                                               : QLocale::English);
    auto cm = [&](int px) { return locale.toString(px / dpi * CmPerInch, 'f', 1); };
    const qint64 mb = (surfaceBytes(*size) + 500000) / 1000000;
    return QCoreApplication::translate("Superformat",
                                       "Superformat: %1 x %2 px = %3 x %4 cm bei %5 DPI, %6 MB")
        .arg(size->width())
        .arg(size->height())
        .arg(cm(size->width()), cm(size->height()))
        .arg(locale.toString(dpi, 'f', 0))
        .arg(mb);
}

bool isSuperformatType(const QString &key)
{
    return std::any_of(SuperformatKeys.begin(), SuperformatKeys.end(),
                       [&](const char *k) { return key == QLatin1String(k); });
}

SuperformatSurfaces::SuperformatSurfaces(const Workspace &workspace) : m_workspace(workspace) {}

QString SuperformatSurfaces::spillPath(int which) const
{
    if (m_workspace.TempDir().isEmpty()) return {};
    return m_workspace.tempPath(
        QString::fromLatin1(which == 0 ? TempFiles::SuperUndo0 : TempFiles::SuperUndo1));
}

bool SuperformatSurfaces::keepFormer(KeptSurface &into, int which)
{
    into.setSpillFile(spillPath(which));
    return into.keep(SuperDIB);
}

SuperformatSurfaces::Prepared SuperformatSurfaces::prepare(QSize size, ColorLong back)
{
    SuperKeepDIB = !SuperDIB.hDIB() || SuperDIB.dib_width() != size.width() ||
                   SuperDIB.dib_height() != size.height();
    // The former picture first, while it is there: a new size drops the surface it lies in.
    if (SuperDIB.hDIB() && m_keepUndo)
        keepFormer(SuperUndoDIB, m_spill);
    else if (!m_keepUndo)
        SuperUndoDIB.clear();
    ++m_generation;
    if (!SuperKeepDIB) {
        XsupDibNeu = false;
        return Prepared::Kept;
    }
    // The old surface goes before the new one is made, so that the two never stand together.
    SuperDIB.ClearUp();
    if (!m_allocator->create(SuperDIB, size.width(), size.height(), back)) {
        SuperDIB.ClearUp();
        XsupDibNeu = false;
        return Prepared::Failed;
    }
    XsupDibNeu = true;
    return Prepared::New;
}

bool SuperformatSurfaces::undo()
{
    if (SuperUndoDIB.empty()) return false;
    KeptSurface current;
    const int other = 1 - m_spill;
    if (SuperDIB.hDIB() && !keepFormer(current, other)) return false;
    if (SuperDIB.dib_width() != SuperUndoDIB.size().width() ||
        SuperDIB.dib_height() != SuperUndoDIB.size().height()) {
        SuperDIB.ClearUp();
        if (!m_allocator->create(SuperDIB, SuperUndoDIB.size().width(),
                                 SuperUndoDIB.size().height(), 0)) {
            // The picture of before the Undo is in `current`: it comes back.
            SuperDIB.ClearUp();
            if (!current.empty() &&
                m_allocator->create(SuperDIB, current.size().width(), current.size().height(), 0))
                current.restoreInto(SuperDIB);
            return false;
        }
    }
    if (!SuperUndoDIB.restoreInto(SuperDIB)) return false;
    SuperUndoDIB.clear();
    SuperUndoDIB.swap(current);
    m_spill = other;
    ++m_generation;
    return true;
}

void SuperformatSurfaces::drop()
{
    SuperDIB.ClearUp();
    SuperUndoDIB.clear();
    XsupDibNeu = false;
    ++m_generation;
}

} // namespace tf
