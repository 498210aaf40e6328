// The hand tools at the speed of a hand: one mouse move of a spray stroke (the dabs from the
// last position to the next, shown on the picture) must stay well under a frame's time at
// 712 x 712 and at 4000 x 3000; the press that starts the stroke takes the picture once.
#include "paint/session.h"
#include "tools/toolengine.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace tf;

namespace {

struct Stroke {
    QTemporaryDir dir;
    Session s;
    ToolEngine *tools;

    Stroke(int w, int h, int type)
    {
        s.workspace().setTempDir(dir.path());
        tools = &ToolEngine::of(s);
        s.workspace().New_BildSize(w, h);
        s.workspace().Bild.Cls();
        s.colours().RandomColors = false;
        s.controls().set(ControlKey{QStringLiteral("cmbSprayType")}, QString::number(type));
        s.controls().set(ControlKey{QStringLiteral("scrollSpray"), 0}, QStringLiteral("40"));
        tools->arm(Tool::Spray);
    }
};

// One move of 12 pixels, as a quick hand gives between two mouse events.
void BM_SprayMove(benchmark::State &state)
{
    Stroke stroke(int(state.range(0)), int(state.range(1)), int(state.range(2)));
    ToolEngine &t = *stroke.tools;
    t.MouseDown(vbLeftButton, 0, 100, 100);
    int x = 100, dir = 12;
    for (auto _ : state) {
        if (x + dir > int(state.range(0)) - 100 || x + dir < 100) dir = -dir;
        x += dir;
        t.MouseMove(vbLeftButton, 0, x, 100 + (x % 50));
    }
    t.MouseUp(vbLeftButton, 0, x, 100);
}
BENCHMARK(BM_SprayMove)
    ->Args({712, 712, 0})
    ->Args({712, 712, 1})
    ->Args({4000, 3000, 0})
    ->Args({4000, 3000, 1})
    ->Args({4000, 3000, 3})
    ->Unit(benchmark::kMicrosecond);

// The press that starts a stroke: the undo image and the brush's copy of the picture.
void BM_SprayPress(benchmark::State &state)
{
    Stroke stroke(int(state.range(0)), int(state.range(1)), 1);
    ToolEngine &t = *stroke.tools;
    for (auto _ : state) {
        t.MouseDown(vbLeftButton, 0, 100, 100);
        t.MouseUp(vbLeftButton, 0, 100, 100);
    }
}
BENCHMARK(BM_SprayPress)->Args({712, 712})->Args({4000, 3000})->Unit(benchmark::kMillisecond);

} // namespace
