// The off-screen surface at the sizes the system works with: Resample and Resize of a
// 4096 x 4096 picture to the 1600 x 1600 box of the load pipeline, and a "BF" fill of a
// 14000 x 14000 Superformat surface.
#include "core/dibsection.h"

#include <benchmark/benchmark.h>

#include <cstdint>

using namespace tf;

namespace {

// A source with every byte different from its neighbours, so no branch or cache can cheat.
const cDIBSection &source4096()
{
    static cDIBSection src;
    if (!src.hDIB()) {
        src.Create(4096, 4096);
        const DibView v = src.view();
        uint32_t s = 12345;
        for (int y = 0; y < v.height; ++y) {
            uint8_t *row = v.row(y);
            for (int i = 0; i < v.width * 3; ++i) {
                s = s * 1664525u + 1013904223u;
                row[i] = uint8_t(s >> 24);
            }
        }
    }
    return src;
}

void BM_Resample4096To1600(benchmark::State &state)
{
    const cDIBSection &src = source4096();
    for (auto _ : state) {
        auto out = src.Resample(1600, 1600);
        benchmark::DoNotOptimize(out->DIBSectionBitsPtr());
    }
    state.SetItemsProcessed(state.iterations() * 1600 * 1600);
}
BENCHMARK(BM_Resample4096To1600)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Resize4096To1600(benchmark::State &state)
{
    const cDIBSection &src = source4096();
    for (auto _ : state) {
        auto out = src.Resize(1600, 1600);
        benchmark::DoNotOptimize(out->DIBSectionBitsPtr());
    }
    state.SetItemsProcessed(state.iterations() * 1600 * 1600);
}
BENCHMARK(BM_Resize4096To1600)->Unit(benchmark::kMillisecond)->UseRealTime();

// Filling a surface whose pages have been touched before.
void BM_LineDIBFill14000(benchmark::State &state)
{
    cDIBSection dib;
    if (!dib.Create(14000, 14000, 0x010101)) {
        state.SkipWithError("no memory for a 14000 x 14000 surface");
        return;
    }
    ColorLong c = 0x102030;
    for (auto _ : state) {
        cDIBSection::LineDIB(dib, 0, 0, 13999, 13999, c, QStringLiteral("BF"), 100);
        c ^= 0x010101;
        benchmark::DoNotOptimize(dib.DIBSectionBitsPtr()[0]);
    }
    state.SetBytesProcessed(state.iterations() * int64_t(dib.view().byteCount()));
}
BENCHMARK(BM_LineDIBFill14000)->Unit(benchmark::kMillisecond)->UseRealTime();

// The Superformat case: a new surface and its first fill, which pays for the first touch of
// every page, and its release.
void BM_LineDIBFill14000Fresh(benchmark::State &state)
{
    for (auto _ : state) {
        cDIBSection dib;
        if (!dib.Create(14000, 14000)) {
            state.SkipWithError("no memory for a 14000 x 14000 surface");
            return;
        }
        cDIBSection::LineDIB(dib, 0, 0, 13999, 13999, 0x102030, QStringLiteral("BF"), 100);
        benchmark::DoNotOptimize(dib.DIBSectionBitsPtr()[0]);
    }
}
BENCHMARK(BM_LineDIBFill14000Fresh)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(4);

void BM_Create14000(benchmark::State &state)
{
    for (auto _ : state) {
        cDIBSection dib;
        benchmark::DoNotOptimize(dib.Create(14000, 14000));
    }
}
BENCHMARK(BM_Create14000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
