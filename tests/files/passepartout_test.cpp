// The passepartout data file byte for byte, its refusals, and the mat drawn round a picture.
#include "support/files.h"
#include "files/passepartout.h"
#include "files/passepartoutfile.h"
#include "files/passepartoutsets.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

PPRecord set(const char *name, int16_t w1, ColorLong c1)
{
    PPRecord r;
    r.name = QString::fromLatin1(name);
    r.sortName = r.name;
    r.width[0] = w1;
    r.colour[0] = c1;
    return r;
}

// A file of one set "Ab" written by hand, field by field.
QByteArray handMadeFile()
{
    QByteArray b;
    b.append("\x0c\x00", 2).append("PPData-Tvl25");
    b.append("\x01\x00\x00\x00", 4);                               // N = 1
    b.append("\x02\x00", 2).append("Ab");                          // the name
    b.append("\xff\xff", 2);                                       // use gradient -1
    b.append("\x05\x00", 2).append("\x06\x00", 2);                 // extra 1, 2
    b.append("\x07\x00\x00\x00", 4).append("\x08\x00\x00\x00", 4); // extra 3, 4
    for (int k = 1; k <= 7; ++k) {
        b.append(char(k * 10)).append('\0');                                  // width k*10
        b.append(char(k)).append(char(0x20)).append(char(0x30)).append('\0'); // colour
    }
    return b;
}

} // namespace

TEST(PassepartoutFile, ReadsEveryFieldInTheOrderOfTheFile)
{
    const PPReadResult r = parsePPData(handMadeFile());
    ASSERT_TRUE(r.read()) << r.message.toStdString();
    ASSERT_EQ(r.table.size(), 1u);
    const PPRecord &p = r.table[0];
    EXPECT_EQ(p.name, QStringLiteral("Ab"));
    EXPECT_EQ(p.sortName, QStringLiteral("Ab"));
    EXPECT_EQ(p.index, 1);
    EXPECT_TRUE(p.valid);
    EXPECT_EQ(p.useGradient, -1);
    EXPECT_EQ(p.extra1, 5);
    EXPECT_EQ(p.extra2, 6);
    EXPECT_EQ(p.extra3, 7);
    EXPECT_EQ(p.extra4, 8);
    EXPECT_EQ(p.width[6], 70);
    EXPECT_EQ(p.colour[6], 0x302007);
    EXPECT_EQ(serializePPData(r.table), handMadeFile());
}

TEST(PassepartoutFile, AMissingFileGivesAnEmptyTableAndIsNoRefusal)
{
    QTemporaryDir dir;
    const PPReadResult r = Read_PPData(ppDataPath(dir.path()));
    EXPECT_EQ(r.status, PPReadStatus::Missing);
    EXPECT_TRUE(r.table.empty());
    EXPECT_FALSE(r.refused());
}

TEST(PassepartoutFile, DeletedAndUnnamedRecordsAreDroppedAndNCountsWhatIsWritten)
{
    PPTable table{set("Eins", 4, 0x0000FF), set("Zwei", 8, 0x00FF00), set("", 2, 0),
                  set("Drei", 3, 0xFF0000)};
    table[1].valid = false;
    const QByteArray bytes = serializePPData(table);
    EXPECT_EQ(bytes.mid(14, 4), QByteArray("\x02\x00\x00\x00", 4));
    const PPReadResult back = parsePPData(bytes);
    ASSERT_TRUE(back.read());
    ASSERT_EQ(back.table.size(), 2u);
    EXPECT_EQ(back.table[0].name, QStringLiteral("Eins"));
    EXPECT_EQ(back.table[1].name, QStringLiteral("Drei"));
    EXPECT_EQ(back.table[1].index, 2);
    // 18 bytes of head, each record 2 + name + 56.
    EXPECT_EQ(bytes.size(), 18 + (2 + 4 + 56) * 2);
}

