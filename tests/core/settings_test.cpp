#include "support/files.h"
#include "core/appsettings.h"
#include "core/settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <tuple>

using namespace tf;

namespace {

struct SettingsTest : ::testing::Test {
    QTemporaryDir dir;
    QString iniPath() const { return dir.filePath(QStringLiteral("Tvl-2.5.ini")); }

    void writeFile(const QByteArray &content) { writeBytes(iniPath(), content); }
    QString fileText() const { return QString::fromUtf8(bytesOf(iniPath())); }
};

AppSettings defaultsWithSystemLanguage()
{
    AppSettings d;
    d.language = systemLanguage();
    return d;
}

} // namespace

TEST_F(SettingsTest, AMissingStoreGivesTheDefaults)
{
    SettingsStore store(iniPath());
    AppSettings s;
    s.FixNumb = 55; // something load must overwrite
    s.load(store);
    EXPECT_EQ(s, defaultsWithSystemLanguage());
    EXPECT_EQ(std::tuple(s.FixNumb, s.FixDelete, s.ClipDelete, s.DoSinglePic, s.DoSubDirs,
                         s.Openpreview, s.PDirTemp),
              std::tuple(10, 0, 1, true, true, 1, QString()));
    EXPECT_FALSE(QFile::exists(iniPath())); // reading writes nothing
}

TEST_F(SettingsTest, AnUnreadableOrBrokenStoreGivesTheDefaults)
{
    // A folder where the file should be cannot be read at all.
    ASSERT_TRUE(QDir().mkpath(iniPath()));
    {
        SettingsStore store(iniPath());
        EXPECT_FALSE(store.readable());
        AppSettings s;
        s.load(store);
        EXPECT_EQ(s, defaultsWithSystemLanguage());
    }
    ASSERT_TRUE(QDir(iniPath()).removeRecursively());

    // A damaged file is not trusted even for the values that could be parsed.
    writeFile("[Settings]\nFixNumb=3\n[Common\nLanguage=2\n\x01\xff\xfe");
    SettingsStore store(iniPath());
    EXPECT_FALSE(store.readable());
    AppSettings s;
    s.load(store);
    EXPECT_EQ(s, defaultsWithSystemLanguage());
    EXPECT_EQ(store.Get_Setting(QStringLiteral("Settings"), QStringLiteral("FixNumb"), 10), 10);
}

TEST_F(SettingsTest, EverySettingSurvivesSaveAndLoad)
{
    AppSettings out;
    out.language = systemLanguage() == Language::German ? Language::English : Language::German;
    out.PDirRead = QStringLiteral("/bilder/ä, ö; ü");
    out.PDirWrite = QStringLiteral("/out");
    out.PDirImport = QStringLiteral("/import");
    out.PDirPalet = QStringLiteral("/paletten");
    out.PDirLPath = QStringLiteral("/last");
    out.PDirLName = QStringLiteral("bild #1.png");
    out.PDirTVP = QStringLiteral("/tvp");
    out.SaveJPQ = 80;
    out.PDirTemp = QStringLiteral("/tmp/tf work");
    out.MainWState = 2;
    out.setMainRect(QRect(-5, 12, 900, 700));
    out.FixNumb = 25;
    out.FixDelete = 1;
    out.ClipDelete = 0;
    out.DoSinglePic = false;
    out.DoSubDirs = false;
    out.Openpreview = 0;
    out.initFormat = 9;
    out.initFormatW = 1024;
    out.initFormatH = 768;
    for (int g = 1; g <= AppSettings::GroupCount; ++g)
        out.GrafMenu[size_t(g)] = g * 3;
    {
        SettingsStore store(iniPath());
        out.save(store);
        ASSERT_TRUE(store.sync());
    }
    SettingsStore store(iniPath());
    AppSettings in;
    in.load(store);
    EXPECT_EQ(in, out);

    // The file holds the three sub-keys, Booleans as -1 / 0 and the language as 1 / 2.
    const QString text = fileText();
    EXPECT_TRUE(text.contains(QLatin1String("[Common]")));
    EXPECT_TRUE(text.contains(QLatin1String("[Settings]")));
    EXPECT_TRUE(text.contains(QLatin1String("[Grafic]")));
    EXPECT_TRUE(text.contains(QLatin1String("DoSinglePic=0")));
    EXPECT_TRUE(text.contains(QLatin1String("GrafMenu10bk=30")));
    EXPECT_EQ(store.Get_Setting(QStringLiteral("Common"), QStringLiteral("Language"), 0),
              languageSettingValue(out.language));
    out.DoSubDirs = true;
    out.save(store);
    EXPECT_EQ(store.Get_Setting(QStringLiteral("Settings"), QStringLiteral("DoSubDirs"), 0), -1);
}

