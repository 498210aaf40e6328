// `tarvelle-forge gallery` and the gradient types on the command line, run as the built
// program.
#include "forgeprocess.h"
#include "support/testdata.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using forgetest::forge;
using forgetest::Outcome;

// Splits a command line of the index page into its arguments (single quotes as the shell).
QStringList shellWords(const QString &line)
{
    QStringList words;
    QString word;
    bool quoted = false, any = false;
    for (const QChar c : line) {
        if (c == QLatin1Char('\'')) {
            quoted = !quoted;
            any = true;
        } else if (c == QLatin1Char(' ') && !quoted) {
            if (any) words << word;
            word.clear();
            any = false;
        } else {
            word += c;
            any = true;
        }
    }
    if (any) words << word;
    return words;
}

} // namespace

TEST(Gallery, PaintsEveryTypeOfAGroupAndItsPageRepeatsEachWithTheSameBytes)
{
    QTemporaryDir dir;
    const Outcome r = forge({QStringLiteral("gallery"), QStringLiteral("-o"), dir.path(),
                         QStringLiteral("--group"), QStringLiteral("5"), QStringLiteral("--size"),
                         QStringLiteral("48x32"), QStringLiteral("--seed"), QStringLiteral("9")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QString page = QString::fromUtf8(bytesOf(QDir(dir.path()).filePath(QStringLiteral("index.html"))));
    ASSERT_FALSE(page.isEmpty());
    EXPECT_TRUE(page.contains(QStringLiteral("Neonbalken vertikal")));
    EXPECT_TRUE(page.contains(QStringLiteral("Neonbars vertical")));
    EXPECT_FALSE(page.contains(QStringLiteral("Backgroundcolor")));
    const QStringList pictures = QDir(dir.path()).entryList({QStringLiteral("*.png")});
    EXPECT_EQ(pictures.size(), 22); // every type of the group
    const QImage neon(QDir(dir.path()).filePath(QStringLiteral("Neon_vertical.png")));
    EXPECT_EQ(neon.size(), QSize(48, 32));

    // The command of "Sky gradient", run in another folder, paints the same picture.
    static const QRegularExpression code(QStringLiteral("<code>(tarvelle-forge paint "
                                                        "&#x27;Sky gradient&#x27;[^<]*|"
                                                        "tarvelle-forge paint 'Sky gradient'[^<]*)"
                                                        "</code>"));
    const auto m = code.match(page);
    ASSERT_TRUE(m.hasMatch()) << page.toStdString();
    QString line = m.captured(1);
    line.replace(QLatin1String("&#x27;"), QLatin1String("'")).replace(QLatin1String("&amp;"),
                                                                       QLatin1String("&"));
    QStringList args = shellWords(line).mid(1);
    QTemporaryDir again;
    const Outcome p = forge(args, {}, again.path());
    ASSERT_EQ(p.code, 0) << p.err.toStdString() << line.toStdString();
    const QImage a(QDir(dir.path()).filePath(QStringLiteral("Sky_gradient.png")));
    ASSERT_FALSE(a.isNull());
    EXPECT_EQ(QImage(QDir(again.path()).filePath(QStringLiteral("Sky_gradient.png"))), a);
}

// Types that rework the picture that stands are shown over a painted one, and a Superformat
// type shows its surface: neither may come out as the cleared white picture.
TEST(Gallery, ShowsReworkingAndSuperformatTypesOverSomethingPainted)
{
    const auto isFlat = [](const QImage &picture) {
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) != picture.pixel(0, 0)) return false;
        return true;
    };
    for (const char *group : {"1", "2"}) {
        QTemporaryDir dir;
        const Outcome r = forge({QStringLiteral("gallery"), QStringLiteral("-o"), dir.path(),
                                 QStringLiteral("--group"), QString::fromLatin1(group),
                                 QStringLiteral("--size"), QStringLiteral("160x128"),
                                 QStringLiteral("--seed"), QStringLiteral("4")});
        ASSERT_EQ(r.code, 0) << r.err.toStdString();
        const QString file = QString::fromLatin1(group) == QLatin1String("1")
                                 ? QStringLiteral("Bitblt-Kacheln.png")
                                 : QStringLiteral("ART-MondrianSuper.png");
        const QImage picture(QDir(dir.path()).filePath(file));
        ASSERT_FALSE(picture.isNull()) << file.toStdString();
        EXPECT_FALSE(isFlat(picture)) << file.toStdString();
    }
}

// With a folder of photos (its sub-folders walked) the photo types are in the gallery; other
// types are not told about the photos.
TEST(Gallery, WithPhotosThePhotoTypesPaintFromThem)
{
    TF_REQUIRE_TESTDATA();
    QTemporaryDir dir;
    const Outcome r = forge({QStringLiteral("gallery"), QStringLiteral("-o"), dir.path(),
                             QStringLiteral("--group"), QStringLiteral("2"),
                             QStringLiteral("--source"), testdataPath(QStringLiteral("photos")),
                             QStringLiteral("--size"), QStringLiteral("160x128")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    for (const char *file : {"PIC-Mosaik.png", "Photo-CUBE.png", "Filled-Triangles.png"})
        EXPECT_FALSE(QImage(QDir(dir.path()).filePath(QString::fromLatin1(file))).isNull()) << file;
}

TEST(Gallery, WithoutAFolderItIsBadUsage)
{
    const Outcome r = forge({QStringLiteral("gallery"), QStringLiteral("--lang"), QStringLiteral("en")});
    EXPECT_EQ(r.code, 2);
    EXPECT_TRUE(r.err.contains(QStringLiteral("The folder is missing (-o FOLDER)."))) << r.err.toStdString();
}

TEST(GradientControls, TheChromoTypeListsItsPanelAndTakesItsSettings)
{
    const Outcome c = forge({QStringLiteral("controls"), QStringLiteral("Chromo-Steps"),
                         QStringLiteral("--lang"), QStringLiteral("en")});
    ASSERT_EQ(c.code, 0);
    EXPECT_TRUE(c.out.contains(QStringLiteral("feat_24Chromo\tChromo filter")));
    EXPECT_TRUE(c.out.contains(QStringLiteral("scrollProzChromo\tvalue\t50\t0..100\tBand width")));
    QTemporaryDir dir;
    const QString out = QDir(dir.path()).filePath(QStringLiteral("c.png"));
    const Outcome p = forge({QStringLiteral("paint"), QStringLiteral("Chromo-Steps"),
                         QStringLiteral("--size"), QStringLiteral("20x10"), QStringLiteral("--fore"),
                         QStringLiteral("#102030"), QStringLiteral("--set"),
                         QStringLiteral("scrollProzChromo=0"), QStringLiteral("--seed"),
                         QStringLiteral("1"), QStringLiteral("-o"), out});
    ASSERT_EQ(p.code, 0) << p.err.toStdString();
    const QImage image(out);
    EXPECT_EQ(image.pixel(7, 0), qRgb(0x10, 0x20, 0x30));
    EXPECT_EQ(image.pixel(7, 1), qRgb(255, 255, 255));
}
