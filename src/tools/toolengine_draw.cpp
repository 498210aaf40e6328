// The drawing tools of the mouse: fill, pipette, line, shapes, the pen and the text position.
#include "tools/toolengine.h"

#include "core/gdi.h"
#include "paint/optionvariables.h"
#include "paint/paintdriver.h"
#include "tools/strokecolour.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace tf {

namespace {

int penWidthOf(Session &s)
{
    const Workspace &ws = s.workspace();
    return std::max<int>(1, readOptionVariables(s.controls(), ws.BildW, ws.BildH).PenWidth);
}

} // namespace

void ToolEngine::fillAt(int x, int y)
{
    PictureBox &p = *m_target.picture;
    takeUndo();
    // A press on the last pixel, or a drag's end beyond it, fills from the nearest pixel.
    x = std::clamp(x, 0, p.Width() - 1);
    y = std::clamp(y, 0, p.Height() - 1);
    DeviceContext &dc = p.hDC();
    const ColorLong under = GetPixel(dc, x, y);
    p.setDrawMode(13);
    p.setFillStyle(0);
    p.setDrawStyle(0);
    const ColorLong colour = strokeColour(m_s, RandomStroke::Pick, under);
    const Brush brush = CreateSolidBrush(colour);
    const Brush before = SelectObject(dc, brush);
    ExtFloodFill(dc, x, y, under, FLOODFILLSURFACE);
    SelectObject(dc, before);
    changed(QRect(0, 0, p.Width(), p.Height()));
    // The fill is one shot.
    disarm();
    m_s.view().Handle_Formobjects();
}

void ToolEngine::pipette(int Button, int x, int y)
{
    const PictureBox &p = *m_target.picture;
    if (x < 0 || y < 0 || x >= p.Width() || y >= p.Height()) return;
    const ColorLong c = p.Point(x, y);
    ColourState &colours = m_s.colours();
    if (Button == vbLeftButton) {
        colours.ColorFore = c;
        colours.TextFore = c;
    } else if (Button == vbRightButton) {
        colours.ColorBack = c;
    } else {
        return;
    }
    m_view->coloursChanged();
}

void ToolEngine::lineUp(int x, int y)
{
    PictureBox &p = *m_target.picture;
    PenColor = strokeColour(m_s, RandomStroke::Pick);
    const RubberBands before = m_bands;
    m_bands.lineVisible = false;
    bandsChanged(before);
    p.setDrawMode(13);
    p.setDrawStyle(0);
    p.setDrawWidth(penWidthOf(m_s));
    p.setForeColor(PenColor);
    p.Line(DragX, DragY, x, y);
    LastX = LastY = -1;
    m_s.workspace().BildChanged = true;
}

namespace {

// The figure of a shape tool from the anchor to the pointer: kinds 0 rectangle, 1 the square
// on the anchor, 2 the circle in the dragged square, 3 the circle round the anchor, 4 the
// ellipse in the dragged rectangle.
QRect shapeRect(int kind, QPoint anchor, QPoint at)
{
    const int dx = at.x() - anchor.x(), dy = at.y() - anchor.y();
    switch (kind) {
    case 1:
    case 2: {
        const int side = std::max(std::abs(dx), std::abs(dy));
        const int left = dx < 0 ? anchor.x() - side : anchor.x();
        const int top = dy < 0 ? anchor.y() - side : anchor.y();
        return QRect(left, top, side, side);
    }
    case 3: {
        const int r = int(std::lround(std::sqrt(double(dx) * dx + double(dy) * dy)));
        return QRect(anchor.x() - r, anchor.y() - r, 2 * r, 2 * r);
    }
    default:
        return QRect(std::min(anchor.x(), at.x()), std::min(anchor.y(), at.y()), std::abs(dx),
                     std::abs(dy));
    }
}

} // namespace

void ToolEngine::boxBands(int x, int y)
{
    const RubberBands before = m_bands;
    const QRect r = shapeRect(BoxKind, QPoint(DragX, DragY), QPoint(x, y));
    m_bands.squareVisible = true;
    m_bands.shSquare = r.translated(m_target.origin);
    m_bands.squareShape = BoxKind <= 1   ? RubberBands::Shape::Rectangle
                          : BoxKind == 4 ? RubberBands::Shape::Oval
                                         : RubberBands::Shape::Circle;
    m_bands.lineVisible = BoxKind == 3;
    m_bands.line1 = QLine(QPoint(DragX, DragY) + m_target.origin, QPoint(x, y) + m_target.origin);
    bandsChanged(before);
    setStatus(QStringLiteral("%1 / %2  (%3 / %4)").arg(r.left()).arg(r.top()).arg(r.width()).arg(r.height()));
}

