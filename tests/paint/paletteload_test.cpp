// Palette loads into the colour state: files chosen by the user and the system palettes.
#include "support/files.h"
#include "support/testdata.h"
#include "paint/paletteload.h"

#include "core/picturebox.h"
#include "paint/jascpalette.h"
#include "paint/session.h"
#include "paint/systempalettes.h"

#include <QDir>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>

using namespace tf;

namespace {

const QString palettes = QStringLiteral(TF_TESTDATA_DIR "/palettes");
const QString errorText = QStringLiteral("Palette file error or not there");

ColorLong swapped(ColorLong c) { return RGB(BlueOf(c), GreenOf(c), RedOf(c)); }

struct LoadFixture : ::testing::Test {
    Session s;
    ScriptedPrompter prompter;
    QTemporaryDir dir;

    LoadFixture() { s.setPrompter(&prompter); }

    QString write(const char *name, const QByteArray &text)
    {
        const QString path = dir.filePath(QLatin1String(name));
        writeBytes(path, text);
        return path;
    }
};

} // namespace

TEST_F(LoadFixture, AFileTurnsTheDialogOverToThePalette)
{
    TF_REQUIRE_TESTDATA();
    PictureBox strip(QStringLiteral("picPal256"), 255, 14);
    strip.setAutoRedraw(true);
    const QString path = palettes + QStringLiteral("/minipixel-pico-8.pal");
    const PaletteLoadResult r = Menu_LoadPalette(s, path, &strip);
    EXPECT_EQ(r.outcome, PaletteLoadOutcome::Loaded);
    EXPECT_EQ(r.folder, QDir::cleanPath(palettes));
    EXPECT_TRUE(prompter.asked().empty());

    const ColourState &c = s.colours();
    const std::vector<ColorLong> file = readJascPaletteFile(path).entries;
    ASSERT_EQ(file.size(), 16u);
    ASSERT_EQ(c.Pal256.size(), 256u);
    EXPECT_TRUE(std::equal(file.begin(), file.end(), c.Pal256.begin()));
    EXPECT_EQ(c.Pal256[16], 0); // the rest stays black
    EXPECT_EQ(c.Pal256[255], 0);

    // Pal512: entry i at 2i-1, even entries the truncated mean of their neighbours: pico-8's
    // entries 1 and 2 are (29, 43, 83) and (126, 37, 83), swapped to blue first.
    ASSERT_EQ(c.Pal512.size(), 512u);
    EXPECT_EQ(c.Pal512[1], RGB(83, 43, 29));
    EXPECT_EQ(c.Pal512[2], RGB(83, 40, 77));
    EXPECT_EQ(c.Pal512[3], RGB(83, 37, 126));
    EXPECT_EQ(c.Pal512[29], swapped(file[15]));
    EXPECT_EQ(c.Pal512[511], 0);

    EXPECT_TRUE(c.PalFromFile && c.PalFixed && c.XLockPalette && c.DuoActive);
    EXPECT_FALSE(c.RandomColors);
    EXPECT_EQ(std::pair(c.XDuotones[0], c.XDuotones[1]), std::pair(false, true));
    // The 5 x 5 table comes from the palette at rounded 10.24 * i.
    ASSERT_EQ(c.DuoColors.size(), 26u);
    EXPECT_EQ(c.DuoColors[1], file[10]);
    EXPECT_EQ(c.DuoColors[25], 0);

    // The strip: the 256 lines over the 512 smoothed ones, which show below them.
    EXPECT_EQ(strip.Point(0, 0), file[0]);
    EXPECT_EQ(strip.Point(7, 11), file[7]);
    EXPECT_EQ(strip.Point(0, 12), file[0]);
    EXPECT_EQ(strip.Point(1, 12), swapped(c.Pal512[2]));
}

TEST_F(LoadFixture, ShortLinesAndFilesLeaveBlack)
{
    const QString path = write("two.pal", "JASC-PAL\n0100\n2\n10 20\n30 40 50\n");
    EXPECT_EQ(Menu_LoadPalette(s, path).outcome, PaletteLoadOutcome::Loaded);
    EXPECT_EQ(s.colours().Pal256[0], RGB(10, 20, 0));
    EXPECT_EQ(s.colours().Pal256[1], RGB(30, 40, 50));
    EXPECT_EQ(s.colours().Pal256[2], 0);
}

TEST_F(LoadFixture, AnEntryAbove255ShowsTheErrorAndKeepsWhatWasRead)
{
    const std::vector<ColorLong> before = s.colours().Pal256;
    PictureBox strip(QStringLiteral("picPal256"), 100, 12);
    strip.setAutoRedraw(true);
    const QString path = write("bad.pal", "JASC-PAL\n0100\n3\n1 2 3\n4 256 6\n7 8 9\n");
    const PaletteLoadResult r = Menu_LoadPalette(s, path, &strip);
    EXPECT_EQ(r.outcome, PaletteLoadOutcome::Failed);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), errorText);

    const ColourState &c = s.colours();
    EXPECT_EQ(c.Pal256[0], RGB(1, 2, 3));
    EXPECT_EQ(c.Pal256[1], 0);
    EXPECT_NE(c.Pal256, before);
    EXPECT_FALSE(c.PalFromFile || c.DuoActive);
    EXPECT_EQ(strip.Point(0, 0), 0xFFFFFF); // not redrawn
}

