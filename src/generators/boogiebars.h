#pragma once
// The bars of "Boogie-Rocks", "Boogie-Blocks" and "Boogie-Soft-Ice": plasma clouds in two
// colour sets, each as a horizontal bar (`BarLen` x `BarThick`) and a vertical one, from
// which the squares of the lines are cut (Draw_BoogieStrip).
//
// The colours of the clouds: the four colours' first and third (each lifted so that its
// largest channel is 255) with " 4 Farben ", the colour state's two under a duotone table,
// else blue on dark blue, or on a toss dark grey on white or green on night blue. Each set
// ramps between the two in its own form; "Boogie-Soft-Ice" ramps towards white.
// "Boogie-Blocks" paints bars twice as thick and cuts its squares at whole units across them.
// A bar whose surface cannot be made leaves `ready()` false: the squares are then plain boxes.

#include "core/dibsection.h"

#include <QString>
#include <array>

namespace tf {

class FrameCanvas;
class Session;

class BoogieBars {
public:
    // Bars for squares of `unit` pixels along lines of `squares` squares; `type` 3..5.
    BoogieBars(Session &s, int type, int unit, int squares, ColorLong first, ColorLong second);
    bool ready() const { return m_ready; }

    // Copies a unit x unit block of a bar to (x, y) of `canvas`: code "2" a horizontal bar,
    // "3" a vertical one; the place along the bar is drawn from `count` squares.
    void Draw_BoogieStrip(FrameCanvas &canvas, int x, int y, const QString &code, int count);

private:
    Session &m_s;
    int m_type;
    int m_unit;
    int m_len = 0;
    int m_thick = 0;
    bool m_ready = false;
    std::array<std::array<cDIBSection, 2>, 2> m_bars; // [colour set][0 horizontal, 1 vertical]
};

// A colour lifted so that its largest channel is 255 (a channel equal to the largest becomes
// 255, the others stay); black stays black.
ColorLong liftToFull(ColorLong c);

} // namespace tf
