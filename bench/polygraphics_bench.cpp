// Speed of the drawn types, the curve family, the bars, tiles, records and the matrix frame,
// each with its default options, at 712 x 712 (where none may take a second) and at
// 4096 x 4096. The painter alone, as in the gradient benchmark: the undo image of a large
// picture is the workspace's cost.
#include "generators/painters.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QGuiApplication>
#include "painterbench.h"

#include <benchmark/benchmark.h>
#include <map>
#include <memory>

using namespace tf;

namespace {

const char *const polyKeys[] = {
    "Boxes-Kreisradius", "Boxes-Randomized", "Squares-Randomized", "Kacheln", "Tunnel",
    "Lines-Quarterarea", "Lines-Polygonal", "Lines-Mikado", "Bitblt-Kacheln", "Bitblt-Schmieren",
    "Filled-Triangles", "Interne Kacheln", "Poly-Elliptic", "Poly-Area", "Circles",
    "Circle-Ellipses", "Circle-Kegel", "Circle-Waves", "Soap-Bubbles", "Black Rain", "Snow",
    "Confetti", "Lissajou", "LissaBand", "Thread-Rosette", "Squares-In-Square", "Rose",
    "Rose-Crazy", "Exchange Rates", "Soundwaves", "Sinus", "Pulse", "Pulse-Sky", "Pulse-Ground",
    "Equalizer", "Horiz-Bars", "Vertic-Bars", "The Matrix", "LP-black", "LP-cut out",
    "LP-RING-cut out", "CD-standard", "CD-colored", "CD-cut out",
};

Session &session(int side)
{
    static std::map<int, std::unique_ptr<Session>> sessions;
    auto &s = sessions[side];
    if (!s) s = bench::paintSession(side, side);
    return *s;
}

void polygraphic(benchmark::State &state)
{
    const int side = int(state.range(1));
    state.SetLabel(polyKeys[state.range(0)]);
    bench::paintLoop(state, session(side), QString::fromUtf8(polyKeys[state.range(0)]), side, side);
}

void registerAll()
{
    for (int i = 0; i < int(std::size(polyKeys)); ++i) {
        benchmark::RegisterBenchmark("polygraphic/712", polygraphic)
            ->Args({i, 712})
            ->Unit(benchmark::kMillisecond)
            ->Iterations(5);
        benchmark::RegisterBenchmark("polygraphic/4096", polygraphic)
            ->Args({i, 4096})
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1);
    }
}

} // namespace

// The matrix frame draws glyphs, which needs the application's fonts.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
