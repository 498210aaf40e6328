// The load pipeline and the encoders on photo-sized pictures: a 24-megapixel JPEG loaded into
// the 1600 box, and a 4096 x 4096 picture encoded as PNG and as JPEG.
//
// The inputs are made once from a real photograph of the shared test data, enlarged, and kept
// in TF_BENCH_DIR (default /tmp/tf-bench-files) so that bench/compare-peers-files.sh can give
// the same files to other programs.
#include "core/bmpstream.h"
#include "core/dibsection.h"
#include "files/jpegcodec.h"
#include "files/picturefile.h"
#include "files/pngcodec.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <benchmark/benchmark.h>

using namespace tf;

namespace {

QString benchDir()
{
    const QString dir = qEnvironmentVariableIsSet("TF_BENCH_DIR")
                            ? qEnvironmentVariable("TF_BENCH_DIR")
                            : QStringLiteral("/tmp/tf-bench-files");
    QDir().mkpath(dir);
    return dir;
}

QImage photo(QSize size)
{
    QImage source(QStringLiteral(TF_TESTDATA_DIR "/photos/kodak/landscape/kodim01.jpg"));
    if (source.isNull()) {
        source = QImage(256, 256, QImage::Format_RGB32);
        for (int y = 0; y < 256; ++y)
            for (int x = 0; x < 256; ++x)
                source.setPixel(x, y, qRgb(x, y, (x * y) & 0xFF));
    }
    return source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

// The 6000 x 4000 JPEG photo (quality 92), made on first use.
QString photo24()
{
    const QString path = benchDir() + QStringLiteral("/photo-6000x4000.jpg");
    if (!QFile::exists(path))
        savePicture(photo(QSize(6000, 4000)), path, QStringLiteral("JPG"), {}, 92);
    return path;
}

// The 4096 x 4096 picture, also kept as an uncompressed bitmap for other programs.
const QImage &picture4096()
{
    static const QImage image = [] {
        QImage p = photo(QSize(4096, 4096));
        const QString bmp = benchDir() + QStringLiteral("/picture-4096.bmp");
        if (!QFile::exists(bmp))
            savePicture(p, bmp, QStringLiteral("BMP"));
        return p;
    }();
    return image;
}

void BM_LoadJpeg24MegapixelsIntoBox(benchmark::State &state)
{
    const QString path = photo24();
    for (auto _ : state) {
        const LoadResult r = LoadImage(path);
        if (r.image.size() != QSize(1600, 1067))
            state.SkipWithError("unexpected size");
        benchmark::DoNotOptimize(r.image.constBits());
    }
}
BENCHMARK(BM_LoadJpeg24MegapixelsIntoBox)->Unit(benchmark::kMillisecond);

void BM_EncodePng4096(benchmark::State &state)
{
    cDIBSection dib;
    dib.CreateFromPicture(picture4096());
    for (auto _ : state) {
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        SavePNG(dib, out);
        state.counters["bytes"] = double(out.size());
    }
}
BENCHMARK(BM_EncodePng4096)->Unit(benchmark::kMillisecond);

void BM_EncodeJpeg4096(benchmark::State &state)
{
    cDIBSection dib;
    dib.CreateFromPicture(picture4096());
    for (auto _ : state) {
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        SaveJPG(dib, out, 100);
        state.counters["bytes"] = double(out.size());
    }
}
BENCHMARK(BM_EncodeJpeg4096)->Unit(benchmark::kMillisecond);

// The 4096 x 4096 picture as a 24-bit bitmap and back, in memory: the row conversions on
// every core that the command line's whole-process filters pay on each side of the filter.
void BM_DecodeBmp4096(benchmark::State &state)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    writeBmp24(picture4096(), file);
    const QByteArray bytes = file.data();
    for (auto _ : state) {
        const QImage image = readPlainBmp(bytes);
        benchmark::DoNotOptimize(image.constBits());
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * bytes.size());
}
BENCHMARK(BM_DecodeBmp4096)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_EncodeBmp4096(benchmark::State &state)
{
    QByteArray bytes;
    bytes.reserve(54 + 4096 * 4096 * 3);
    for (auto _ : state) {
        bytes.resize(0);
        QBuffer out(&bytes);
        out.open(QIODevice::WriteOnly);
        writeBmp24(picture4096(), out);
        benchmark::DoNotOptimize(bytes.constData());
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * bytes.size());
}
BENCHMARK(BM_EncodeBmp4096)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

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
