// The .tvp text format line by line: what is written, what is read back, the header test and
// the tolerant, clamping reader.
#include "files/presentationfile.h"

#include <QByteArrayList>
#include <gtest/gtest.h>

using namespace tf;
using PV = PresentationValue;

namespace {

// A layout of H x V cells whose entries are distinct, so a misplaced field shows.
PicPresentation sample(int H, int V)
{
    PicPresentation p;
    p.source = QStringLiteral("/home/ute/Bilder, Urlaub");
    p.screenW = 1600;
    p.screenH = 1200;
    const int32_t values[] = {1, 0, 1, 1, 0x123456, 0xFFFFFF, 0, H, V, 1, 0, 1, 12, 5, 3, 1, 0, 1};
    std::copy(std::begin(values), std::end(values), p.values.begin());
    int n = -40;
    for (Table3 *t : {&p.ArrCellH, &p.ArrSubH, &p.ArrSubVX})
        t->redim(3, H + 1, V + 1);
    for (Table3 *t : {&p.ArrCellV, &p.ArrSubHY, &p.ArrSubV})
        t->redim(2, H + 1, V + 1);
    for (Table3 *t : {&p.ArrCellH, &p.ArrSubH, &p.ArrSubVX, &p.ArrCellV, &p.ArrSubHY, &p.ArrSubV})
        for (int k = 0; k <= t->upperF(); ++k)
            for (int i = 0; i <= H + 1; ++i)
                for (int j = 0; j <= V + 1; ++j)
                    (*t)(k, i, j) = n++ * 7;
    return p;
}

QList<QByteArray> linesOf(const QByteArray &bytes)
{
    QList<QByteArray> lines = bytes.split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    return lines;
}

void expectSameTables(const PicPresentation &a, const PicPresentation &b)
{
    const Table3 PicPresentation::*tables[] = {
        &PicPresentation::ArrCellH, &PicPresentation::ArrSubH,  &PicPresentation::ArrSubVX,
        &PicPresentation::ArrCellV, &PicPresentation::ArrSubHY, &PicPresentation::ArrSubV};
    for (auto t : tables) {
        const Table3 &x = a.*t, &y = b.*t;
        ASSERT_EQ(x.upperF(), y.upperF());
        ASSERT_EQ(x.upperI(), y.upperI());
        ASSERT_EQ(x.upperJ(), y.upperJ());
        for (int k = 0; k <= x.upperF(); ++k)
            for (int i = 0; i <= x.upperI(); ++i)
                for (int j = 0; j <= x.upperJ(); ++j)
                    ASSERT_EQ(x(k, i, j), y(k, i, j)) << k << "," << i << "," << j;
    }
}

int faultNumberOf(const QByteArray &bytes, QString *description = nullptr)
{
    try {
        parsePresentation(bytes);
    } catch (const Fault &f) {
        if (description) *description = f.description();
        return f.number();
    }
    return 0;
}

} // namespace

TEST(PresentationFile, WritesTheLinesInTheirOrder)
{
    const QList<QByteArray> lines = linesOf(presentationBytes(sample(2, 3)));
    // 21 lines, then 4 * (2+2) * (3+2) lines of block 1 and 3 * 4 * 5 of block 2.
    ASSERT_EQ(lines.size(), 21 + 80 + 60);
    for (const QByteArray &l : lines)
        EXPECT_TRUE(l.endsWith('\r'));
    EXPECT_EQ(lines[0], QByteArray("Tarvelle-Forge-V2.00_DIAMATRIX\r"));
    EXPECT_EQ(lines[1], QByteArray("/home/ute/Bilder, Urlaub\r"));
    EXPECT_EQ(lines[2], QByteArray("1600,1200\r"));
    EXPECT_EQ(lines[7], QByteArray("1193046\r")); // the foreground colour 0x123456
    EXPECT_EQ(lines[10], QByteArray("2\r"));      // H
    EXPECT_EQ(lines[11], QByteArray("3\r"));      // V
    EXPECT_EQ(lines[15], QByteArray("12\r"));     // the margin
    EXPECT_EQ(lines[16], QByteArray("5\r"));      // seconds of a slide
    // The first table line: ArrCellH, ArrSubH, ArrSubVX at (0, 0, 0); then j runs fastest.
    const PicPresentation p = sample(2, 3);
    EXPECT_EQ(lines[21], QByteArray::number(p.ArrCellH(0, 0, 0)) + ',' +
                             QByteArray::number(p.ArrSubH(0, 0, 0)) + ',' +
                             QByteArray::number(p.ArrSubVX(0, 0, 0)) + '\r');
    EXPECT_EQ(lines[22].split(',')[0], QByteArray::number(p.ArrCellH(0, 0, 1)));
    EXPECT_EQ(lines[21 + 80].split(',')[2], QByteArray::number(p.ArrSubV(0, 0, 0)) + '\r');
}

