// Speed of the figures around a centre at 2048 x 2048: the per-pixel ones (mountains, the
// wave grid, the circle gradients) against the yardstick of writing the picture's bytes once,
// and the drawn ones (spirograph, rotating lines) by their lines.
#include "core/picturebox.h"
#include "generators/painters.h"
#include "paint/colourstate.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QImage>
#include <benchmark/benchmark.h>
#include <cstring>

using namespace tf;

namespace {

constexpr int Side = 2048;

const char *const keys[] = {"Mountains",     "Mountains-Gradient", "Mountains-Pen",
                            "Wave-Grid",     "Radial",             "Sunburst",
                            "Radial-4spirals", "Spirograph",       "70th-Rotating"};

Session &session()
{
    static Session *s = [] {
        registerAllPanels();
        auto *made = new Session;
        made->setPainters(painterTable());
        made->workspace().New_BildSize(Side, Side);
        // Fixed values, so each run paints the same figure.
        made->colours().RandomValues = false;
        made->controls().set(ControlKey{QStringLiteral("XCenter")}, QStringLiteral("1"));
        made->controls().set(ControlKey{QStringLiteral("cmbNumbArr")}, QStringLiteral("100"));
        return made;
    }();
    return *s;
}

void writeBytes(benchmark::State &state)
{
    QImage image(Side, Side, QImage::Format_RGB32);
    uint8_t v = 0;
    for (auto _ : state) {
        std::memset(image.bits(), ++v, size_t(image.sizeInBytes()));
        benchmark::DoNotOptimize(image.bits());
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * image.sizeInBytes());
}
BENCHMARK(writeBytes)->Unit(benchmark::kMillisecond);

void figure(benchmark::State &state)
{
    Session &s = session();
    const QString key = QString::fromUtf8(keys[state.range(0)]);
    state.SetLabel(keys[state.range(0)]);
    s.paint().GrafKey = key;
    const PainterEntry *entry = findPainter(s.painters(), key);
    // The painter alone, without the dispatcher's undo image.
    TransparencyState &t = s.transparency();
    for (auto _ : state) {
        s.seed(7);
        PaintContext ctx{s, *t.XBild, *t.XUndo, *t.XWork,
                         readOptionVariables(s.controls(), Side, Side)};
        entry->paint(ctx);
    }
}
BENCHMARK(figure)->DenseRange(0, int(std::size(keys)) - 1)->Unit(benchmark::kMillisecond);

} // namespace
