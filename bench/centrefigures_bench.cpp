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
#include "painterbench.h"

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
    static const std::unique_ptr<Session> s = [] {
        auto made = bench::paintSession(Side, Side);
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
    bench::writeBytes(state, Side);
}
BENCHMARK(writeBytes)->Unit(benchmark::kMillisecond);

void figure(benchmark::State &state)
{
    state.SetLabel(keys[state.range(0)]);
    bench::paintLoop(state, session(), QString::fromUtf8(keys[state.range(0)]), Side, Side, true);
}
BENCHMARK(figure)->DenseRange(0, int(std::size(keys)) - 1)->Unit(benchmark::kMillisecond);

} // namespace
