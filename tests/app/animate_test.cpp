// `tarvelle-forge animate`: the tunnel as an animated PNG or GIF, the same bytes for a seed,
// the frames those of the tunnel painted in the process.
#include "forgeprocess.h"
#include "support/pngchunks.h"

#include "generators/painters.h"
#include "generators/tunnel.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/session.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

using forgetest::forge;
using namespace tf;

namespace {

// The tunnel the command makes for `seed` at 64 x 48, made in this process, and its frames at
// `fps`.
std::vector<QImage> tunnelFrames(uint32_t seed, int count, int fps)
{
    registerAllPanels();
    Session s;
    s.setPainters(painterTable());
    s.workspace().New_BildSize(64, 48);
    const TypeLocation where = *findType(QStringLiteral("Plasma"));
    mn_Grafmodes(s, where.group);
    ListBoxType_Click(s, where.listIndex);
    s.seed(seed);
    auto tunnel = makeTunnel(s, 64, 48);
    std::vector<QImage> frames;
    QImage frame(64, 48, QImage::Format_RGB32);
    for (int i = 0; i < count; ++i) {
        if (i > 0) tunnel->advance(30.0 / fps);
        tunnel->render(frame);
        frames.push_back(frame.copy());
    }
    return frames;
}

} // namespace

TEST(CliAnimate, TunnelAsApngRepeatsBySeedAndShowsTheTunnelsFrames)
{
    QTemporaryDir dir;
    const QString a = dir.filePath(QStringLiteral("a.png")), b = dir.filePath(QStringLiteral("b.png"));
    const QStringList args{QStringLiteral("animate"), QStringLiteral("Plasma"),
                           QStringLiteral("--frames"), QStringLiteral("5"),
                           QStringLiteral("--fps"), QStringLiteral("15"),
                           QStringLiteral("--size"), QStringLiteral("64x48"),
                           QStringLiteral("--seed"), QStringLiteral("3"),
                           QStringLiteral("-o")};
    const auto first = forge(args + QStringList{a});
    ASSERT_EQ(first.code, 0) << first.err.toStdString();
    ASSERT_EQ(forge(args + QStringList{b}).code, 0);
    const QByteArray bytes = bytesOf(a);
    EXPECT_EQ(bytes, bytesOf(b));
    EXPECT_TRUE(bytes.contains("acTL"));

    const std::vector<QImage> frames = pngtest::readApng(bytes).frames;
    const std::vector<QImage> painted = tunnelFrames(3, 5, 15);
    ASSERT_EQ(frames.size(), 5u);
    for (size_t i = 0; i < frames.size(); ++i) EXPECT_EQ(frames[i], painted[i]) << "frame " << i;
    EXPECT_NE(frames[0], frames[1]);
}

TEST(CliAnimate, TunnelAsGif)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("t.gif"));
    const auto r = forge({QStringLiteral("animate"), QStringLiteral("Plasma"),
                          QStringLiteral("--frames"), QStringLiteral("3"), QStringLiteral("--fps"),
                          QStringLiteral("10"), QStringLiteral("--loop"), QStringLiteral("2"),
                          QStringLiteral("--size"), QStringLiteral("64x48"),
                          QStringLiteral("--seed"), QStringLiteral("8"), QStringLiteral("-o"), path});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    QImageReader reader(path, "gif");
    EXPECT_EQ(reader.imageCount(), 3);
    EXPECT_EQ(reader.loopCount(), 2);
    QImage f;
    int frames = 0;
    while (reader.read(&f)) {
        EXPECT_EQ(f.size(), QSize(64, 48));
        EXPECT_EQ(reader.nextImageDelay(), 100);
        ++frames;
    }
    EXPECT_EQ(frames, 3);
}

TEST(CliAnimate, MistakesAreUsageErrors)
{
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("x.png"));
    auto run = [&](QStringList args) {
        return forge(QStringList{QStringLiteral("animate")} + args + QStringList{QStringLiteral("-o"), out});
    };
    const auto noAnimation =
        run({QStringLiteral("Backgroundcolor"), QStringLiteral("--lang"), QStringLiteral("de")});
    EXPECT_EQ(noAnimation.code, 2);
    EXPECT_TRUE(noAnimation.err.contains(QStringLiteral("hat keine Animation")));
    EXPECT_EQ(run({QStringLiteral("Plasma"), QStringLiteral("--fps"), QStringLiteral("0")}).code, 2);
    EXPECT_EQ(run({QStringLiteral("Plasma"), QStringLiteral("--frames")}).code, 2);
    const auto jpeg = forge({QStringLiteral("animate"), QStringLiteral("Plasma"), QStringLiteral("-o"),
                             dir.filePath(QStringLiteral("x.jpg"))});
    EXPECT_EQ(jpeg.code, 2);
    EXPECT_FALSE(QFile::exists(out));
    // A folder that is not there: the work fails with the write's message.
    const auto missing = forge({QStringLiteral("animate"), QStringLiteral("Plasma"),
                                QStringLiteral("--frames"), QStringLiteral("2"), QStringLiteral("--size"),
                                QStringLiteral("32x32"), QStringLiteral("-o"),
                                dir.filePath(QStringLiteral("none/x.gif"))});
    EXPECT_EQ(missing.code, 1);
    EXPECT_FALSE(missing.err.isEmpty());
}
