// The JASC reader on hand-made lines and on the malformed real palette files.
#include "support/testdata.h"
#include "paint/jascpalette.h"

#include <QDir>
#include <gtest/gtest.h>
#include <map>

using namespace tf;
using Outcome = JascPalette::Outcome;

namespace {

const QString palettes = QStringLiteral(TF_TESTDATA_DIR "/palettes");

JascPalette read(const char *text) { return readJascPalette(QByteArray(text)); }

} // namespace

TEST(JascPalette, ScanningRulesOfAnEntryLine)
{
    const JascPalette p = read("JASC-PAL\n0100\n9\n"
                               "  1 2 3\n"       // leading blanks
                               "4   5  6\n"      // several blanks part numbers once
                               "7 8\n"           // a missing number is 0
                               "9 10 11 12\n"    // the fourth number ends the scan
                               "13 1x4 15\n"     // a non-digit ends the scan, what was read counts
                               "16\t17 18\n"     // so does a tab
                               "\n"              // an empty line is black
                               "19 -20 21\n"
                               "0000255 0 0");
    ASSERT_EQ(p.outcome, Outcome::Read);
    EXPECT_EQ(p.entries, (std::vector<ColorLong>{RGB(1, 2, 3), RGB(4, 5, 6), RGB(7, 8, 0),
                                                 RGB(9, 10, 11), RGB(13, 1, 0), RGB(16, 0, 0),
                                                 RGB(0, 0, 0), RGB(19, 0, 0), RGB(255, 0, 0)}));
}

TEST(JascPalette, HeaderAndLengthRules)
{
    // "JASC" anywhere in line 1, case counting; the count line is not honoured.
    EXPECT_EQ(read("my JASC file\nx\n999\n1 1 1\n").outcome, Outcome::Read);
    EXPECT_EQ(read("Jasc-Pal\n0100\n1\n1 1 1\n").outcome, Outcome::NotJasc);
    EXPECT_EQ(read("JASC-PAL\n0100\n1\n1 1 1\n2 2 2\n").entries.size(), 2u);

    // CR, LF and CR LF all end lines; a final line end adds no entry.
    EXPECT_EQ(read("JASC-PAL\r0100\r2\r1 2 3\r4 5 6\r").entries,
              (std::vector<ColorLong>{RGB(1, 2, 3), RGB(4, 5, 6)}));
    EXPECT_EQ(read("JASC-PAL\r\n0100\r\n2\r\n1 2 3\r\n\r\n").entries,
              (std::vector<ColorLong>{RGB(1, 2, 3), 0}));

    // At most 256 entries.
    QByteArray big("JASC-PAL\n0100\n300\n");
    for (int i = 0; i < 300; ++i)
        big += QByteArray::number(i % 256) + " 0 0\n";
    const JascPalette p = readJascPalette(big);
    ASSERT_EQ(p.entries.size(), 256u);
    EXPECT_EQ(p.entries[255], RGB(255, 0, 0));

    // Too short for the header, or a number above 255: a failure after what was read.
    EXPECT_EQ(read("").outcome, Outcome::Failed);
    const JascPalette shortHeader = read("JASC-PAL\n0100");
    EXPECT_EQ(shortHeader.outcome, Outcome::Failed);
    EXPECT_EQ(shortHeader.failedLine, 3);
    const JascPalette over = read("JASC-PAL\n0100\n3\n1 2 3\n4 256 6\n7 8 9\n");
    EXPECT_EQ(over.outcome, Outcome::Failed);
    EXPECT_EQ(over.failedLine, 5);
    EXPECT_EQ(over.faultNumber, 6);
    EXPECT_EQ(over.entries, std::vector<ColorLong>{RGB(1, 2, 3)});
    EXPECT_EQ(read("JASC-PAL\n0100\n3\n99999999999999999999 0 0\n").outcome, Outcome::Failed);

    EXPECT_EQ(readJascPaletteFile(QStringLiteral("/nonexistent/x.pal")).outcome, Outcome::Failed);
    EXPECT_EQ(readJascPaletteFile(palettes).outcome, Outcome::Failed); // a folder
}

TEST(JascPalette, MalformedFilesAreRefusedOrReadByTheRules)
{
    TF_REQUIRE_TESTDATA();
    struct Expected {
        Outcome outcome;
        size_t entries;
    };
    const std::map<QString, Expected> expected = {
        {QStringLiteral("anypalette-KDE40.colors.out-riff.pal"), {Outcome::NotJasc, 0}},
        {QStringLiteral("anypalette-ios.sketchpalette.out.sc-raw768.pal"), {Outcome::NotJasc, 0}},
        {QStringLiteral("derived-empty-0-bytes.pal"), {Outcome::Failed, 0}},
        {QStringLiteral("derived-pico-8-count16-but-8-entries.pal"), {Outcome::Read, 8}},
        {QStringLiteral("derived-pico-8-crlf-no-final-newline.pal"), {Outcome::Read, 16}},
        {QStringLiteral("derived-pico-8-entry-out-of-range.pal"), {Outcome::Failed, 1}},
        {QStringLiteral("derived-pico-8-header-only.pal"), {Outcome::Read, 0}},
        {QStringLiteral("derived-pico-8-lowercase-header.pal"), {Outcome::NotJasc, 0}},
        {QStringLiteral("derived-pico-8-missing-signature-line.pal"), {Outcome::NotJasc, 0}},
    };
    const QString dir = palettes + QStringLiteral("/malformed");
    const QStringList files = QDir(dir).entryList(QDir::Files);
    for (const auto &[name, e] : expected)
        EXPECT_TRUE(files.contains(name)) << name.toStdString() << " is missing";
    for (const QString &name : files) {
        const JascPalette p = readJascPaletteFile(dir + QLatin1Char('/') + name);
        const auto it = expected.find(name);
        if (it == expected.end())
            continue; // a file added later: reading it without a crash is enough
        EXPECT_EQ(p.outcome, it->second.outcome) << name.toStdString();
        EXPECT_EQ(p.entries.size(), it->second.entries) << name.toStdString();
    }
    const JascPalette crlf = readJascPaletteFile(dir + QStringLiteral("/derived-pico-8-crlf-no-final-newline.pal"));
    const JascPalette good = readJascPaletteFile(palettes + QStringLiteral("/minipixel-pico-8.pal"));
    EXPECT_EQ(crlf.entries, good.entries);
}
