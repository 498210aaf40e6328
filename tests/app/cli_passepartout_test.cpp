// `passepartouts` and `passepartout` as the built program runs them.
#include "forgeprocess.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using forgetest::Outcome;

struct CliPassepartout : ::testing::Test {
    QTemporaryDir dir;
    QString file(const char *name) const { return dir.filePath(QString::fromLatin1(name)); }

    // In German, with the settings and data folders of its own.
    Outcome forge(const QStringList &args) const
    {
        QProcessEnvironment env;
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.filePath(QStringLiteral("config")));
        env.insert(QStringLiteral("XDG_DATA_HOME"), dir.filePath(QStringLiteral("data")));
        return forgetest::forge(args + QStringList{QStringLiteral("--lang"), QStringLiteral("de")}, env);
    }
};

} // namespace

TEST_F(CliPassepartout, ListsAndPaintsTheStoredSetsOfTheUsersDataFolder)
{
    // One set "Rot": frame 1 two pixels of red, no gradient, no other frame.
    QByteArray bytes("\x0c\x00PPData-Tvl25\x01\x00\x00\x00\x03\x00Rot", 23);
    bytes.append(14, '\0');
    bytes.append("\x02\x00\xff\x00\x00\x00", 6);
    bytes.append(36, '\0');
    QDir().mkpath(file("data/tarvelle-forge"));
    writeBytes(file("data/tarvelle-forge/tvlpassp.dat"), bytes);

    const Outcome list = forge({QStringLiteral("passepartouts")});
    ASSERT_EQ(list.code, 0) << list.err.toStdString();
    EXPECT_EQ(list.out, QStringLiteral(
                            "+ Standard\tsolid\t3:#404040 56:#F0ECE0 0:#000000 0:#000000 0:#000000 "
                            "0:#000000 4:#202020\n"
                            "Rot\tsolid\t2:#FF0000 0:#000000 0:#000000 0:#000000 0:#000000 "
                            "0:#000000 0:#000000\n"));

    QImage in(20, 10, QImage::Format_RGB32);
    in.fill(qRgb(0, 0, 255));
    ASSERT_TRUE(in.save(file("in.png")));
    const Outcome paint =
        forge({QStringLiteral("passepartout"), QStringLiteral("--set"), QStringLiteral("rot"),
               file("in.png"), QStringLiteral("-o"), file("out.png")});
    ASSERT_EQ(paint.code, 0) << paint.err.toStdString();
    const QImage out(file("out.png"));
    ASSERT_EQ(out.size(), QSize(24, 14));
    EXPECT_EQ(out.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(out.pixel(2, 2), qRgb(0, 0, 255));

    const Outcome missing =
        forge({QStringLiteral("passepartout"), QStringLiteral("--set"), QStringLiteral("Blau"),
               file("in.png"), QStringLiteral("-o"), file("x.png")});
    EXPECT_EQ(missing.code, 1);
    EXPECT_TRUE(missing.err.contains(QStringLiteral("Es gibt kein Passepartout \"Blau\"")));
    EXPECT_FALSE(QFile::exists(file("x.png")));
}

TEST_F(CliPassepartout, AForeignDataFileEndsTheCommandAndStaysAsItWas)
{
    writeBytes(file("foreign.dat"), "GIF89a");
    const Outcome r =
        forge({QStringLiteral("passepartouts"), QStringLiteral("--data"), file("foreign.dat")});
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("Falsches Dateiformat für Passepartouts.")));
    EXPECT_EQ(bytesOf(file("foreign.dat")), QByteArray("GIF89a"));
    const Outcome usage = forge({QStringLiteral("passepartout"), file("foreign.dat")});
    EXPECT_EQ(usage.code, 2);
}
