// Speed of the Mondrian family: the layout engine alone for 10000 frames (100 x 100 cells,
// and 70 x 70 cells with subdivisions), and a whole Mondrian paint at 4096 x 4096.
#include "generators/mondrianlayout.h"
#include "generators/painters.h"
#include "paint/controls.h"
#include "paint/grafmenu.h"
#include "paint/mondriantables.h"
#include "paint/paintdriver.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QGuiApplication>
#include "painterbench.h"

#include <benchmark/benchmark.h>

using namespace tf;

namespace {

void layout(benchmark::State &state)
{
    Session s;
    s.seed(5);
    MondrianTables &t = s.mondrian();
    const auto cells = int16_t(state.range(0));
    t.MondrianHSplits = cells;
    t.MondrianVSplits = cells;
    t.MondrianW = 4096;
    t.MondrianH = 4096;
    MondrianSplitArgs a;
    a.SymH = 0;
    a.SymV = 0;
    a.DoSub = int16_t(state.range(1));
    a.MinRatio = 0;
    size_t frames = 0;
    for (auto _ : state) {
        CreateArr_Mondrian_Splits(s, a);
        frames = mondrianFrames(t).size();
        benchmark::DoNotOptimize(frames);
    }
    state.counters["frames"] = double(frames);
}
BENCHMARK(layout)->Args({100, 0})->Args({70, 1})->Unit(benchmark::kMillisecond);

// The painter alone on a picture of 4096 x 4096 (the undo image is the workspace's cost):
// Mondrian with its default options and random values, and the Boogie-Woogie.
void paint(benchmark::State &state)
{
    const auto session = bench::paintSession(4096, 4096);
    Session &s = *session;
    s.controls().set(ControlKey{QStringLiteral("cmbMondrian_Format"), 1},
                     QString::number(state.range(0)));
    bench::paintLoop(state, s, QStringLiteral("ART-Mondrian"), 4096, 4096);
    state.SetLabel(state.range(0) == 0 ? "Mondrian" : "Boogie-Woogie");
}
BENCHMARK(paint)->Arg(0)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace
