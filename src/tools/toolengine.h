#pragma once
// The mouse tool engine: the press, move and release handlers of the picture, which run the
// tool the toolbar armed, and of the selections, where the same tools act on the selection's
// own picture (the paint target `XBild`).
//
// Coordinates are pixels of `Bild` (its top left is 0,0); the engine finds itself whether a
// press lies on a shown selection and then works in the selection's pixels. What follows a
// press (moves, the release) goes to the same place. Buttons and keys are the handlers' own
// numbers: 1 left, 2 right, 4 middle; Shift 1, Ctrl 2, Alt 4.
//
// Arming: at most one tool is armed. The fill and the text position act once and disarm; the
// others stay armed until the right button, another tool or a paint releases them. A press
// beside a shown selection does nothing unless the selection tool of its kind is armed; a
// press with no tool armed does nothing on the picture, and on a selection it moves it.
//
// Rubber bands (`RubberBands`) are what the window draws over the picture while a drag runs:
// the selection's frame, the shape, the line, the spray's outline. They never touch pixels,
// so taking them away restores the picture exactly.
//
// The engine belongs to the session (`ToolEngine::of`), and installs the selections' Undo in
// its workspace.

#include "core/colour.h"
#include "paint/session.h"
#include "tools/brushdabs.h"
#include "tools/selections.h"

#include <QLine>
#include <QPoint>
#include <QRect>
#include <QString>
#include <memory>
#include <span>

namespace tf {

enum class Tool { None, Select, CSelect, Fill, Pipette, Spray, Line, Box, Freehand, TextPos };

// One row per tool: the toolbar builds its buttons from this table.
struct ToolInfo {
    Tool tool;
    const char *key;       // the toolbar key
    const char *caption;   // German source text (context "Tools")
    const char *tip;       // German source text (context "Tools")
    const char *themeIcon; // a name of the desktop's icon theme, tried first
    const char *panel;     // the option panel the tool reads, "" none
    bool oneShot;          // disarms after acting once
};
std::span<const ToolInfo> toolTable();
const ToolInfo &toolInfo(Tool tool);
// Whether the session can use the tool: the text position needs the painter of "TEXT-Dialog".
bool toolAvailable(const Session &s, Tool tool);

enum MouseButtonCode { vbLeftButton = 1, vbRightButton = 2, vbMiddleButton = 4 };
enum ShiftCode { vbShiftMask = 1, vbCtrlMask = 2, vbAltMask = 4 };

// What the pointer shows over a place of the picture.
enum class ToolCursor { Arrow, Cross, Fill, Pipette, Spray, Pen, Text, Move, SizeHor, SizeVer, SizeFDiag, SizeBDiag };

// The rubber bands, in Bild's pixels.
struct RubberBands {
    enum class Shape { Rectangle, Oval, Circle };
    bool selectVisible = false; // ShapeSelect: the frame of a selection being dragged
    bool selectEllipse = false; //   drawn as the ellipse it will cut
    QRect shapeSelect;
    bool squareVisible = false; // ShSquare: the shape tool's figure
    Shape squareShape = Shape::Rectangle;
    QRect shSquare;
    bool lineVisible = false;   // Line1: the line tool's line, the radius of a circle
    QLine line1;
    bool sprayVisible = false;  // the spray's outline round the pointer
    QPoint sprayAt;
    int sprayDiameter = 0;

    // Everything they cover (with a margin for the pen), empty when none shows.
    QRect bounds() const;
};

// What the window is told.
class ToolView {
public:
    virtual ~ToolView() = default;
    // The armed tool changed (the toolbar and the pointer follow).
    virtual void toolChanged(Tool) {}
    // The picture must be shown anew in `area` of Bild's pixels: rubber bands, a selection's
    // place or frame.
    virtual void areaChanged(const QRect &) {}
    // The pipette set a colour.
    virtual void coloursChanged() {}
    // A selection appeared, went or moved (the menus follow).
    virtual void selectionChanged() {}
};

class ToolEngine : public HandTools {
public:
    explicit ToolEngine(Session &s);
    ~ToolEngine() override;
    // The session's engine, made on first use.
    static ToolEngine &of(Session &s);

