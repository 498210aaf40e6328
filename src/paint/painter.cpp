#include "paint/painter.h"

#include "paint/session.h"

#include <QString>

namespace tf {

namespace {
std::span<const PainterEntry> g_painters;
} // namespace

Workspace &PaintContext::workspace()
{
    return session.workspace();
}
ColourState &PaintContext::colours()
{
    return session.colours();
}
Single PaintContext::Rnd()
{
    return session.Rnd();
}
void PaintContext::DoEvents()
{
    session.DoEvents();
}
bool PaintContext::stopRequested() const
{
    return session.paint().StopPaint;
}

void PaintContext::Bild_CLEAR()
{
    if (&XBild == &session.workspace().Bild)
        session.workspace().Bild_CLEAR();
    else
        XBild.Cls();
}

std::span<const PainterEntry> installPainters(std::span<const PainterEntry> table)
{
    const auto before = g_painters;
    g_painters = table;
    return before;
}

std::span<const PainterEntry> installedPainters()
{
    return g_painters;
}

const PainterEntry *findPainter(const QString &key)
{
    for (const PainterEntry &e : g_painters)
        if (key == QString::fromUtf8(e.key)) return &e;
    return nullptr;
}

} // namespace tf