TEST_F(LoadFixture, NoPaletteIsSilentAMissingFileIsAnError)
{
    EXPECT_EQ(Menu_LoadPalette(s, write("riff.pal", "RIFF....PAL data")).outcome,
              PaletteLoadOutcome::NotJasc);
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_FALSE(s.colours().PalFromFile);

    EXPECT_EQ(Menu_LoadPalette(s, dir.filePath(QStringLiteral("gone.pal"))).outcome,
              PaletteLoadOutcome::Failed);
    EXPECT_EQ(prompter.lastText(), errorText);

    // A cancelled dialog changes nothing but the smoothed palette's size.
    const std::vector<ColorLong> pal256 = s.colours().Pal256;
    const PaletteLoadResult r = Menu_LoadPalette(s, QString());
    EXPECT_EQ(r.outcome, PaletteLoadOutcome::Cancelled);
    EXPECT_TRUE(r.folder.isEmpty());
    EXPECT_EQ(s.colours().Pal256, pal256);
    EXPECT_EQ(s.colours().Pal512, std::vector<ColorLong>(512, 0));
}

TEST_F(LoadFixture, EveryRealPaletteLoadsWithItsLengthAndLastEntry)
{
    TF_REQUIRE_TESTDATA();
    const std::map<QString, std::pair<size_t, ColorLong>> known = {
        {QStringLiteral("minipixel-arne16.pal"), {16, RGB(178, 220, 239)}},
        {QStringLiteral("minipixel-arne32.pal"), {32, RGB(244, 185, 144)}},
        {QStringLiteral("minipixel-db32.pal"), {256, 0}},
        {QStringLiteral("minipixel-default.pal"), {256, RGB(255, 255, 255)}},
        {QStringLiteral("minipixel-famicube.pal"), {64, RGB(0, 23, 125)}},
        {QStringLiteral("minipixel-pico-8.pal"), {16, RGB(255, 204, 170)}},
    };
    const QStringList files = QDir(palettes).entryList({QStringLiteral("*.pal")}, QDir::Files);
    for (const auto &[name, e] : known)
        EXPECT_TRUE(files.contains(name)) << name.toStdString() << " is missing";
    for (const QString &name : files) {
        Session fresh;
        fresh.setPrompter(&prompter);
        EXPECT_EQ(Menu_LoadPalette(fresh, palettes + QLatin1Char('/') + name).outcome,
                  PaletteLoadOutcome::Loaded)
            << name.toStdString();
        const std::vector<ColorLong> &pal = fresh.colours().Pal256;
        if (const auto it = known.find(name); it != known.end()) {
            const auto &[count, last] = it->second;
            EXPECT_EQ(pal[0], 0) << name.toStdString();
            EXPECT_EQ(pal[count - 1], last) << name.toStdString();
            EXPECT_EQ(count < 256 ? pal[count] : 0, 0) << name.toStdString();
        }
    }
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(LoadFixture, SystemPalettes)
{
    const std::vector<SystemPalette> library = systemPalettes();
    ASSERT_GE(library.size(), 24u);
    QSet<QString> names;
    const QStringList before =
        QDir::temp().entryList({QStringLiteral("~RES*")}, QDir::Files | QDir::Hidden);
    for (const SystemPalette &p : library) {
        EXPECT_FALSE(p.name.isEmpty());
        names.insert(p.name);
        const JascPalette file = readJascPalette(LoadPalette(p.index));
        ASSERT_EQ(file.outcome, JascPalette::Outcome::Read) << p.name.toStdString();
        EXPECT_EQ(file.entries.size(), 256u) << p.name.toStdString();

        Session fresh;
        fresh.setPrompter(&prompter);
        ASSERT_TRUE(mn_SystemPalette(fresh, p.index)) << p.name.toStdString();
        EXPECT_EQ(fresh.colours().Pal256, file.entries);
        EXPECT_TRUE(fresh.colours().PalFixed);
        EXPECT_TRUE(fresh.colours().XLockPalette);
    }
    EXPECT_EQ(size_t(names.size()), library.size());
    EXPECT_TRUE(prompter.asked().empty());
    // The temporary files are gone.
    EXPECT_EQ(QDir::temp().entryList({QStringLiteral("~RES*")}, QDir::Files | QDir::Hidden), before);

    // A chooser cancelled does nothing; an index outside the library is a fault.
    EXPECT_FALSE(mn_SystemPalette(s, 0));
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_FALSE(Lade_RESPalette(s, int(library.size()) + 1));
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Lade_RESPalette  [Subscript out of range]"));
}
