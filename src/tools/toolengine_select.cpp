// The selection tools of the mouse: dragging a new selection on the picture, and moving and
// stretching a shown one.
#include "tools/toolengine.h"

#include <algorithm>
#include <cmath>

namespace tf {

void ToolEngine::selectDown(int Button, int X, int Y)
{
    if (Button == vbRightButton) {
        // The right button stamps what is shown and releases the tool.
        m_selections.commitShown();
        disarm();
        setStatus(QString());
        m_view->selectionChanged();
        return;
    }
    if (Button != vbLeftButton) return;
    DragX = X;
    DragY = Y;
    // A shown selection of the same kind is stamped before the next is dragged.
    m_selections.commitShown();
    m_view->selectionChanged();
    const RubberBands before = m_bands;
    m_bands.selectVisible = true;
    m_bands.selectEllipse = m_tool == Tool::CSelect;
    m_bands.shapeSelect = QRect(X, Y, 0, 0);
    m_bands.lineVisible = m_tool == Tool::CSelect;
    m_bands.line1 = QLine(X, Y, X, Y);
    bandsChanged(before);
    setStatus(QStringLiteral("%1 / %2").arg(X).arg(Y));
    m_drag = Drag::Tool;
}

QRect ToolEngine::circleSelection(int Shift, int X, int Y) const
{
    if (m_tool == Tool::CSelect && (Shift & vbShiftMask)) {
        // A circle round the anchor, as far as the pointer and no farther than the picture.
        const Workspace &ws = m_s.workspace();
        const double dx = X - DragX, dy = Y - DragY;
        int r = int(std::lround(std::sqrt(dx * dx + dy * dy)));
        r = std::min({r, DragX, DragY, ws.BildW - DragX, ws.BildH - DragY});
        r = std::max(r, 0);
        return QRect(DragX - r, DragY - r, 2 * r, 2 * r);
    }
    return QRect(std::min(DragX, X), std::min(DragY, Y), std::abs(X - DragX), std::abs(Y - DragY));
}

void ToolEngine::selectMove(int Shift, int X, int Y)
{
    const RubberBands before = m_bands;
    const QRect r = circleSelection(Shift, X, Y);
    m_bands.shapeSelect = r;
    m_bands.line1.setP2(QPoint(X, Y));
    bandsChanged(before);
    setStatus(QStringLiteral("%1 / %2  (%3 / %4)").arg(X).arg(Y).arg(r.width()).arg(r.height()));
}

void ToolEngine::selectUp(int Shift, int X, int Y)
{
    const RubberBands before = m_bands;
    m_bands.selectVisible = false;
    m_bands.lineVisible = false;
    bandsChanged(before);
    setStatus(QString());
    const QRect r = circleSelection(Shift, X, Y);
    // A rectangle narrower than 2 pixels, an ellipse narrower than 3, is no selection.
    const int least = m_tool == Tool::CSelect ? 3 : 2;
    if (r.width() < least || r.height() < least) return;
    m_selections.cut(m_tool == Tool::CSelect ? SelectionKind::Circ : SelectionKind::Rect, r);
    m_view->selectionChanged();
    m_view->areaChanged(r.adjusted(-2, -2, 2, 2));
}

void ToolEngine::selectionDragDown(const Target &t, int X, int Y)
{
    m_target = t;
    m_drag = Drag::Selection;
    m_edges = handleAt(*t.picture, X - t.origin.x(), Y - t.origin.y());
    m_startPlace = Selections::placeOf(*t.picture);
    DragX = X;
    DragY = Y;
    m_selections.beginChange(t.kind);
}

void ToolEngine::selectionDragMove(int X, int Y)
{
    PictureBox &p = *m_target.picture;
    const QRect before = Selections::placeOf(p);
    const int dx = X - DragX, dy = Y - DragY;
    QRect now = m_startPlace.translated(dx, dy);
    if (m_edges != 0) {
        // The dragged edges follow the pointer, at least one pixel from the opposite edge.
        int l = m_startPlace.left(), t = m_startPlace.top();
        int r = l + m_startPlace.width(), b = t + m_startPlace.height();
        if (m_edges & EdgeLeft) l = std::min(l + dx, r - 1);
        if (m_edges & EdgeRight) r = std::max(r + dx, l + 1);
        if (m_edges & EdgeTop) t = std::min(t + dy, b - 1);
        if (m_edges & EdgeBottom) b = std::max(b + dy, t + 1);
        now = QRect(l, t, r - l, b - t);
        if (now.size() != before.size())
            m_selections.stretchTo(m_target.kind, now.width(), now.height());
    }
    m_selections.moveTo(m_target.kind, now.left(), now.top());
    m_view->areaChanged((before | now).adjusted(-2, -2, 2, 2));
    setStatus(QStringLiteral("%1 / %2  (%3 / %4)")
                  .arg(now.left())
                  .arg(now.top())
                  .arg(now.width())
                  .arg(now.height()));
}

void ToolEngine::selectionDragUp(int X, int Y)
{
    selectionDragMove(X, Y);
    const QRect now = Selections::placeOf(*m_target.picture);
    if (now.size() != m_startPlace.size())
        m_selections.endStretch(m_target.kind, true);
    else
        m_selections.endMove(m_target.kind, now != m_startPlace);
    m_edges = 0;
    m_view->selectionChanged();
}

} // namespace tf
