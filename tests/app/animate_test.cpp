// `tarvelle-forge animate`: the tunnel as an animated PNG or GIF, the same bytes for a seed,
// the frames those of the tunnel painted in the process.
#include "forgeprocess.h"

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

quint32 crc32Of(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFFu;
    for (char ch : bytes) {
        crc ^= quint8(ch);
        for (int k = 0; k < 8; ++k) crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

void appendChunk(QByteArray &png, const QByteArray &type, const QByteArray &data)
{
    char word[4];
    qToBigEndian<quint32>(quint32(data.size()), word);
    png.append(word, 4);
    png.append(type + data);
    qToBigEndian<quint32>(crc32Of(type + data), word);
    png.append(word, 4);
}

// The frames of an APNG, each rebuilt as a still PNG and decoded by Qt.
std::vector<QImage> apngFrames(const QByteArray &file)
{
    std::vector<QImage> frames;
    QByteArray ihdr, data;
    auto flush = [&] {
        if (data.isEmpty()) return;
        QByteArray png = file.left(8);
        appendChunk(png, "IHDR", ihdr);
        appendChunk(png, "IDAT", data);
        appendChunk(png, "IEND", {});
        frames.push_back(QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32));
        data.clear();
    };
    for (qsizetype pos = 8; pos + 12 <= file.size();) {
        const quint32 length = qFromBigEndian<quint32>(file.constData() + pos);
        const QByteArray type = file.mid(pos + 4, 4), body = file.mid(pos + 8, length);
        if (type == "IHDR") ihdr = body;
        if (type == "fcTL" || type == "IEND") flush();
        if (type == "IDAT") data += body;
        if (type == "fdAT") data += body.mid(4);
        pos += 12 + qsizetype(length);
    }
    return frames;
}

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

    const std::vector<QImage> frames = apngFrames(bytes);
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