TEST(PresentationFile, ARoundTripGivesTheSameValuesTablesAndBytes)
{
    const PicPresentation p = sample(4, 2);
    const QByteArray bytes = presentationBytes(p);
    const PicPresentation back = parsePresentation(bytes);
    EXPECT_EQ(back.source, p.source);
    EXPECT_EQ(back.screenW, 1600);
    EXPECT_EQ(back.screenH, 1200);
    EXPECT_EQ(back.values, p.values);
    expectSameTables(p, back);
    EXPECT_EQ(presentationBytes(back), bytes);
}

TEST(PresentationFile, TheHeaderTestIgnoresCaseAndRefusesAShortFile)
{
    EXPECT_TRUE(hasPresentationHeader("Tarvelle-Forge-V2.00_DIAMATRIX\r\n/x"));
    EXPECT_TRUE(hasPresentationHeader("tarvelle-forge-v2.00_diamatrix"));
    EXPECT_TRUE(hasPresentationHeader("TARVELLE-FORGE-V2.00_DIAMATRIXtrailing"));
    EXPECT_FALSE(hasPresentationHeader("Tarvelle-Forge-V2.00_DIAMATRI"));
    EXPECT_FALSE(hasPresentationHeader(""));
    EXPECT_FALSE(hasPresentationHeader("Tarvelle-Forge-V2.00_DIAMATRIZ"));
}

TEST(PresentationFile, ReadsPaddedNumbersAndLinesEndingInLineFeedAlone)
{
    QByteArray bytes = presentationBytes(sample(1, 1));
    bytes.replace("\r\n", "\n");
    bytes.replace(",", " , ");
    bytes.replace("\n1\n", "\n 1 \n");
    const PicPresentation back = parsePresentation(bytes);
    expectSameTables(sample(1, 1), back);
    EXPECT_EQ(back.values, sample(1, 1).values);
    EXPECT_EQ(back.source, QStringLiteral("/home/ute/Bilder ,  Urlaub")); // line 2 is taken whole
}

TEST(PresentationFile, OutOfRangeOptionsAreClampedSilently)
{
    QList<QByteArray> lines = linesOf(presentationBytes(sample(1, 1)));
    const char *wild[] = {"7", "-3", "2", "1",    "-5",   "99999999", "0", "1",  "1",
                          "5", "-1", "3", "-250", "9000", "0",        "4", "-4", "12"};
    for (int n = 0; n < 18; ++n)
        lines[3 + n] = QByteArray(wild[n]) + '\r';
    const PicPresentation back = parsePresentation(lines.join('\n') + '\n');
    const int32_t expected[] = {1, 0, 1, 1, 0, 0xFFFFFF, 0, 1, 1, 1, 0, 1, -250, 600, 1, 1, 0, 1};
    for (int n = 0; n < 18; ++n)
        EXPECT_EQ(back.values[size_t(n)], expected[n]) << "line " << n + 4;
}

TEST(PresentationFile, SplitsBeyondTwentyAreReadAsTwentyAndSizeTheBlocks)
{
    QByteArray bytes = presentationBytes(sample(22, 1));
    const PicPresentation back = parsePresentation(bytes);
    EXPECT_EQ(back[PV::H], 20);
    EXPECT_EQ(back.ArrCellH.upperI(), 21);
    EXPECT_EQ(back.ArrSubH.upperI(), 21);
    EXPECT_EQ(back.ArrSubV.upperI(), 21);
    // The first lines of block 1 still line up; the rest is read as far as the bounds reach.
    EXPECT_EQ(back.ArrCellH(0, 0, 0), sample(22, 1).ArrCellH(0, 0, 0));
}

TEST(PresentationFile, AShortFileOrAnOverlargeNumberIsAFaultNamingTheLine)
{
    QString why;
    QByteArray bytes = presentationBytes(sample(1, 1));
    EXPECT_EQ(faultNumberOf(linesOf(bytes).mid(0, 55).join('\n') + '\n', &why), 62);
    EXPECT_EQ(why, QStringLiteral("Die Datei endet vor Zeile 56"));
    EXPECT_EQ(faultNumberOf("Tarvelle-Forge-V2.00_DIAMATRIX\r\n", &why), 62);
    EXPECT_EQ(why, QStringLiteral("Die Datei endet vor Zeile 2"));

    QList<QByteArray> lines = linesOf(bytes);
    lines[10] = "40000\r"; // H is a 16-bit number
    EXPECT_EQ(faultNumberOf(lines.join('\n'), &why), int(Fault::Overflow));
    EXPECT_EQ(why, QStringLiteral("Die Zahl 40000 in Zeile 11 ist zu groß"));
}

TEST(PresentationFile, AFieldThatIsNoNumberReadsAsItsLeadingNumber)
{
    QList<QByteArray> lines = linesOf(presentationBytes(sample(1, 1)));
    lines[16] = "12 Sekunden\r";
    lines[17] = "dick\r";
    const PicPresentation back = parsePresentation(lines.join('\n'));
    EXPECT_EQ(back[PV::Timer], 12);
    EXPECT_EQ(back[PV::Pen], 1); // 0, clamped to 1
}
