// Speed of the text types with the Latin sample (the longest text a user gets without typing),
// each with its default options and random values, at 712 x 712, where none may take a second,
// and of the rotated text itself: one line of the sample turned by 30 degrees, with and without
// soft edges.
#include "core/picturebox.h"
#include "generators/painters.h"
#include "generators/textdraw.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QGuiApplication>
#include "painterbench.h"

#include <benchmark/benchmark.h>
#include <memory>

using namespace tf;

namespace {

const char *const textKeys[] = {"TEXT-Dialog", "TEXT-Textblock", "TEXT-StarRotated",
                                "TEXT-Circular", "TEXT-Spiral", "TEXT-Mondrian-Raster",
                                "TEXT-Simple-Raster", "TEXT-Spiral-Raster"};

Session &session()
{
    static const std::unique_ptr<Session> s = bench::paintSession(712, 712);
    return *s;
}

void textType(benchmark::State &state)
{
    state.SetLabel(textKeys[state.range(0)]);
    bench::paintLoop(state, session(), QString::fromUtf8(textKeys[state.range(0)]), 712, 712);
}

void rotatedLine(benchmark::State &state)
{
    PictureBox pic(QStringLiteral("bench"), 712, 712);
    text::TextFont f;
    f.name = QStringLiteral("DejaVu Sans");
    f.size = 24;
    f.antialias = state.range(0) != 0;
    const QString line = QString::fromLatin1(text::LatinSample);
    for (auto _ : state) text::Print_Rotated(pic, line, 10, 600, 30, f);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    for (int i = 0; i < int(std::size(textKeys)); ++i)
        benchmark::RegisterBenchmark("text/712", textType)->Arg(i)->Unit(benchmark::kMillisecond)->Iterations(5);
    benchmark::RegisterBenchmark("rotated-line/soft", rotatedLine)->Arg(1)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("rotated-line/hard", rotatedLine)->Arg(0)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
