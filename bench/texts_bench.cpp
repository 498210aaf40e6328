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
#include <benchmark/benchmark.h>
#include <memory>

using namespace tf;

namespace {

const char *const textKeys[] = {"TEXT-Dialog", "TEXT-Textblock", "TEXT-StarRotated",
                                "TEXT-Circular", "TEXT-Spiral", "TEXT-Mondrian-Raster",
                                "TEXT-Simple-Raster", "TEXT-Spiral-Raster"};

Session &session()
{
    static std::unique_ptr<Session> s;
    if (!s) {
        registerAllPanels();
        s = std::make_unique<Session>();
        s->setPainters(painterTable());
        s->workspace().New_BildSize(712, 712);
        Set_BILD(*s);
    }
    return *s;
}

void textType(benchmark::State &state)
{
    Session &s = session();
    const char *key = textKeys[state.range(0)];
    state.SetLabel(key);
    s.paint().GrafKey = QString::fromUtf8(key);
    const PainterEntry *entry = findPainter(s.painters(), s.paint().GrafKey);
    TransparencyState &t = s.transparency();
    uint32_t seed = 1;
    for (auto _ : state) {
        s.seed(seed++);
        PaintContext ctx{s, *t.XBild, *t.XUndo, *t.XWork, readOptionVariables(s.controls(), 712, 712)};
        entry->paint(ctx);
    }
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
