// Speed of every filter on a 4096 x 4096 picture: the routine alone on the filter arrays
// ("Kernel/<number>"), the whole DoGraficFilters with its copies ("DoGraficFilters/<number>"),
// and a plain copy of the picture's bytes to measure the table filters against.
#include "filters/dografic.h"
#include "filters/filtercommand.h"
#include "filters/filterrun.h"
#include "filters/filtertable.h"
#include "paint/session.h"

#include <QImage>
#include <benchmark/benchmark.h>
#include <cstring>

using namespace tf;

namespace {

constexpr int Side = 4096;

const QImage &photo()
{
    static const QImage img = [] {
        QImage p(Side, Side, QImage::Format_RGB32);
        for (int y = 0; y < Side; ++y) {
            auto *line = reinterpret_cast<QRgb *>(p.scanLine(y));
            for (int x = 0; x < Side; ++x)
                line[x] = qRgb((x * 255) / Side, (y * 255) / Side, ((x ^ y) * 2654435761u >> 24) & 255);
        }
        return p;
    }();
    return img;
}

FilterArgs argumentsFor(const FilterRow &row)
{
    FilterArgs a = defaultArguments(row);
    if (row.sliders.empty() && !row.entries.empty()) a.argument = row.entries[0].argument;
    if (row.sliders.empty() && !row.entries.empty() && row.entries[0].rule != ArgumentRule::Fixed)
        a.argument = 0x808080;
    return a;
}

void copyBytes(benchmark::State &state)
{
    const QImage &src = photo();
    QImage dst(src.size(), src.format());
    for (auto _ : state) {
        std::memcpy(dst.bits(), src.constBits(), size_t(src.sizeInBytes()));
        benchmark::DoNotOptimize(dst.bits());
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * src.sizeInBytes());
}
BENCHMARK(copyBytes)->Unit(benchmark::kMillisecond)->UseRealTime();

// The argument limits the threads (0: every core), as the session's filter state does.
void kernel(benchmark::State &state, const FilterRow *row)
{
    Session s;
    s.filters().threads = int(state.range(0));
    FilterWorkspace ws(photo(), row->reads);
    const FilterArgs args = argumentsFor(*row);
    for (auto _ : state) {
        FilterRun run(ws.D(), ws.S(), args, s);
        row->kernel(run);
        benchmark::DoNotOptimize(ws.result().constBits());
    }
}

// Contrast at factor 50 (1.5 times the distance from the mean grey): on the photo most
// pixels have a channel driven out of range and take the hue-keeping rule, the slow path that
// the default factor never reaches.
void contrastDriven(benchmark::State &state)
{
    Session s;
    s.filters().threads = int(state.range(0));
    const FilterRow *row = findFilter(17);
    FilterWorkspace ws(photo(), row->reads);
    FilterArgs args = argumentsFor(*row);
    args.argument = args.sliders[0] = 50;
    for (auto _ : state) {
        FilterRun run(ws.D(), ws.S(), args, s);
        row->kernel(run);
        benchmark::DoNotOptimize(ws.result().constBits());
    }
}
BENCHMARK(contrastDriven)->ArgName("threads")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

void whole(benchmark::State &state, const FilterRow *row)
{
    Session s;
    const FilterArgs args = argumentsFor(*row);
    for (auto _ : state) {
        QImage img = photo();
        DoGraficFilters(s, row->number, img, args);
        benchmark::DoNotOptimize(img.constBits());
    }
}

const bool registered = [] {
    for (const FilterRow &row : filterTable()) {
        // Stretch needs a picture whose channels are not flat: the photo has that.
        if (!row.available()) continue;
        benchmark::RegisterBenchmark(("Kernel/" + std::to_string(row.number) + "/" + row.name).c_str(),
                                     kernel, &row)
            ->ArgName("threads")
            ->Arg(0)
            ->Arg(1)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->MinTime(0.2);
        benchmark::RegisterBenchmark(("DoGraficFilters/" + std::to_string(row.number) + "/" + row.name).c_str(),
                                     whole, &row)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->MinTime(0.2);
    }
    return true;
}();

} // namespace
