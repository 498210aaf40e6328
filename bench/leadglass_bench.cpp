// Speed of the leaded windows at 4096 x 4096: the lead-glass window with every figure and the
// Tiffany border (its lead curves are anti-aliased chords), and the cathedral window's sets.
#include "generators/painters.h"
#include "paint/controls.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include "painterbench.h"

#include <benchmark/benchmark.h>

using namespace tf;

namespace {

void paintType(benchmark::State &state, const char *key)
{
    const auto session = bench::paintSession(4096, 4096);
    Session &s = *session;
    s.colours().RandomValues = false;
    Controls &k = s.controls();
    k.set(ControlKey{QStringLiteral("cmbPen"), -1}, QStringLiteral("4"));
    k.set(ControlKey{QStringLiteral("txtMLGKachel"), 0}, QStringLiteral("8"));
    k.set(ControlKey{QStringLiteral("txtMLGKachel"), 1}, QStringLiteral("8"));
    k.set(ControlKey{QStringLiteral("XMLG"), 5}, QStringLiteral("1"));
    for (int i = 1; i <= 5; ++i)
        k.set(ControlKey{QStringLiteral("XMLG_Paint"), i}, QStringLiteral("1"));
    k.set(ControlKey{QStringLiteral("optXMLGForms"), -1}, QStringLiteral("1"));
    k.set(ControlKey{QStringLiteral("cmbCathedralWinNr"), -1}, QString::number(state.range(0)));
    bench::paintLoop(state, s, QString::fromLatin1(key), 4096, 4096);
}

void leadGlass(benchmark::State &state) { paintType(state, "ART-Mondrian-LeadGlass"); }
void cathedral(benchmark::State &state) { paintType(state, "ART-Cathedral-LeadGlass"); }

BENCHMARK(leadGlass)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(cathedral)->DenseRange(0, 4)->Unit(benchmark::kMillisecond);

} // namespace
