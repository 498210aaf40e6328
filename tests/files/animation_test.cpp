// Animated PNG and GIF: the files decode to the frames that were given.
#include "support/files.h"
#include "support/pngchunks.h"
#include "files/animationfile.h"
#include "paint/animation.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

#include <cmath>

using namespace tf;
using namespace pngtest;

namespace {

// Stripes and a gradient that move by the frame: many colours, every frame different.
class Stripes final : public Animation {
public:
    Stripes(int w, int h, bool rich) : m_w(w), m_h(h), m_rich(rich) {}
    QSize frameSize() const override { return {m_w, m_h}; }
    void render(QImage &frame) override
    {
        const int t = int(m_t);
        for (int y = 0; y < m_h; ++y)
            for (int x = 0; x < m_w; ++x) {
                const int band = ((x + t) / 4 + y / 5) % 6;
                const uint32_t c = m_rich ? qRgb((x * 7 + t * 3) & 255, (y * 5 + x) & 255,
                                                 (band * 40 + t) & 255)
                                          : qRgb(band * 40, 255 - band * 30, (t * 10) & 255);
                frame.setPixel(x, y, c);
            }
    }
    void advance(double frames) override { m_t += frames; }
    std::unique_ptr<Animation> clone() const override { return std::make_unique<Stripes>(*this); }

private:
    int m_w, m_h;
    bool m_rich;
    double m_t = 0;
};

std::vector<QImage> framesOf(Animation &a, int n, double step)
{
    std::vector<QImage> out;
    QImage f(a.frameSize(), QImage::Format_RGB32);
    for (int i = 0; i < n; ++i) {
        if (i > 0) a.advance(step);
        a.render(f);
        out.push_back(f.copy());
    }
    return out;
}

std::vector<QImage> readGif(const QByteArray &file, int &delay, int &loops)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "gif");
    std::vector<QImage> out;
    loops = reader.loopCount();
    QImage f;
    while (reader.read(&f)) {
        delay = reader.nextImageDelay();
        out.push_back(f.convertToFormat(QImage::Format_RGB32));
    }
    return out;
}

int largestDifference(const QImage &a, const QImage &b)
{
    int worst = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            worst = std::max({worst, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                              std::abs(qBlue(p) - qBlue(q))});
        }
    return worst;
}

} // namespace

TEST(AnimationFile, KindByExtension)
{
    EXPECT_EQ(animationKindOf(QStringLiteral("a/tunnel.png")), AnimationKind::Apng);
    EXPECT_EQ(animationKindOf(QStringLiteral("tunnel.APNG")), AnimationKind::Apng);
    EXPECT_EQ(animationKindOf(QStringLiteral("tunnel.Gif")), AnimationKind::Gif);
    EXPECT_FALSE(animationKindOf(QStringLiteral("tunnel.jpg")));
    EXPECT_FALSE(animationKindOf(QStringLiteral("tunnel")));
}

TEST(AnimationFile, ApngDecodesToTheFramesGiven)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("stripes.png"));
    Stripes source(37, 23, true);
    auto copy = source.clone();
    const std::vector<QImage> expected = framesOf(*copy, 5, 30.0 / 12);
    const WriteResult w = writeAnimation(path, source, 5, 12, 3);
    ASSERT_TRUE(w.ok()) << w.message.toStdString();
    const ApngRead r = readApng(bytesOf(path));
    EXPECT_EQ(r.declaredFrames, 5u);
    EXPECT_EQ(r.loops, 3u);
    ASSERT_EQ(r.frames.size(), 5u);
    for (size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(r.frames[i], expected[i]) << "frame " << i;
        EXPECT_EQ(r.delays[i], std::make_pair(1, 12));
    }
    // A viewer without animation shows the first frame.
    EXPECT_EQ(QImage(path).convertToFormat(QImage::Format_RGB32), expected[0]);
}

TEST(AnimationFile, GifOfFewColoursIsExact)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("stripes.gif"));
    Stripes source(50, 31, false);
    auto copy = source.clone();
    const std::vector<QImage> expected = framesOf(*copy, 4, 1.0);
    ASSERT_TRUE(writeAnimation(path, source, 4, 30, 0).ok());
    int delay = 0, loops = -2;
    const std::vector<QImage> frames = readGif(bytesOf(path), delay, loops);
    ASSERT_EQ(frames.size(), 4u);
    for (size_t i = 0; i < 4; ++i) EXPECT_EQ(frames[i], expected[i]) << "frame " << i;
    EXPECT_EQ(delay, 30); // 3 hundredths: 30 frames a second, rounded
    EXPECT_EQ(loops, -1); // forever
}

TEST(AnimationFile, GifOfManyColoursIsCloseAndLong)
{
    // A picture of far more than 256 colours, larger than one LZW table, in several frames.
    Stripes source(300, 200, true);
    auto copy = source.clone();
    const std::vector<QImage> expected = framesOf(*copy, 3, 2.0);
    auto encoder = makeAnimationEncoder(AnimationKind::Gif, {300, 200}, 3, 10, 2);
    for (const QImage &f : expected) encoder->addFrame(f);
    int delay = 0, loops = 0;
    const std::vector<QImage> frames = readGif(encoder->finish(), delay, loops);
    ASSERT_EQ(frames.size(), 3u);
    EXPECT_EQ(loops, 2);
    for (size_t i = 0; i < 3; ++i) {
        // Each decoded pixel is the colour indexFrame chose for it, and that is near.
        const IndexedFrame indexed = indexFrame(expected[i]);
        EXPECT_LE(indexed.palette.size(), 256u);
        for (int y = 0; y < 200; y += 13)
            for (int x = 0; x < 300; x += 11)
                ASSERT_EQ(frames[i].pixel(x, y) & 0xFFFFFFu,
                          indexed.palette[indexed.pixels[size_t(y) * 300 + size_t(x)]]);
        EXPECT_LE(largestDifference(frames[i], expected[i]), 48);
    }
}

TEST(AnimationFile, WrongFramesAndFailedWritesLeaveNoFile)
{
    auto encoder = makeAnimationEncoder(AnimationKind::Apng, {10, 10}, 2, 30, 0);
    EXPECT_THROW(encoder->addFrame(QImage(11, 10, QImage::Format_RGB32)), std::invalid_argument);
    QImage f(10, 10, QImage::Format_RGB32);
    f.fill(Qt::red);
    encoder->addFrame(f);
    EXPECT_THROW(encoder->finish(), std::invalid_argument); // one frame of two

    QTemporaryDir dir;
    Stripes source(8, 8, false);
    const QString missing = dir.filePath(QStringLiteral("no/such/folder/a.gif"));
    const WriteResult w = writeAnimation(missing, source, 2, 10, 0);
    EXPECT_EQ(w.failure, WriteFailure::MissingFolder);
    EXPECT_FALSE(QFile::exists(missing));

    // A stop from the progress leaves the old file as it was.
    const QString path = dir.filePath(QStringLiteral("keep.png"));
    writeBytes(path, "old");
    const WriteResult stopped =
        writeAnimation(path, source, 5, 10, 0, [](int done, int) { return done < 2; });
    EXPECT_FALSE(stopped.ok());
    EXPECT_EQ(bytesOf(path), QByteArray("old"));
}
