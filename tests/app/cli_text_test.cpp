// The text types on the command line: the text given directly or from a file in its
// encoding, the font and its size, and the recipe that paints the same text again.
#include "forgeprocess.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using forgetest::forge;

namespace {

QString in(const QTemporaryDir &dir, const char *name) { return dir.filePath(QString::fromLatin1(name)); }

int inkPixels(const QImage &img)
{
    int n = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if ((img.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF) ++n;
    return n;
}

} // namespace

TEST(CliText, ATextBlockWithUmlautsPaintsAndItsRecipePaintsItAgain)
{
    QTemporaryDir dir;
    const QStringList common{QStringLiteral("paint"), QStringLiteral("TEXT-Textblock"),
                             QStringLiteral("--font"), QStringLiteral("DejaVu Sans"),
                             QStringLiteral("--font-size"), QStringLiteral("20"),
                             QStringLiteral("--text-fore"), QStringLiteral("#203080"),
                             QStringLiteral("--size"), QStringLiteral("320x120"),
                             QStringLiteral("--seed"), QStringLiteral("5")};
    const auto a = forge(common + QStringList{QStringLiteral("--text"),
                                              QStringLiteral("Größe, Übermaß,\\nÄpfel und Öl"),
                                              QStringLiteral("-o"), in(dir, "a.png")});
    ASSERT_EQ(a.code, 0) << a.err.toStdString();
    const QImage painted(in(dir, "a.png"));
    EXPECT_GT(inkPixels(painted), 200);

    const auto recipe = forge({QStringLiteral("recipe"), in(dir, "a.png")});
    ASSERT_EQ(recipe.code, 0);
    EXPECT_TRUE(recipe.out.contains(QStringLiteral("--text 'Größe, Übermaß,\\nÄpfel und Öl'")))
        << recipe.out.toStdString();
    EXPECT_TRUE(recipe.out.contains(QStringLiteral("--text-fore '#203080'")));
    ASSERT_EQ(forge({QStringLiteral("paint"), QStringLiteral("--recipe"), in(dir, "a.png"),
                     QStringLiteral("-o"), in(dir, "b.png")})
                  .code,
              0);
    EXPECT_EQ(QImage(in(dir, "b.png")), painted);

    // The same text from a file in the Western 8-bit encoding paints the same picture.
    writeBytes(in(dir, "text.txt"), "Gr\xF6\xDF" "e, \xDC" "berma\xDF,\r\n\xC4pfel und \xD6l\r\n");
    const auto fromFile = forge(common + QStringList{QStringLiteral("--text-file"), in(dir, "text.txt"),
                                                     QStringLiteral("-o"), in(dir, "c.png")});
    ASSERT_EQ(fromFile.code, 0) << fromFile.err.toStdString();
    EXPECT_EQ(QImage(in(dir, "c.png")), painted);
}

TEST(CliText, AMissingTextFileIsAUsageErrorThatNamesIt)
{
    QTemporaryDir dir;
    const auto r = forge({QStringLiteral("paint"), QStringLiteral("TEXT-Dialog"),
                          QStringLiteral("--text-file"), in(dir, "nichts.txt"), QStringLiteral("-o"),
                          in(dir, "x.png")});
    EXPECT_EQ(r.code, 2);
    EXPECT_TRUE(r.err.contains(in(dir, "nichts.txt"))) << r.err.toStdString();
    EXPECT_FALSE(QFile::exists(in(dir, "x.png")));
}

TEST(CliText, TheTextDialogsFieldsAreControlsOfTheTextTypes)
{
    const auto r = forge({QStringLiteral("controls"), QStringLiteral("TEXT-Circular")});
    ASSERT_EQ(r.code, 0);
    for (const char *name : {"txtOrthoIn", "cmbFontName", "txtFontSize", "XFntAntiAlias",
                             "cmbShadeThickness", "XText_Mixfonts", "TCW1(0)", "scrollQFL1"})
        EXPECT_TRUE(r.out.contains(QString::fromLatin1(name))) << name;
}