TEST(PassepartoutFile, ReadAndWriteGiveTheSameBytes)
{
    QTemporaryDir dir;
    const QString path = ppDataPath(dir.filePath(QStringLiteral("neu/ordner")));
    PPTable table{standardPassepartout(), set("Gr\xfcn", 12, 0x00C000)};
    table[0].extra4 = -123456;
    table[1].useGradient = -1;
    ASSERT_TRUE(Write_PPData(path, table).ok());
    const QByteArray first = bytesOf(path);
    const PPReadResult r = Read_PPData(path);
    ASSERT_TRUE(r.read());
    EXPECT_EQ(r.table[1].name, QString::fromLatin1("Gr\xfcn"));
    EXPECT_EQ(r.table[0].extra4, -123456);
    ASSERT_TRUE(Write_PPData(path, r.table).ok());
    EXPECT_EQ(bytesOf(path), first);
}

TEST(PassepartoutFile, AForeignOrDamagedFileIsRefusedWithItsReason)
{
    const QByteArray good = handMadeFile();
    struct Case {
        const char *what;
        QByteArray bytes;
        PPReadStatus status;
        const char *message;
    };
    QByteArray foreign = good;
    foreign[2] = 'Q';
    QByteArray hugeCount = good;
    hugeCount.replace(14, 4, QByteArray("\xff\xff\xff\x7f", 4));
    QByteArray noName = good;
    noName.replace(18, 2, QByteArray("\x00\x00", 2));
    const Case cases[] = {
        {"empty", QByteArray(), PPReadStatus::WrongFormat,
         "Falsches Dateiformat für Passepartouts."},
        {"foreign magic", foreign, PPReadStatus::WrongFormat,
         "Falsches Dateiformat für Passepartouts."},
        {"a picture", QByteArray("\x89PNG\r\n\x1a\n", 8), PPReadStatus::WrongFormat,
         "Falsches Dateiformat für Passepartouts."},
        {"no count", good.left(16), PPReadStatus::Damaged,
         "Die Passepartout-Datei ist beschädigt (die Anzahl fehlt). Sie bleibt, wie sie ist."},
        {"huge count", hugeCount, PPReadStatus::Damaged,
         "Die Passepartout-Datei ist beschädigt (2147483647 Sets angegeben). Sie bleibt, wie sie "
         "ist."},
        {"cut short", good.left(good.size() - 1), PPReadStatus::Damaged,
         "Die Passepartout-Datei ist beschädigt (die Datei endet in Set 1). Sie bleibt, wie sie "
         "ist."},
        {"empty name", noName, PPReadStatus::Damaged,
         "Die Passepartout-Datei ist beschädigt (Set 1 ohne Namen). Sie bleibt, wie sie ist."},
        {"trailing bytes", good + "xyz", PPReadStatus::Damaged,
         "Die Passepartout-Datei ist beschädigt (3 Bytes nach dem letzten Set). Sie bleibt, wie "
         "sie ist."},
    };
    for (const Case &c : cases) {
        const PPReadResult r = parsePPData(c.bytes);
        EXPECT_EQ(r.status, c.status) << c.what;
        EXPECT_TRUE(r.refused()) << c.what;
        EXPECT_TRUE(r.table.empty()) << c.what;
        EXPECT_EQ(r.message, QString::fromUtf8(c.message)) << c.what;
    }
    // Reading leaves the damaged file as it was.
    QTemporaryDir dir;
    const QString path = ppDataPath(dir.path());
    writeBytes(path, hugeCount);
    EXPECT_TRUE(Read_PPData(path).refused());
    EXPECT_EQ(bytesOf(path), hugeCount);
}

