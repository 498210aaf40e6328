// Speed of the Mondrian family: the layout engine alone for 10000 frames (100 x 100 cells,
// and 70 x 70 cells with subdivisions), and a whole Mondrian paint at 4096 x 4096.
#include "generators/mondrianlayout.h"
#include "generators/painters.h"
#include "paint/mondriantables.h"
#include "paint/session.h"

#include <QGuiApplication>
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

} // namespace
