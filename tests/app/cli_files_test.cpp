// The command line reads and writes pictures through the files pipeline.
#include "forgeprocess.h"
#include "support/testdata.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using forgetest::forge;
using ForgeRun = forgetest::Outcome;

} // namespace

TEST(CliFiles, ARecipeWrittenIntoAPngRepaintsTheSameBytes)
{
    QTemporaryDir dir;
    const QString a = dir.filePath(QStringLiteral("a.png")), b = dir.filePath(QStringLiteral("b.png"));
    ASSERT_EQ(forge({QStringLiteral("paint"), QStringLiteral("Backgroundcolor"), QStringLiteral("--seed"),
                     QStringLiteral("11"), QStringLiteral("--size"), QStringLiteral("64x48"), QStringLiteral("-o"), a})
                  .code,
              0);
    const ForgeRun recipe = forge({QStringLiteral("recipe"), a});
    ASSERT_EQ(recipe.code, 0) << recipe.err.toStdString();
    EXPECT_TRUE(recipe.out.startsWith(QStringLiteral("tarvelle-forge paint Backgroundcolor --size 64x48 ")));
    EXPECT_TRUE(recipe.out.trimmed().endsWith(QStringLiteral("--seed 11")));

    ASSERT_EQ(forge({QStringLiteral("paint"), QStringLiteral("--recipe"), a, QStringLiteral("-o"), b}).code, 0);
    EXPECT_EQ(bytesOf(b), bytesOf(a));

    // At another size, into a JPEG that carries the recipe in its comment.
    const QString c = dir.filePath(QStringLiteral("c.jpg"));
    ASSERT_EQ(forge({QStringLiteral("paint"), QStringLiteral("--recipe"), a, QStringLiteral("--size"),
                     QStringLiteral("30x20"), QStringLiteral("-o"), c})
                  .code,
              0);
    EXPECT_TRUE(forge({QStringLiteral("recipe"), c}).out.contains(QStringLiteral("--size 30x20")));
}

TEST(CliFiles, CorruptInputEndsWithTheMessageAndWritesNothing)
{
    TF_REQUIRE_TESTDATA();
    QTemporaryDir dir;
    const QString out = dir.filePath(QStringLiteral("out.png"));
    const ForgeRun r = forge({QStringLiteral("paint"), QStringLiteral("Backgroundcolor"), QStringLiteral("--lang"),
                         QStringLiteral("en"), QStringLiteral("--over"),
                         testdataPath(QStringLiteral("images/png/bad/xcrn0g04.png")), QStringLiteral("-o"), out});
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("Corrupt image"))) << r.err.toStdString();
    EXPECT_TRUE(QDir(dir.path()).entryList(QDir::Files).isEmpty());

    const ForgeRun none = forge({QStringLiteral("recipe"), testdataPath(QStringLiteral("images/png/good/basn2c08.png"))});
    EXPECT_EQ(none.code, 1);
}

TEST(CliFiles, KeepSizeKeepsALargeInputAtItsOwnSize)
{
    QTemporaryDir dir;
    const QString big = dir.filePath(QStringLiteral("big.png"));
    ASSERT_EQ(forge({QStringLiteral("paint"), QStringLiteral("Backgroundcolor"), QStringLiteral("--seed"),
                     QStringLiteral("1"), QStringLiteral("--size"), QStringLiteral("2000x1500"), QStringLiteral("-o"), big})
                  .code,
              0);
    const QString boxed = dir.filePath(QStringLiteral("boxed.bmp")), kept = dir.filePath(QStringLiteral("kept.bmp"));
    const QStringList over{QStringLiteral("paint"), QStringLiteral("Backgroundcolor"), QStringLiteral("--seed"),
                           QStringLiteral("1"), QStringLiteral("--transparency"), QStringLiteral("50"),
                           QStringLiteral("--over"), big};
    ASSERT_EQ(forge(over + QStringList{QStringLiteral("-o"), boxed}).code, 0);
    ASSERT_EQ(forge(over + QStringList{QStringLiteral("--keep-size"), QStringLiteral("-o"), kept}).code, 0);
    EXPECT_EQ(QImage(boxed).size(), QSize(1600, 1200));
    EXPECT_EQ(QImage(kept).size(), QSize(2000, 1500));
}
