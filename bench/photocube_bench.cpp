// Speed of the photo cube's picture at 4096 x 4096 from three photos of the shared test
// files: building the faces' halved copies, painting the rows on one thread and on all, and
// the whole paint of "Photo-CUBE" from the directory (picks, decoding, rows), beside the
// yardstick of writing the picture's bytes once.
#include "core/parallel.h"
#include "generators/cubetexture.h"
#include "generators/photocube.h"
#include "painterbench.h"

#include <QImage>
#include <benchmark/benchmark.h>

using namespace tf;

namespace {

QImage photo(const char *name)
{
    QImage img(QStringLiteral(TF_TESTDATA_DIR "/photos/kodak/landscape/") + QLatin1String(name));
    if (img.isNull()) {
        img = QImage(768, 512, QImage::Format_RGB32);
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x) img.setPixel(x, y, qRgb(x & 255, y & 255, (x ^ y) & 255));
    }
    return img.convertToFormat(QImage::Format_RGB32);
}

void buildFaces(benchmark::State &state)
{
    const QImage img = photo("kodim01.jpg");
    for (auto _ : state) {
        CubeTexture t(img);
        benchmark::DoNotOptimize(t.levels());
    }
}

void paintCube(benchmark::State &state)
{
    const int side = 4096;
    const CubeTexture a(photo("kodim01.jpg")), b(photo("kodim03.jpg")), c(photo("kodim23.jpg"));
    const CubeScene scene({side, side}, CubeLook{});
    QImage picture(side, side, QImage::Format_RGB32);
    const PixelRows rows = PixelRows::of(picture);
    const int threads = int(state.range(0));
    for (auto _ : state) {
        parallelChunks(side, 16, threads > 0 ? threads : threadsFor(side, side, 1 << 16, 0),
                       [&](int y0, int y1) { scene.paintRows({&a, &b, &c}, rows, y0, y1); },
                       [](int) {});
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * int64_t(side) * side);
}

void paintFromDirectory(benchmark::State &state)
{
    const auto session = tf::bench::paintSession(4096, 4096);
    Session &s = *session;
    s.colours().RandomValues = true;
    s.picSources().PicSource = QStringLiteral(TF_TESTDATA_DIR "/photos/kodak/landscape");
    s.controls().set(ControlKey{QStringLiteral("optPicMosaikSource")}, QStringLiteral("1"));
    tf::bench::paintLoop(state, s, QStringLiteral("Photo-CUBE"), 4096, 4096);
}

void writeBytes(benchmark::State &state) { tf::bench::writeBytes(state, 4096); }

BENCHMARK(buildFaces)->Unit(benchmark::kMillisecond);
BENCHMARK(paintCube)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(paintFromDirectory)->Unit(benchmark::kMillisecond);
BENCHMARK(writeBytes)->Unit(benchmark::kMillisecond);

} // namespace
