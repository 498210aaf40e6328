#include "support/files.h"
#include "core/mrufilelist.h"
#include "core/settings.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

TEST(MRUFileList, NewestFirstAtMostFourAKnownNameMovesUp)
{
    cMRUFileList list;
    EXPECT_EQ(list.MaxFileCount(), 4);
    EXPECT_EQ(list.FileCount(), 0);
    for (const char *name : {"/p/a.png", "/p/b.png", "/p/c.png", "/p/d.png", "/p/e.png"})
        list.AddFile(QString::fromLatin1(name));
    ASSERT_EQ(list.FileCount(), 4);
    EXPECT_EQ(list.file(1), QStringLiteral("/p/e.png"));
    EXPECT_EQ(list.file(4), QStringLiteral("/p/b.png")); // a.png fell off

    list.AddFile(QStringLiteral("/p//c.png")); // the same file, written otherwise
    list.AddFile(QString());
    const auto files = [&] {
        QStringList out;
        for (int i = 0; i <= list.FileCount() + 1; ++i)
            out << list.file(i);
        return out;
    };
    EXPECT_EQ(files(), (QStringList{"", "/p/c.png", "/p/e.png", "/p/d.png", "/p/b.png", ""}));

    list.setMaxFileCount(2);
    EXPECT_EQ(files(), (QStringList{"", "/p/c.png", "/p/e.png", ""}));
}

TEST(MRUFileList, CaptionsAreNumberedAndLongPathsShortened)
{
    cMRUFileList list;
    list.AddFile(QStringLiteral("/home/anna/Bilder/Urlaub/2023/Sommer/Strand am Abend.png"));
    list.AddFile(QStringLiteral("/tmp/Tom & Jerry.bmp"));
    EXPECT_EQ(list.MenuCaption(1), QStringLiteral("&1 /tmp/Tom && Jerry.bmp"));
    EXPECT_EQ(list.MenuCaption(2), QStringLiteral("&2 /home/.../Sommer/Strand am Abend.png"));
    EXPECT_EQ(list.MenuCaption(3), QString());
}

TEST(MRUFileList, ShorteningKeepsTheFirstFolderAndTheWholeFileName)
{
    const QString p = QStringLiteral("/home/anna/Bilder/Urlaub/2023/Sommer/strand.png");
    EXPECT_EQ(shortenPath(p, 100), p);
    EXPECT_EQ(shortenPath(p, 40), QStringLiteral("/home/.../Urlaub/2023/Sommer/strand.png"));
    EXPECT_EQ(shortenPath(p, 30), QStringLiteral("/home/.../Sommer/strand.png"));
    EXPECT_EQ(shortenPath(p, 20), QStringLiteral("/home/.../strand.png"));
    EXPECT_EQ(shortenPath(p, 10), QStringLiteral(".../strand.png"));
    const QString longName = QStringLiteral("/a/b/ein sehr langer Dateiname ohne Ende.png");
    EXPECT_EQ(shortenPath(longName, 20),
              QStringLiteral(".../ein sehr langer Dateiname ohne Ende.png"));
    EXPECT_EQ(shortenPath(QStringLiteral("/nur-ein-langer-name.png"), 5),
              QStringLiteral("/nur-ein-langer-name.png"));
}

TEST(MRUFileList, SavedAndLoadedThroughTheSettingsStore)
{
    QTemporaryDir dir;
    const QString ini = dir.filePath(QStringLiteral("s.ini"));
    const QString existing = dir.filePath(QStringLiteral("da.png"));
    writeBytes(existing, {});
    {
        SettingsStore store(ini);
        cMRUFileList list;
        list.setMaxFileCount(6);
        for (int i = 1; i <= 6; ++i)
            list.AddFile(QStringLiteral("/x/%1.png").arg(i));
        list.Save(store);
        EXPECT_EQ(store.Get_Setting(QStringLiteral("Common"), QStringLiteral("RecFile6"), ""),
                  QStringLiteral("/x/1.png"));

        // A shorter list saved later leaves no old entries behind.
        cMRUFileList shorter;
        shorter.AddFile(QStringLiteral("/gone/weg.png"));
        shorter.AddFile(existing);
        shorter.Save(store);
        ASSERT_TRUE(store.sync());
        EXPECT_FALSE(store.contains(QStringLiteral("Common"), QStringLiteral("RecFile3")));
        EXPECT_EQ(store.Get_Setting(QStringLiteral("Common"), QStringLiteral("RecCount"), 0), 2);
        EXPECT_EQ(store.Get_Setting(QStringLiteral("Common"), QStringLiteral("RecMaxCount"), 0), 4);
    }
    SettingsStore store(ini);
    cMRUFileList list;
    list.Load(store);
    ASSERT_EQ(list.FileCount(), 2);
    EXPECT_EQ(list.file(1), existing);
    EXPECT_EQ(list.file(2), QStringLiteral("/gone/weg.png"));
    EXPECT_TRUE(list.FileExists(1));
    EXPECT_FALSE(list.FileExists(2) || list.FileExists(3));

    // The list's own maximum wins over a longer stored list.
    store.Put_Setting(QStringLiteral("Common"), QStringLiteral("RecCount"), 3);
    store.Put_Setting(QStringLiteral("Common"), QStringLiteral("RecFile3"), "/x/3.png");
    cMRUFileList two;
    two.setMaxFileCount(2);
    two.Load(store);
    EXPECT_EQ(two.FileCount(), 2);
}