TEST_F(SettingsTest, ValuesOfTheWrongKindGiveTheDefault)
{
    writeFile("[Settings]\nFixNumb=viele\nDoSubDirs=True\nDoSinglePic=7\nMainWState=1\n"
              "Openpreview= 0 \n[Common]\nPDirRead=a,b\nSaveJPQ=500\n");
    SettingsStore store(iniPath());
    ASSERT_TRUE(store.readable());
    const QString S = QStringLiteral("Settings");
    EXPECT_EQ(store.Get_Setting(S, QStringLiteral("FixNumb"), 10), 10);
    EXPECT_TRUE(store.Get_Setting(S, QStringLiteral("DoSubDirs"), false));
    EXPECT_TRUE(store.Get_Setting(S, QStringLiteral("DoSinglePic"), false));
    EXPECT_TRUE(store.Get_Setting(S, QStringLiteral("FixNumb"), true));
    // A sub-key written the classic way, with its backslash, is the same sub-key.
    EXPECT_EQ(store.Get_Setting(QStringLiteral("\\Settings"), QStringLiteral("Openpreview"), 1), 0);

    AppSettings s;
    s.load(store);
    EXPECT_EQ(s.MainWState, 0);  // a minimized start is not restored
    EXPECT_EQ(s.SaveJPQ, 100);   // a quality is at most 100
    EXPECT_EQ(s.PDirRead, QStringLiteral("a,b"));
    store.Put_Setting(S, QStringLiteral("FixNumb"), 250);
    s.load(store);
    EXPECT_EQ(s.FixNumb, 99); // two digits at most
}

TEST(WindowPlacement, AWindowIsKeptOnTheScreen)
{
    const QSize screen(1920, 1080);
    EXPECT_EQ(keepOnScreen(QRect(100, 50, 800, 600), screen), QRect(100, 50, 800, 600));
    EXPECT_EQ(keepOnScreen(QRect(-40, -3, 800, 600), screen), QRect(0, 0, 800, 600));
    EXPECT_EQ(keepOnScreen(QRect(1500, 900, 800, 600), screen), QRect(1120, 480, 800, 600));
    EXPECT_EQ(keepOnScreen(QRect(10, 10, 3000, 2000), screen), QRect(0, 0, 1920, 1080));
    EXPECT_EQ(keepOnScreen(QRect(10, 10, 0, -5), screen), QRect(10, 10, 1, 1));
    // A second screen to the right of the first.
    EXPECT_EQ(keepOnScreen(QRect(100, 100, 800, 600), QRect(1920, 0, 1280, 1024)),
              QRect(1920, 100, 800, 600));
}

TEST(PictureFormat, OnlyAKnownMenuEntryAndASensibleSizeAreRestored)
{
    const auto f = restoredPicFormat(12, 1024, 683);
    ASSERT_TRUE(f.has_value());
    EXPECT_EQ(f->index, 12);
    EXPECT_EQ(f->max(), 1024);
    EXPECT_TRUE(restoredPicFormat(0, 300, 200).has_value());
    EXPECT_FALSE(restoredPicFormat(13, 712, 712).has_value());
    EXPECT_FALSE(restoredPicFormat(-1, 712, 712).has_value());
    EXPECT_FALSE(restoredPicFormat(4, 0, 712).has_value());
    EXPECT_FALSE(restoredPicFormat(4, 712, 14001).has_value());
}
