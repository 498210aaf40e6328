#include "paint/painter.h"

#include "paint/session.h"

#include <QString>

namespace tf {

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

const PainterEntry *findPainter(std::span<const PainterEntry> table, const QString &key)
{
    for (const PainterEntry &e : table)
        if (key == QString::fromUtf8(e.key)) return &e;
    return nullptr;
}

} // namespace tf
