// Speed of the plasma at 4096 x 4096 (target: under 250 ms on two cores, the colours
// included; a Paint of "Plasma" takes the route of plasmaPaint) and of one tunnel frame at 712 x 712 (target: far below the 33 ms of a frame at
// 30 frames a second).
#include "generators/plasma.h"
#include "generators/tunnel.h"

#include <QImage>
#include <benchmark/benchmark.h>

using namespace tf;

namespace {

constexpr int Side = 4096;

// The field alone: range(0) threads (0: every core), range(1) the grain.
void plasmaField(benchmark::State &state)
{
    const PlasmaSettings s{int(state.range(1)), 32, false, false};
    uint64_t key = 1;
    for (auto _ : state) {
        PlasmaField f = Plasma_Fill(Side, Side, s, key++, int(state.range(0)));
        benchmark::DoNotOptimize(f.index.data());
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * Side * Side);
}
BENCHMARK(plasmaField)->ArgsProduct({{0, 1}, {0, 3}})->Unit(benchmark::kMillisecond)->UseRealTime();

// What a Paint of "Plasma" costs at 4096 x 4096: the field and its colours in the picture.
void plasmaPicture(benchmark::State &state)
{
    const PlasmaSettings s{2, 64, true, true};
    const Palette512 palette = Plasma_Palette(0x102030, 0xF0E0A0, 1);
    QImage image(Side, Side, QImage::Format_RGB32);
    uint64_t key = 1;
    for (auto _ : state) {
        const PlasmaField f = Plasma_Fill(Side, Side, s, key++, int(state.range(0)));
        Plasma_Colours(f, palette, reinterpret_cast<uint32_t *>(image.bits()),
                       size_t(image.bytesPerLine()) / 4, int(state.range(0)));
        benchmark::DoNotOptimize(image.bits());
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * Side * Side);
}
BENCHMARK(plasmaPicture)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

// The Paint's own route: the coarse passes, then the last pass and the colours in the picture's
// rows, without a field of the picture's size (the same pixels as plasmaPicture's).
void plasmaPaint(benchmark::State &state)
{
    const PlasmaSettings s{2, 64, true, true};
    const Palette512 palette = Plasma_Palette(0x102030, 0xF0E0A0, 1);
    QImage image(Side, Side, QImage::Format_RGB32);
    uint64_t key = 1;
    for (auto _ : state) {
        Plasma_FillColours(Plasma_Coarse(Side, Side, s, key++, int(state.range(0))), palette,
                           reinterpret_cast<uint32_t *>(image.bits()),
                           size_t(image.bytesPerLine()) / 4, int(state.range(0)));
        benchmark::DoNotOptimize(image.bits());
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * Side * Side);
}
BENCHMARK(plasmaPaint)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

void tunnelFrame(benchmark::State &state)
{
    const Palette512 palette = Plasma_Palette(0x000000, 0xFFFFFF, 1);
    TunnelSettings t;
    t.speed = 4;
    t.spin = true;
    t.hole = 64;
    t.cx = 356;
    t.cy = 356;
    Tunnel tunnel(Plasma_Fill(1064, 1064, {0, 32, true, true}, 7), palette, 712, 712, t);
    QImage frame(712, 712, QImage::Format_RGB32);
    for (auto _ : state) {
        tunnel.advance(1);
        tunnel.render(frame);
        benchmark::DoNotOptimize(frame.bits());
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * 712 * 712);
}
BENCHMARK(tunnelFrame)->Unit(benchmark::kMillisecond);

} // namespace
