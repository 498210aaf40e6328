// `paint PIC-Mosaik --source ...` as the built program: a mosaic of a folder of photos that
// its recipe paints again byte for byte, the Superformat at its size, and a missing or empty
// source ending with the program's message and exit code 2, the output file untouched.
#include "forgeprocess.h"

#include <QDir>
#include <QFile>
#include <QImage>

using forgetest::forge;

namespace {

struct CliPicMosaik : ::testing::Test {
    QTemporaryDir dir;
    QString photos;
    void SetUp() override
    {
        photos = dir.filePath(QStringLiteral("photos"));
        QDir().mkpath(photos);
        const QColor colours[] = {Qt::red, Qt::darkGreen, Qt::blue, Qt::darkYellow, Qt::cyan};
        int i = 0;
        for (const QColor &c : colours) {
            QImage img(160 + 20 * i, 120 + 10 * i, QImage::Format_RGB32);
            img.fill(c);
            ASSERT_TRUE(img.save(QDir(photos).filePath(QStringLiteral("p%1.png").arg(i++))));
        }
    }
    QStringList mosaic(const QString &source, const QString &out)
    {
        return {QStringLiteral("paint"), QStringLiteral("PIC-Mosaik"), QStringLiteral("--size"),
                QStringLiteral("300x200"), QStringLiteral("--seed"), QStringLiteral("4"),
                QStringLiteral("--source"), source, QStringLiteral("--lang"), QStringLiteral("en"),
                QStringLiteral("-o"), out};
    }
};

} // namespace

TEST_F(CliPicMosaik, PaintsAMosaicOfTheFolderThatItsRecipePaintsAgain)
{
    const QString png = dir.filePath(QStringLiteral("mosaic.png"));
    const auto r = forge(mosaic(photos, png));
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QImage first(png);
    ASSERT_EQ(first.size(), QSize(300, 200));
    // Not one colour: the frames hold different photos.
    EXPECT_NE(first.pixel(10, 10), first.pixel(290, 190));

    const QString again = dir.filePath(QStringLiteral("again.png"));
    const auto repeated =
        forge({QStringLiteral("paint"), QStringLiteral("--recipe"), png, QStringLiteral("-o"), again});
    ASSERT_EQ(repeated.code, 0) << repeated.err.toStdString();
    EXPECT_EQ(QImage(again), first);

    const QString super = dir.filePath(QStringLiteral("super.png"));
    const auto big = forge({QStringLiteral("paint"), QStringLiteral("PIC-MosaikSuper"),
                            QStringLiteral("--size"), QStringLiteral("900x500"),
                            QStringLiteral("--seed"), QStringLiteral("2"),
                            QStringLiteral("--set"), QStringLiteral("XPicMosaik_UseSmallPics(0)=1"),
                            QStringLiteral("--source"), photos, QStringLiteral("-o"), super});
    ASSERT_EQ(big.code, 0) << big.err.toStdString();
    EXPECT_EQ(QImage(super).size(), QSize(900, 500));
}

TEST_F(CliPicMosaik, AMissingOrEmptySourceEndsWithItsMessageAndExitCode2)
{
    const QString out = dir.filePath(QStringLiteral("keep.png"));
    QFile before(out);
    ASSERT_TRUE(before.open(QIODevice::WriteOnly));
    before.write("what was there");
    before.close();

    const QString empty = dir.filePath(QStringLiteral("empty"));
    QDir().mkpath(empty);
    auto r = forge(mosaic(empty, out));
    EXPECT_EQ(r.code, 2);
    EXPECT_TRUE(r.err.contains(QStringLiteral("No valid pictures in ") + empty)) << r.err.toStdString();

    r = forge({QStringLiteral("paint"), QStringLiteral("PIC-Mosaik"), QStringLiteral("--lang"),
               QStringLiteral("en"), QStringLiteral("-o"), out});
    EXPECT_EQ(r.code, 2);
    EXPECT_TRUE(r.err.contains(QStringLiteral("Please set a picture directory first!")))
        << r.err.toStdString();

    r = forge({QStringLiteral("paint"), QStringLiteral("Circles"), QStringLiteral("--source"),
               photos, QStringLiteral("-o"), out});
    EXPECT_EQ(r.code, 2);

    QFile after(out);
    ASSERT_TRUE(after.open(QIODevice::ReadOnly));
    EXPECT_EQ(after.readAll(), QByteArray("what was there"));
}
