// The photo source list: the directory walk with its extension rule, its order and its limit.
#include "paint/picsourcelist.h"

#include "core/yield.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

void touch(const QString &path)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << path.toStdString();
}

QStringList names(const QStringList &paths, const QString &root)
{
    QStringList out;
    for (const QString &p : paths)
        out << QDir(root).relativeFilePath(p);
    return out;
}

struct PicSourceListTest : ::testing::Test {
    QTemporaryDir dir;
    QString root;
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        root = dir.path();
        QDir(root).mkpath(QStringLiteral("b_sub/deeper"));
        for (const char *n : {"c.JPG", "a.jpeg", "B.png", "d.txt", "e.Bmp", "f.gif", "g.tiff",
                              "jpg", "b_sub/x.jpg", "b_sub/deeper/y.PNG", "h.jpg.txt"})
            touch(root + QLatin1Char('/') + QLatin1String(n));
    }
};

struct CountingYield : YieldHook {
    int calls = 0;
    int stopAt = -1;
    bool yield() override { return ++calls == stopAt; }
};

} // namespace

TEST_F(PicSourceListTest, TakesThePictureExtensionsInNameOrderAndEntersDirectoriesWhereTheyStand)
{
    QStringList list;
    int32_t count = 0;
    EXPECT_TRUE(xLib_DirRekurs(list, root, QStringLiteral("*.*"), false, true, count));
    EXPECT_EQ(names(list, root),
              (QStringList{"a.jpeg", "B.png", "c.JPG", "e.Bmp", "f.gif"}));
    EXPECT_EQ(count, 5);

    list.clear();
    count = 0;
    CountingYield yield;
    EXPECT_TRUE(xLib_DirRekurs(list, root, QStringLiteral("*.*"), true, true, count, &yield));
    EXPECT_EQ(names(list, root), (QStringList{"a.jpeg", "B.png", "b_sub/deeper/y.PNG",
                                              "b_sub/x.jpg", "c.JPG", "e.Bmp", "f.gif"}));
    EXPECT_EQ(count, 7);
    EXPECT_EQ(yield.calls, 3) << "once for each level";

    // Without the picture rule every file counts.
    list.clear();
    count = 0;
    xLib_DirRekurs(list, root, QStringLiteral("*.*"), false, false, count);
    EXPECT_EQ(count, 9);
}

TEST_F(PicSourceListTest, StopsGrowingAtTheLimitWithoutAWordAndAStopEndsTheWalk)
{
    QStringList list;
    int32_t count = 0;
    EXPECT_TRUE(xLib_DirRekurs(list, root, QStringLiteral("*.*"), true, true, count, nullptr, 3));
    EXPECT_EQ(names(list, root), (QStringList{"a.jpeg", "B.png", "b_sub/deeper/y.PNG"}));
    EXPECT_EQ(count, 3);
    EXPECT_EQ(PicSourceList::MaxPicCount, 32767);

    // A count already at the limit takes nothing more.
    list.clear();
    count = 32767;
    xLib_DirRekurs(list, root, QStringLiteral("*.*"), true, true, count);
    EXPECT_TRUE(list.isEmpty());

    list.clear();
    count = 0;
    CountingYield stop;
    stop.stopAt = 2;
    EXPECT_FALSE(xLib_DirRekurs(list, root, QStringLiteral("*.*"), true, true, count, &stop));
    EXPECT_EQ(names(list, root), (QStringList{"a.jpeg", "B.png"}));
}

TEST(PicSourceList, KeepsItsScanForTheSameSourceAndMarksUsedPictures)
{
    PicSourceList l;
    EXPECT_FALSE(l.holds(QString(), false));
    l.ListPicDir = QStringList{"/p/a.jpg", "/p/b.jpg", "/p/c.jpg"};
    l.PicCount = 3;
    l.LastSource = QStringLiteral("/p");
    l.ListValid = true;
    l.resetUsed();
    EXPECT_EQ(l.UsedMap.size(), 4u) << "0..PicCount";
    EXPECT_TRUE(l.holds(QStringLiteral("/p"), false));
    EXPECT_FALSE(l.holds(QStringLiteral("/p"), true));
    EXPECT_FALSE(l.holds(QStringLiteral("/q"), false));
    l.UsedMap[0] = l.UsedMap[2] = 1;
    EXPECT_EQ(l.usedCount(), 2);
    l.resetUsed();
    EXPECT_EQ(l.usedCount(), 0);
    l.clear();
    EXPECT_EQ(l.PicCount, 0);
    EXPECT_FALSE(l.ListValid);
}

TEST(PicSourceList, PictureNamesByTheirUpperCasedEnd)
{
    for (const char *yes : {"a.jpg", "A.JPG", "x.Jpeg", "y.png", "z.bmp", "q.GIF", ".jpg"})
        EXPECT_TRUE(isListedPictureName(QLatin1String(yes))) << yes;
    for (const char *no : {"jpg", "a.jpe", "a.tif", "a.png.bak", "a.webp", ""})
        EXPECT_FALSE(isListedPictureName(QLatin1String(no))) << no;
}
