#include "tools/toolengine.h"

#include "core/fault.h"
#include "tools/toolpanels.h"

#include <QCoreApplication>
#include <QtGlobal>

namespace tf {

std::span<const ToolInfo> toolTable()
{
    static constexpr ToolInfo table[] = {
        {Tool::Select, "Selection", QT_TRANSLATE_NOOP("Tools", "Auswahl"),
         QT_TRANSLATE_NOOP("Tools", "Ein Rechteck aus dem Bild ausschneiden"),
         "select-rectangular", "", false},
        {Tool::CSelect, "CSelection", QT_TRANSLATE_NOOP("Tools", "Ellipse"),
         QT_TRANSLATE_NOOP("Tools", "Eine Ellipse aus dem Bild ausschneiden (Umschalt: ein Kreis)"),
         "select-ellipse", "", false},
        {Tool::Fill, "Fill", QT_TRANSLATE_NOOP("Tools", "Füllen"),
         QT_TRANSLATE_NOOP("Tools", "Eine Fläche gleicher Farbe füllen"), "fill-color", "", true},
        {Tool::Pipette, "Pipette", QT_TRANSLATE_NOOP("Tools", "Pipette"),
         QT_TRANSLATE_NOOP("Tools", "Farbe aufnehmen: links Vordergrund, rechts Hintergrund"),
         "color-picker", "", false},
        {Tool::Line, "Linie", QT_TRANSLATE_NOOP("Tools", "Linie"),
         QT_TRANSLATE_NOOP("Tools", "Eine gerade Linie ziehen"), "draw-line", "", false},
        {Tool::Box, "Box", QT_TRANSLATE_NOOP("Tools", "Form"),
         QT_TRANSLATE_NOOP("Tools", "Rechteck, Kreis oder Ellipse aufziehen"), "draw-rectangle",
         ShapesPanelName, false},
        {Tool::Freehand, "Freehand", QT_TRANSLATE_NOOP("Tools", "Stift"),
         QT_TRANSLATE_NOOP("Tools", "Freihand zeichnen"), "draw-freehand", FreeHandPanelName,
         false},
        {Tool::Spray, "Spray", QT_TRANSLATE_NOOP("Tools", "Pinsel"),
         QT_TRANSLATE_NOOP("Tools", "Airbrush, Pinsel, Weichzeichnen und Schärfen von Hand"),
         "draw-brush", SprayPanelName, false},
        {Tool::TextPos, "TextPos", QT_TRANSLATE_NOOP("Tools", "Textposition"),
         QT_TRANSLATE_NOOP("Tools", "Ein Klick setzt die Position des Textes und malt ihn"),
         "draw-text", "", true},
    };
    return table;
}

const ToolInfo &toolInfo(Tool tool)
{
    for (const ToolInfo &t : toolTable())
        if (t.tool == tool) return t;
    static constexpr ToolInfo none{Tool::None, "", "", "", "", "", false};
    return none;
}

bool toolAvailable(const Session &s, Tool tool)
{
    if (tool != Tool::TextPos) return true;
    const PainterEntry *text = findPainter(s.painters(), QStringLiteral("TEXT-Dialog"));
    return text && text->paint;
}

QRect RubberBands::bounds() const
{
    QRect r;
    if (selectVisible) r |= shapeSelect.adjusted(-1, -1, 1, 1);
    if (squareVisible) r |= shSquare.adjusted(-1, -1, 1, 1);
    if (lineVisible) r |= QRect(line1.p1(), line1.p2()).normalized().adjusted(-2, -2, 2, 2);
    if (sprayVisible) {
        const int h = sprayDiameter / 2 + 2;
        r |= QRect(sprayAt.x() - h, sprayAt.y() - h, 2 * h + 1, 2 * h + 1);
    }
    return r;
}

ToolEngine::ToolEngine(Session &s) : m_s(s), m_selections(s)
{
    static const bool panels = [] {
        registerToolPanels();
        return true;
    }();
    (void)panels;
    for (const ControlPanel *panel : controlPanels())
        s.controls().addDefaults(*panel);
}

ToolEngine::~ToolEngine() = default;

ToolEngine &ToolEngine::of(Session &s)
{
    if (!s.handTools()) s.setHandTools(std::make_unique<ToolEngine>(s));
    return static_cast<ToolEngine &>(*s.handTools());
}

void ToolEngine::arm(Tool tool)
{
    if (m_s.runState().busy() || !toolAvailable(m_s, tool)) return;
    const RubberBands before = m_bands;
    m_bands = RubberBands{};
    m_drag = Drag::None;
    LastX = LastY = -1;
    m_tool = tool;
    if (tool != Tool::Spray) {
        // The brush arrays are given back when no brush needs them.
        m_pixels = BrushPixels();
        m_frozen = BrushPixels();
        m_mask = StrokeMask();
    }
    bandsChanged(before);
    m_view->toolChanged(tool);
}

void ToolEngine::setStatus(const QString &text) { m_s.status().setPanelText(sbrState, text); }

void ToolEngine::bandsChanged(const RubberBands &before)
{
    const QRect area = before.bounds() | m_bands.bounds();
    if (!area.isEmpty()) m_view->areaChanged(area);
}

ToolEngine::Target ToolEngine::bildTarget() { return Target{&m_s.workspace().Bild, {}, false, {}}; }

ToolEngine::Target ToolEngine::targetAt(int X, int Y)
{
    for (SelectionKind kind : {SelectionKind::Rect, SelectionKind::Circ})
        if (m_selections.hits(kind, X, Y)) {
            PictureBox &p = m_selections.picture(kind);
            return Target{&p, Selections::placeOf(p).topLeft(), true, kind};
        }
    return bildTarget();
}

int ToolEngine::handleAt(const PictureBox &p, int x, int y) const
{
    // The stretch bands along the four edges, not wider than a third of a small selection,
    // so that it can still be moved.
    const int bandX = std::min(6, p.Width() / 3), bandY = std::min(6, p.Height() / 3);
    int edges = 0;
    if (x < bandX) edges |= EdgeLeft;
    else if (x >= p.Width() - bandX) edges |= EdgeRight;
    if (y < bandY) edges |= EdgeTop;
    else if (y >= p.Height() - bandY) edges |= EdgeBottom;
    return edges;
}

void ToolEngine::MouseDown(int Button, int Shift, int X, int Y)
{
    if (m_s.runState().busy() || m_drag != Drag::None) return;
    guarded(QStringLiteral("Bild_MouseDown"), [&] {
        const Target t = targetAt(X, Y);
        if (!t.selection) {
            bildDown(Button, Shift, X, Y);
            return;
        }
        if (m_tool == Tool::None || m_tool == Tool::Select || m_tool == Tool::CSelect) {
            if (Button == vbLeftButton)
                selectionDragDown(t, X, Y);
            else if (Button == vbRightButton && m_tool != Tool::None)
                selectDown(Button, X, Y); // stamps and releases the selection tool
            return;
        }
        m_target = t;
        toolDown(Button, Shift, X - t.origin.x(), Y - t.origin.y());
    });
}

void ToolEngine::bildDown(int Button, int Shift, int X, int Y)
{
    Workspace &ws = m_s.workspace();
    // Beside a shown selection only the selection tool of its kind acts; with no tool armed
    // a press on the picture does nothing.
    if (m_tool == Tool::None) return;
    if (ws.PicSelect.Visible() && m_tool != Tool::Select) return;
    if (ws.picSelectC.Visible() && m_tool != Tool::CSelect) return;
    // A new action on the picture: nothing is pending any more (the pipette changes nothing).
    if (!ws.PicSelect.Visible() && !ws.picSelectC.Visible() && m_tool != Tool::Pipette)
        ws.lastaction.clear();
    m_target = bildTarget();
    if (m_tool == Tool::Select || m_tool == Tool::CSelect)
        selectDown(Button, X, Y);
    else
        toolDown(Button, Shift, X, Y);
}

void ToolEngine::MouseMove(int Button, int Shift, int X, int Y)
{
    guarded(QStringLiteral("Bild_MouseMove"), [&] {
        switch (m_drag) {
        case Drag::None:
            if (m_tool == Tool::Spray) sprayOutline(true, QPoint(X, Y));
            return;
        case Drag::Tool:
            if (!(Button & vbLeftButton)) return;
            if (m_tool == Tool::Select || m_tool == Tool::CSelect)
                selectMove(Shift, X, Y);
            else
                toolMove(Button, Shift, X - m_target.origin.x(), Y - m_target.origin.y());
            return;
        case Drag::Selection:
            selectionDragMove(X, Y);
            return;
        }
    });
}

void ToolEngine::MouseUp(int Button, int Shift, int X, int Y)
{
    if (m_drag == Drag::None || Button != vbLeftButton) return;
    const Drag drag = m_drag;
    guarded(QStringLiteral("Bild_MouseUp"), [&] {
        if (drag == Drag::Selection)
            selectionDragUp(X, Y);
        else if (m_tool == Tool::Select || m_tool == Tool::CSelect)
            selectUp(Shift, X, Y);
        else
            toolUp(Button, Shift, X - m_target.origin.x(), Y - m_target.origin.y());
    });
    m_drag = Drag::None;
    m_target = Target{};
}

ToolCursor ToolEngine::cursorAt(int X, int Y)
{
    const Target t = targetAt(X, Y);
    const bool plain = m_tool == Tool::None || m_tool == Tool::Select || m_tool == Tool::CSelect;
    if (t.selection && plain) {
        const int edges = handleAt(*t.picture, X - t.origin.x(), Y - t.origin.y());
        const bool across = edges & (EdgeLeft | EdgeRight), along = edges & (EdgeTop | EdgeBottom);
        if (across && along)
            return (edges == (EdgeLeft | EdgeTop) || edges == (EdgeRight | EdgeBottom))
                       ? ToolCursor::SizeFDiag
                       : ToolCursor::SizeBDiag;
        if (across) return ToolCursor::SizeHor;
        if (along) return ToolCursor::SizeVer;
        return ToolCursor::Move;
    }
    const Workspace &ws = m_s.workspace();
    if (!t.selection && ((ws.PicSelect.Visible() && m_tool != Tool::Select) ||
                         (ws.picSelectC.Visible() && m_tool != Tool::CSelect)))
        return ToolCursor::Arrow; // a press here does nothing
    switch (m_tool) {
    case Tool::None: return ToolCursor::Arrow;
    case Tool::Fill: return ToolCursor::Fill;
    case Tool::Pipette: return ToolCursor::Pipette;
    case Tool::Spray: return ToolCursor::Spray;
    case Tool::Freehand: return ToolCursor::Pen;
    case Tool::TextPos: return ToolCursor::Text;
    default: return ToolCursor::Cross;
    }
}

QString ToolEngine::pointerText(int X, int Y)
{
    const Workspace &ws = m_s.workspace();
    if (X < 0 || Y < 0 || X >= ws.BildW || Y >= ws.BildH) return QString();
    const Target t = targetAt(X, Y);
    const QRgb c = t.picture->Image().pixel(X - t.origin.x(), Y - t.origin.y());
    return QStringLiteral("%1 / %2   RGB(%3, %4, %5)")
        .arg(X)
        .arg(Y)
        .arg(qRed(c))
        .arg(qGreen(c))
        .arg(qBlue(c));
}

void ToolEngine::takeUndo()
{
    Workspace &ws = m_s.workspace();
    if (!m_target.selection) {
        ws.Bild_nachUndo();
        return;
    }
    if (m_target.kind == SelectionKind::Rect)
        ws.PicSelect_nachUndo();
    else
        ws.PicSelectC_nachUndo();
    // A stroke on the selection counts as a paint on it: Undo swaps it with its undo image.
    ws.lastaction = ws.lastaction.left(4) + QStringLiteral("$PAINT");
    ws.BildChanged = true;
}

void ToolEngine::changed(const QRect &r)
{
    m_target.picture->markChanged(r);
    m_s.workspace().BildChanged = true;
}

void ToolEngine::toolDown(int Button, int Shift, int x, int y)
{
    (void)Shift;
    if (m_tool == Tool::Pipette) {
        pipette(Button, x, y);
        return;
    }
    if (Button == vbRightButton) {
        // The right button releases the tool.
        if (m_tool == Tool::Spray) sprayOutline(false, QPoint());
        setStatus(QString());
        disarm();
        return;
    }
    if (Button != vbLeftButton) return;
    switch (m_tool) {
    case Tool::Fill:
        fillAt(x, y);
        return;
    case Tool::TextPos:
        textPosition(x, y);
        return;
    case Tool::Spray:
        sprayDown(x, y);
        break;
    case Tool::Freehand:
        penDown(x, y);
        break;
    case Tool::Line: {
        takeUndo();
        DragX = x;
        DragY = y;
        LastX = x;
        LastY = y;
        const RubberBands before = m_bands;
        m_bands.lineVisible = true;
        m_bands.line1 = QLine(x + m_target.origin.x(), y + m_target.origin.y(),
                              x + m_target.origin.x(), y + m_target.origin.y());
        bandsChanged(before);
        setStatus(QStringLiteral("%1 / %2").arg(x).arg(y));
        break;
    }
    case Tool::Box:
        BoxKind = int16_t(m_s.controls().listIndex(ControlKey{QStringLiteral("cmbFeatShapes")}));
        takeUndo();
        DragX = x;
        DragY = y;
        boxBands(x, y);
        break;
    default:
        return;
    }
    m_drag = Drag::Tool;
}

void ToolEngine::toolMove(int Button, int Shift, int x, int y)
{
    (void)Button;
    (void)Shift;
    switch (m_tool) {
    case Tool::Line: {
        const RubberBands before = m_bands;
        m_bands.line1.setP2(QPoint(x + m_target.origin.x(), y + m_target.origin.y()));
        bandsChanged(before);
        setStatus(QStringLiteral("%1 / %2").arg(x).arg(y));
        return;
    }
    case Tool::Box:
        boxBands(x, y);
        return;
    case Tool::Freehand:
        penTo(x, y);
        return;
    case Tool::Spray:
        sprayTo(x, y);
        sprayOutline(true, QPoint(x + m_target.origin.x(), y + m_target.origin.y()));
        return;
    default:
        return;
    }
}

void ToolEngine::toolUp(int Button, int Shift, int x, int y)
{
    (void)Button;
    (void)Shift;
    switch (m_tool) {
    case Tool::Line:
        lineUp(x, y);
        break;
    case Tool::Box:
        boxUp(x, y);
        break;
    case Tool::Freehand:
        penTo(x, y);
        LastX = LastY = -1;
        break;
    case Tool::Spray:
        if (x != LastX || y != LastY) sprayTo(x, y);
        DragX = DragY = -512;
        LastX = LastY = -1;
        break;
    default:
        break;
    }
    setStatus(QString());
}

} // namespace tf