    Selections &selections() { return m_selections; }
    void setView(ToolView *view) { m_view = view ? view : &m_noView; }

    // ---- Arming --------------------------------------------------------------------------
    // The toolbar key of `tool` was pressed: arms it (None disarms). Refused while a paint or
    // a filter runs.
    void arm(Tool tool);
    void disarm() override { arm(Tool::None); }
    Tool armed() const { return m_tool; }

    // ---- The handlers ----------------------------------------------------------------------
    void MouseDown(int Button, int Shift, int X, int Y);
    void MouseMove(int Button, int Shift, int X, int Y);
    void MouseUp(int Button, int Shift, int X, int Y);

    const RubberBands &rubberBands() const { return m_bands; }
    ToolCursor cursorAt(int X, int Y);
    // "x / y" and the colour of the pixel shown there, for the status bar; empty beside the
    // picture.
    QString pointerText(int X, int Y);

    // The brushes take the picture anew as their working copy (when a brush tool comes on).
    void Refresh_BrushImage();

private:
    struct Target {
        PictureBox *picture = nullptr;
        QPoint origin;          // its top left in Bild's pixels
        bool selection = false;
        SelectionKind kind = SelectionKind::Rect;
    };
    enum class Drag { None, Tool, Selection };
    // The edges of a selection a drag stretches; none: the drag moves it.
    enum Edge { EdgeLeft = 1, EdgeRight = 2, EdgeTop = 4, EdgeBottom = 8 };

    Target targetAt(int X, int Y);
    Target bildTarget();
    // The edges whose stretch band holds (x, y) of the selection; 0 inside, where a drag moves.
    int handleAt(const PictureBox &p, int x, int y) const;
    void setStatus(const QString &text);
    void bandsChanged(const RubberBands &before);

    // The press on Bild beside any selection, and the tools.
    void bildDown(int Button, int Shift, int X, int Y);
    void toolDown(int Button, int Shift, int x, int y);
    void toolMove(int Button, int Shift, int x, int y);
    void toolUp(int Button, int Shift, int x, int y);
    // The undo image of the target before it changes; a selection's change counts as a paint.
    void takeUndo();
    void changed(const QRect &r);

    // The tools (toolengine_draw.cpp, toolengine_brush.cpp, toolengine_select.cpp).
    void fillAt(int x, int y);
    void pipette(int Button, int x, int y);
    void lineUp(int x, int y);
    void boxBands(int x, int y);
    void boxUp(int x, int y);
    void penDown(int x, int y);
    void penTo(int x, int y);
    void sprayDown(int x, int y);
    void sprayTo(int x, int y);
    QRect dab(int x, int y);
    void showBrushRect(const QRect &r);
    void sprayOutline(bool on, QPoint at);
    void textPosition(int x, int y);
    void selectDown(int Button, int X, int Y);
    void selectMove(int Shift, int X, int Y);
    void selectUp(int Shift, int X, int Y);
    QRect circleSelection(int Shift, int X, int Y) const;
    void selectionDragDown(const Target &t, int X, int Y);
    void selectionDragMove(int X, int Y);
    void selectionDragUp(int X, int Y);

    Session &m_s;
    Selections m_selections;
    ToolView m_noView;
    ToolView *m_view = &m_noView;
    Tool m_tool = Tool::None;
    RubberBands m_bands;

    // The running press.
    Target m_target;
    Drag m_drag = Drag::None;
    int m_edges = 0;
    int DragX = -512, DragY = -512;
    int LastX = -1, LastY = -1;
    QRect m_startPlace;         // a selection's place when its drag began
    int16_t BoxKind = 0;
    int16_t PenKind = 0;
    int16_t TipWidth = 1;
    QPoint PenOffsetA, PenOffsetB;
    ColorLong PenColor = 0;

    // The brushes: the working pixels of the target, the frozen copy the filter brushes read,
    // and the stroke's mask.
    BrushPixels m_pixels;
    BrushPixels m_frozen;
    StrokeMask m_mask;
    int SprayType = 1;
    int SpraySize = 24;
    int SprayPressure = 50;
    bool SprayConnected = true;
    bool SprayOverlay = false;
};

} // namespace tf