void ToolEngine::boxUp(int x, int y)
{
    PictureBox &p = *m_target.picture;
    const RubberBands before = m_bands;
    m_bands.squareVisible = false;
    m_bands.lineVisible = false;
    bandsChanged(before);
    const bool outline = m_s.controls().checked(ControlKey{QStringLiteral("XShapeOutlined"), 0});
    const bool fill = m_s.controls().checked(ControlKey{QStringLiteral("XShapeOutlined"), 1});
    const QRect r = shapeRect(BoxKind, QPoint(DragX, DragY), QPoint(x, y));
    if ((!outline && !fill) || r.width() < 2 || r.height() < 2) return;

    // The pen colour fills; round a fill the outline takes the border colour.
    PenColor = strokeColour(m_s, RandomStroke::Pick);
    const ColorLong fillColour = PenColor;
    const ColorLong outlineColour = fill ? m_s.colours().ColorBorder : PenColor;
    const int cx = r.left() + r.width() / 2, cy = r.top() + r.height() / 2;
    auto draw = [&](ColorLong colour) {
        switch (BoxKind) {
        case 2:
            p.Circle(cx, cy, r.width() / 2, colour);
            break;
        case 3:
            p.Circle(DragX, DragY, r.width() / 2, colour);
            break;
        case 4:
            p.setForeColor(colour);
            Ellipse(p.hDC(), r.left(), r.top(), r.right() + 2, r.bottom() + 2);
            p.markChanged(r.adjusted(-p.DrawWidth(), -p.DrawWidth(), p.DrawWidth(), p.DrawWidth()));
            break;
        default:
            p.Line(r.left(), r.top(), r.right() + 1, r.bottom() + 1, colour, LineFlags::B);
            break;
        }
    };
    p.setDrawMode(13);
    p.setDrawStyle(0);
    if (fill) {
        p.setFillStyle(0);
        p.setDrawWidth(1);
        p.setFillColor(fillColour);
        p.setForeColor(outline ? outlineColour : fillColour);
        draw(outline ? outlineColour : fillColour);
    }
    if (outline) {
        p.setFillStyle(1);
        p.setDrawWidth(penWidthOf(m_s));
        p.setForeColor(outlineColour);
        draw(outlineColour);
    }
    p.setFillStyle(1);
    m_s.workspace().BildChanged = true;
}

void ToolEngine::penDown(int x, int y)
{
    PictureBox &p = *m_target.picture;
    PenColor = strokeColour(m_s, RandomStroke::Pen);
    takeUndo();
    p.setDrawMode(13);
    p.setDrawStyle(0);
    p.setDrawWidth(penWidthOf(m_s));
    p.setForeColor(PenColor);
    PenKind = int16_t(std::clamp(m_s.controls().listIndex(ControlKey{QStringLiteral("optPenStyle")}), 0, 4));
    TipWidth = int16_t(std::max(1, m_s.controls().value(QStringLiteral("scrollTipWidth"))));
    const int w = TipWidth;
    static constexpr int offsets[5][4] = {
        {0, 0, 0, 0}, {-1, -1, 1, 1}, {-1, 1, 1, -1}, {1, 0, -1, 0}, {0, 1, 0, -1}};
    const int *o = offsets[PenKind];
    PenOffsetA = QPoint(o[0] * w, o[1] * w);
    PenOffsetB = QPoint(o[2] * w, o[3] * w);
    if (PenKind == 0) {
        p.PSet(x, y);
    } else {
        // A broad nib: one line from tip to tip.
        p.Line(x + PenOffsetA.x(), y + PenOffsetA.y(), x + PenOffsetB.x(), y + PenOffsetB.y());
        p.PSet(x + PenOffsetB.x(), y + PenOffsetB.y());
    }
    LastX = x;
    LastY = y;
}

void ToolEngine::penTo(int x, int y)
{
    if (LastX < 0 || (x == LastX && y == LastY)) return;
    PictureBox &p = *m_target.picture;
    if (PenKind == 0) {
        p.Line(LastX, LastY, x, y);
        p.PSet(x, y);
    } else {
        // The nib swept from the last point to this one: the quad of the two tip lines.
        const QPoint a0 = QPoint(LastX, LastY) + PenOffsetA, b0 = QPoint(LastX, LastY) + PenOffsetB;
        const QPoint a1 = QPoint(x, y) + PenOffsetA, b1 = QPoint(x, y) + PenOffsetB;
        const POINTAPI quad[4] = {{a0.x(), a0.y()}, {b0.x(), b0.y()}, {b1.x(), b1.y()}, {a1.x(), a1.y()}};
        p.setFillStyle(0);
        p.setFillColor(PenColor);
        Polygon(p.hDC(), quad);
        p.setFillStyle(1);
        const int m = p.DrawWidth() + 1;
        QRect r = QRect(a0, b0).normalized() | QRect(a1, b1).normalized();
        changed(r.adjusted(-m, -m, m, m));
    }
    LastX = x;
    LastY = y;
}

void ToolEngine::textPosition(int x, int y)
{
    Controls &c = m_s.controls();
    c.setRaw(ControlKey{QStringLiteral("txtDialogXYPos"), 0}, QString::number(x));
    c.setRaw(ControlKey{QStringLiteral("txtDialogXYPos"), 1}, QString::number(y));
    disarm();
    m_target.picture->Refresh();
    setStatus(QString());
    patch_lastactionpaint(m_s);
    m_s.paint().GrafKey = QStringLiteral("TEXT-Dialog");
    Create_Polygraphics(m_s);
}

} // namespace tf