TEST(PassepartoutFile, SortsByNameWithoutRegardToCase)
{
    PPTable t{set("beta", 1, 0), set("Alpha", 1, 0), set("Beta", 1, 0), set("gamma", 1, 0)};
    Sort_PPData(t);
    QStringList names;
    for (const auto &r : t)
        names << r.name;
    EXPECT_EQ(names, (QStringList{"Alpha", "Beta", "beta", "gamma"}));
    EXPECT_EQ(findPassepartout(t, QStringLiteral("GAMMA")), 3);
    t[3].valid = false;
    EXPECT_EQ(findPassepartout(t, QStringLiteral("gamma")), -1);
    EXPECT_TRUE(storableName(QString::fromLatin1("Gr\xfc\xdf")));
    EXPECT_FALSE(storableName(QStringLiteral("Ελλάδα")));
}

TEST(Passepartout, FramesLieFromTheOutermostInwardsAroundThePicture)
{
    QImage pic(4, 2, QImage::Format_RGB32);
    pic.fill(qRgb(9, 9, 9));
    PPRecord r;
    r.width = {1, 2, 0, 0, 0, 0, 1};
    r.colour = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(1, 2, 3), 0, 0, 0, RGB(0, 0, 255)};
    const QImage out = Draw_Passepartout(pic, r);
    ASSERT_EQ(out.size(), QSize(4 + 8, 2 + 8));
    EXPECT_EQ(out.pixel(0, 0), qRgb(0, 0, 255)); // frame 7, outermost
    EXPECT_EQ(out.pixel(11, 9), qRgb(0, 0, 255));
    EXPECT_EQ(out.pixel(1, 5), qRgb(0, 255, 0)); // frame 2
    EXPECT_EQ(out.pixel(2, 2), qRgb(0, 255, 0));
    EXPECT_EQ(out.pixel(3, 3), qRgb(255, 0, 0)); // frame 1, next to the picture
    EXPECT_EQ(out.pixel(8, 6), qRgb(255, 0, 0));
    EXPECT_EQ(out.pixel(4, 4), qRgb(9, 9, 9)); // the picture
    EXPECT_EQ(out.pixel(7, 5), qRgb(9, 9, 9));
}

TEST(Passepartout, AGradientBandEndsOnItsOwnColour)
{
    QImage pic(1, 1, QImage::Format_RGB32);
    pic.fill(Qt::white);
    PPRecord r;
    r.useGradient = -1;
    r.width = {4, 0, 0, 0, 0, 0, 2};
    r.colour = {RGB(100, 10, 0), 0, 0, 0, 0, 0, RGB(0, 50, 0)};
    const QImage out = Draw_Passepartout(pic, r);
    ASSERT_EQ(out.width(), 13);
    // The outermost band has no band before it: its own colour throughout.
    EXPECT_EQ(out.pixel(0, 6), qRgb(0, 50, 0));
    EXPECT_EQ(out.pixel(1, 6), qRgb(0, 50, 0));
    // Frame 1 runs from (0,50,0) to (100,10,0) in four rings: 25 and 10 a step.
    EXPECT_EQ(out.pixel(2, 6), qRgb(25, 40, 0));
    EXPECT_EQ(out.pixel(3, 6), qRgb(50, 30, 0));
    EXPECT_EQ(out.pixel(4, 6), qRgb(75, 20, 0));
    EXPECT_EQ(out.pixel(5, 6), qRgb(100, 10, 0));
    EXPECT_EQ(out.pixel(6, 6), qRgb(255, 255, 255));
}

TEST(Passepartout, ThePictureIsScaledDownIntoTheLimitsOnly)
{
    QImage pic(400, 200, QImage::Format_RGB32);
    pic.fill(qRgb(10, 20, 30));
    EXPECT_EQ(fitIntoLimits(pic, 100, 0).size(), QSize(100, 50));
    EXPECT_EQ(fitIntoLimits(pic, 0, 40).size(), QSize(80, 40));
    EXPECT_EQ(fitIntoLimits(pic, 1000, 1000).size(), QSize(400, 200));
    EXPECT_EQ(fitIntoLimits(pic, 0, 0).size(), QSize(400, 200));
    EXPECT_EQ(fitIntoLimits(pic, 100, 0).pixel(50, 25), qRgb(10, 20, 30));
}

