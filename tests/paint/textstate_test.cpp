// The text dialog's state without widgets: text files in their encodings, the text on the
// command line, what a text paint's command repeats and which panels a text type reads.
#include "paint/paintrecord.h"
#include "paint/textstate.h"
#include "paint/typepanels.h"

#include <gtest/gtest.h>

using namespace tf;

TEST(TextFile, TheEncodingIsFoundUtf8FirstThenTheWesternCodePage)
{
    const QString umlauts = QStringLiteral("Größe, Übermaß, Äpfel und Öl");
    EXPECT_EQ(decodeTextFile(umlauts.toUtf8()), umlauts);
    EXPECT_EQ(decodeTextFile("\xEF\xBB\xBF" + umlauts.toUtf8()), umlauts);
    // Windows-1252: Latin-1 plus the typographic signs at 0x80..0x9F.
    EXPECT_EQ(decodeTextFile(QByteArray("Gr\xF6\xDF" "e \x80 \x84Zitat\x93 \x96")),
              QStringLiteral("Größe € „Zitat“ –"));
    // UTF-16 with its byte-order mark, either way round.
    QByteArray le("\xFF\xFE", 2), be("\xFE\xFF", 2);
    for (const QChar c : QStringLiteral("Öl\r\nß")) {
        le.append(char(c.unicode() & 0xFF)).append(char(c.unicode() >> 8));
        be.append(char(c.unicode() >> 8)).append(char(c.unicode() & 0xFF));
    }
    EXPECT_EQ(decodeTextFile(le), QStringLiteral("Öl\r\nß"));
    EXPECT_EQ(decodeTextFile(be), QStringLiteral("Öl\r\nß"));
    EXPECT_EQ(decodeTextFile(QByteArray()), QString());
}

TEST(TextFile, TheCommandLineWritesLineBreaksAsBackslashN)
{
    const QString text = QStringLiteral("Zeile 1\nC:\\Pfad\\neu\r\nEnde");
    EXPECT_EQ(escapeTextArgument(text), QStringLiteral("Zeile 1\\nC:\\\\Pfad\\\\neu\\nEnde"));
    EXPECT_EQ(unescapeTextArgument(escapeTextArgument(text)),
              QStringLiteral("Zeile 1\nC:\\Pfad\\neu\nEnde"));
    // A lone backslash or an unknown escape stays as it stands.
    EXPECT_EQ(unescapeTextArgument(QStringLiteral("a\\xb\\")), QStringLiteral("a\\xb\\"));
    // A tab, which splits a row of a text block, is written "\t".
    EXPECT_EQ(escapeTextArgument(QStringLiteral("Regie\tAnna")), QStringLiteral("Regie\\tAnna"));
    EXPECT_EQ(unescapeTextArgument(QStringLiteral("Regie\\tAnna")), QStringLiteral("Regie\tAnna"));
}

TEST(TextFile, ATextPaintsCommandRepeatsTheTextAndItsColours)
{
    PaintRecord r;
    r.GrafKey = QStringLiteral("TEXT-Textblock");
    r.width = 40;
    r.height = 30;
    r.ColorBack = 0xFFFFFF;
    r.TextFore = RGB(255, 0, 0);
    r.controls = {{ControlKey{QStringLiteral("cmbFontName")}, QStringLiteral("DejaVu Serif")},
                  {ControlKey{QStringLiteral("txtOrthoIn")}, QStringLiteral("Größe\nÖl")}};
    const QStringList args = paintCommandArguments(r);
    const qsizetype text = args.indexOf(QStringLiteral("--text"));
    ASSERT_GE(text, 0);
    EXPECT_EQ(args[text + 1], QStringLiteral("Größe\\nÖl"));
    EXPECT_TRUE(args.contains(QStringLiteral("cmbFontName=DejaVu Serif")));
    const qsizetype fore = args.indexOf(QStringLiteral("--text-fore"));
    ASSERT_GE(fore, 0);
    EXPECT_EQ(args[fore + 1], QStringLiteral("#FF0000"));
    EXPECT_FALSE(args.contains(QStringLiteral("--text-back"))); // white, as at the start
    // The command stays one line.
    EXPECT_FALSE(paintCommandLine(r).contains(QLatin1Char('\n')));
}

TEST(TextFile, TheTextTypesReadTheTextDialogBesideTheirPanel)
{
    for (const char *key : {"TEXT-Dialog", "TEXT-Textblock", "TEXT-StarRotated", "TEXT-Circular",
                            "TEXT-Spiral"}) {
        const QStringList panels = panelsReadBy(QString::fromLatin1(key));
        EXPECT_TRUE(panels.contains(QLatin1String(TextDialogPanelName))) << key;
        EXPECT_EQ(panels.size(), 3) << key;
    }
    EXPECT_FALSE(panelsReadBy(QStringLiteral("Rosetta")).contains(QLatin1String(TextDialogPanelName)));
}
