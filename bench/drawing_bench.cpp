// Speed of the drawing vocabulary on a picture of the standard 712 x 712 format.
#include "core/gdi.h"
#include "core/picturebox.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>

using namespace tf;

namespace {

constexpr int Size = 712;

PictureBox &picture()
{
    static PictureBox pb(QStringLiteral("bench"), Size, Size);
    pb.setAutoRedraw(true);
    pb.setDrawMode(R2_COPYPEN);
    pb.setDrawWidth(1);
    pb.setFillStyle(1);
    return pb;
}

// A deterministic walk of coordinates over the picture.
double coord(int64_t i, int k) { return double((i * (97 + 31 * k) + 13 * k) % Size); }

void thinLines(benchmark::State &state)
{
    PictureBox &pb = picture();
    pb.setDrawMode(int(state.range(0)));
    int64_t i = 0;
    for (auto _ : state) {
        pb.Line(coord(i, 0), coord(i, 1), coord(i, 2), coord(i, 3), ColorLong(i & 0xFFFFFF));
        ++i;
    }
}
BENCHMARK(thinLines)->Arg(R2_COPYPEN)->Arg(R2_XORPEN);

void wideLines(benchmark::State &state)
{
    PictureBox &pb = picture();
    pb.setDrawWidth(int(state.range(0)));
    int64_t i = 0;
    for (auto _ : state) {
        pb.Line(coord(i, 0), coord(i, 1), coord(i, 2), coord(i, 3), ColorLong(i & 0xFFFFFF));
        ++i;
    }
}
BENCHMARK(wideLines)->Arg(3)->Arg(12);

void filledCircles(benchmark::State &state)
{
    PictureBox &pb = picture();
    pb.setFillStyle(0);
    pb.setFillColor(0x808080);
    const double radius = double(state.range(0));
    int64_t i = 0;
    for (auto _ : state) {
        pb.Circle(coord(i, 0), coord(i, 1), radius, ColorLong(i & 0xFFFFFF));
        ++i;
    }
}
BENCHMARK(filledCircles)->Arg(10)->Arg(100)->Arg(356);

void printedText(benchmark::State &state)
{
    PictureBox &pb = picture();
    pb.setFontSize(12);
    int64_t i = 0;
    for (auto _ : state) {
        pb.setCurrentX(coord(i, 0));
        pb.setCurrentY(coord(i, 1));
        pb.Print(QStringLiteral("Tarvelle"));
        ++i;
    }
}
BENCHMARK(printedText);

void floodFillWhole(benchmark::State &state)
{
    PictureBox &pb = picture();
    DeviceContext &dc = pb.hDC();
    ColorLong c = 0;
    for (auto _ : state) {
        RECT all{0, 0, Size, Size};
        FillRect(dc, all, CreateSolidBrush(c));
        SelectObject(dc, CreateSolidBrush(c ^ 0xFFFFFF));
        ExtFloodFill(dc, Size / 2, Size / 2, c, FLOODFILLSURFACE);
        c ^= 0x0F0F0F;
    }
}
BENCHMARK(floodFillWhole);

} // namespace

// Fonts need a GUI application; the offscreen platform serves.
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