TEST(PassepartoutSets, AMissingFileGivesTheNewEntryAndStandardRowsOnly)
{
    QTemporaryDir dir;
    PassepartoutSets sets(ppDataPath(dir.path()));
    EXPECT_EQ(sets.load().status, PPReadStatus::Missing);
    EXPECT_EQ(sets.rows(), (QStringList{"<-- Neuer Eintrag -->", "+ Standard"}));
    EXPECT_EQ(sets.recordOfRow(1), standardPassepartout());
}

TEST(PassepartoutSets, ApplyingChecksTheNameAndTheWidthsThenStoresSorted)
{
    QTemporaryDir dir;
    PassepartoutSets sets(ppDataPath(dir.path()));
    sets.load();
    PPRecord f = set("  ", 5, 0x123456);
    EXPECT_EQ(sets.apply(0, f).error,
              QStringLiteral("Geben Sie bitte einen Namen für das neue Set ein."));
    f.name = QStringLiteral(" Zebra ");
    f.width = {};
    EXPECT_EQ(sets.apply(0, f).error, QStringLiteral("Sie haben keine Werte eingegeben!"));
    f.width[6] = 2;
    EXPECT_EQ(sets.apply(0, f).row, 2);
    f.name = QStringLiteral("Affe");
    EXPECT_EQ(sets.apply(1, f).row, 2); // the standard row stores a new set too
    EXPECT_EQ(sets.rows(), (QStringList{"<-- Neuer Eintrag -->", "+ Standard", "Affe", "Zebra"}));
    f.name = QStringLiteral("zebra");
    EXPECT_EQ(sets.apply(0, f).error, QStringLiteral("Name existiert schon!"));
    EXPECT_EQ(sets.apply(2, f).error,
              QStringLiteral("Name existiert schon!")); // renaming onto another
    f.name = QString();
    EXPECT_EQ(sets.apply(2, f).error,
              QStringLiteral("Geben Sie bitte einen Namen für das Set ein."));
    f.name = QStringLiteral("Yak");
    EXPECT_EQ(sets.apply(2, f).row, 2); // "Affe" renamed, sorted again
    EXPECT_EQ(sets.rows().mid(2), (QStringList{"Yak", "Zebra"}));

    // A deleted set leaves the list at once and the file at the save.
    EXPECT_FALSE(sets.remove(1));
    EXPECT_TRUE(sets.remove(3));
    EXPECT_EQ(sets.rows().mid(2), (QStringList{"Yak"}));
    EXPECT_EQ(sets.save().status, PassepartoutSets::SaveStatus::Saved);
    const PPReadResult back = Read_PPData(sets.path());
    ASSERT_EQ(back.table.size(), 1u);
    EXPECT_EQ(back.table[0].name, QStringLiteral("Yak"));
    EXPECT_EQ(back.table[0].width[6], 2);
}

TEST(PassepartoutSets, ARefusedFileIsOverwrittenOnlyWithConsent)
{
    QTemporaryDir dir;
    const QString path = ppDataPath(dir.path());
    writeBytes(path, "not a passepartout file");
    PassepartoutSets sets(path);
    EXPECT_EQ(sets.load().status, PPReadStatus::WrongFormat);
    EXPECT_TRUE(sets.fileRefused());
    EXPECT_TRUE(sets.apply(0, set("Neu", 3, 0)).ok());
    const auto asked = sets.save();
    EXPECT_EQ(asked.status, PassepartoutSets::SaveStatus::NeedsConsent);
    EXPECT_TRUE(asked.message.startsWith(QStringLiteral("Die Datei ")));
    EXPECT_EQ(bytesOf(path), QByteArray("not a passepartout file"));
    EXPECT_EQ(sets.save(true).status, PassepartoutSets::SaveStatus::Saved);
    EXPECT_TRUE(Read_PPData(path).read());
}
