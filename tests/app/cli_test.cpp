// The command line, run as the built program.
#include "forgeprocess.h"
#include "support/testdata.h"
#include "generators/painters.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/colourdialog.h"
#include "paint/paintrecord.h"
#include "paint/paletteload.h"
#include "paint/session.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

using forgetest::forge;
using Result = forgetest::Outcome;

struct CliTest : ::testing::Test {
    QTemporaryDir dir;
    QString file(const char *name) const { return dir.filePath(QString::fromLatin1(name)); }
    // "paint Backgroundcolor" with further arguments, in English.
    Result paint(const QStringList &extra) const
    {
        return forge(QStringList{QStringLiteral("paint"), QStringLiteral("Backgroundcolor"),
                                 QStringLiteral("--lang"), QStringLiteral("en")} +
                     extra);
    }
};

} // namespace

TEST_F(CliTest, HelpListsTheCommandsAndVersionAnswers)
{
    const Result help = forge({QStringLiteral("--help")});
    EXPECT_EQ(help.code, 0);
    for (const char *word :
         {"paint TYPE", "types", "controls [TYPE]", "--seed N", "--transparency P"})
        EXPECT_TRUE(help.out.contains(QLatin1String(word))) << word;
    const Result version = forge({QStringLiteral("--version")});
    EXPECT_EQ(version.code, 0);
    EXPECT_TRUE(version.out.startsWith(QLatin1String("tarvelle-forge ")));
    EXPECT_EQ(forge({QStringLiteral("paints")}).code, 2);
}

TEST_F(CliTest, TypesListsAllTenGroupsWithKeyEnglishAndGermanCaption)
{
    const Result r = forge({QStringLiteral("types")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    QStringList groups;
    int types = 0;
    for (const QString &line : r.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (!line.startsWith(QLatin1Char('\t')))
            groups << line;
        else if (line != QLatin1String("\t-"))
            ++types;
    }
    ASSERT_EQ(groups.size(), 10);
    EXPECT_EQ(groups.first(), QStringLiteral("1\tBoxes, Lines\tRechtecke, Linien"));
    EXPECT_EQ(groups[1], QStringLiteral("2\tPhoto & Arts\tFoto & Künstler"));
    EXPECT_EQ(groups.last(), QStringLiteral("10\tPapers\tPapiermuster"));
    EXPECT_TRUE(
        r.out.contains(QStringLiteral("\n\tNeon vertical\tNeon vertical\tNeon vertikal\n")));
    // With the internal tile set group 2 has its larger dimensioning: 112 types.
    EXPECT_TRUE(r.out.contains(QStringLiteral("\n\tInterne Kacheln\tInternal tiles\tInterne Kacheln\n")));
    EXPECT_EQ(types, 112);
}

TEST_F(CliTest, ControlsOfATypeListTheGeneralOptionsWithKindDefaultAndRange)
{
    const Result r = forge({QStringLiteral("controls"), QStringLiteral("Backgroundcolor"),
                            QStringLiteral("--lang"), QStringLiteral("en")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.startsWith(QStringLiteral("frmGrafDialog\tGeneral\n")));
    EXPECT_TRUE(
        r.out.contains(QStringLiteral("\tScrollTransparence\tvalue\t0\t0..100\tTransparency\n")));
    EXPECT_TRUE(r.out.contains(QStringLiteral("\t\t3\tDIN-A4 horizontal\n")));
    EXPECT_EQ(forge({QStringLiteral("controls"), QStringLiteral("Nope")}).code, 2);
}

TEST_F(CliTest, ControlsListTheLinksUnderTheControlsTheyConcern)
{
    const Result r = forge({QStringLiteral("controls"), QStringLiteral("ART-Mondrian-LeadGlass"),
                            QStringLiteral("--lang"), QStringLiteral("en")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains(QStringLiteral("\tXMLG(2)\tchecked\t1\t0..1\tDraw all frames\n"
                                              "\t\tsets XBorders to 1 when XMLG(2) = 1\n")))
        << r.out.toStdString();
    EXPECT_TRUE(r.out.contains(QStringLiteral("\tXMLG(7)\tchecked\t0\t0..1\tHarmonic subdivision\n"
                                              "\t\tonly with XMLG(6) = 1\n")));
    const Result m = forge({QStringLiteral("controls"), QStringLiteral("ART-Mondrian"),
                            QStringLiteral("--lang"), QStringLiteral("de")});
    EXPECT_TRUE(m.out.contains(
        QStringLiteral("\t\tnur mit XMondrian(2) = 1 und (XMondrian(0) = 0 oder XMondrian(1) = 0)\n")))
        << m.out.toStdString();
}

TEST_F(CliTest, TheSameSeedGivesTheSameBytes)
{
    for (const auto &[seed, name] : {std::pair{"7", "a.png"}, {"7", "b.png"}, {"8", "c.png"}}) {
        const Result r =
            paint({QStringLiteral("--size"), QStringLiteral("64x48"), QStringLiteral("--seed"),
                   QLatin1String(seed), QStringLiteral("-o"), file(name)});
        ASSERT_EQ(r.code, 0) << r.err.toStdString();
    }
    EXPECT_FALSE(bytesOf(file("a.png")).isEmpty());
    EXPECT_EQ(bytesOf(file("a.png")), bytesOf(file("b.png")));
    EXPECT_NE(bytesOf(file("a.png")), bytesOf(file("c.png")));
    EXPECT_EQ(QImage(file("a.png")).size(), QSize(64, 48));
}

TEST_F(CliTest, TransparencyOverAPictureBlendsAsTheFormulaSays)
{
    QImage over(2, 1, QImage::Format_RGB32);
    over.setPixel(0, 0, qRgb(0, 0, 0));
    over.setPixel(1, 0, qRgb(200, 100, 11));
    ASSERT_TRUE(over.save(file("x.png")));
    const Result r = paint({QStringLiteral("--transparency"), QStringLiteral("50"),
                            QStringLiteral("--over"), file("x.png"), QStringLiteral("--back"),
                            QStringLiteral("#194BFA"), QStringLiteral("-o"), file("y.bmp")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_TRUE(bytesOf(file("y.bmp")).startsWith("BM"));
    const QImage y(file("y.bmp"));
    ASSERT_EQ(y.size(), QSize(2, 1));
    // (25, 75, 250) - 0.5 * ((25, 75, 250) - old): over black 12.5, 37.5, 125 -> 12, 38, 125;
    // over (200, 100, 11) 112.5, 87.5, 130.5 -> 112, 88, 130.
    EXPECT_EQ(QColor(y.pixel(0, 0)), QColor(12, 38, 125));
    EXPECT_EQ(QColor(y.pixel(1, 0)), QColor(112, 88, 130));
}

TEST_F(CliTest, BadTypeControlOrValueEndWithTheirMessageAndExitCodeTwo)
{
    const std::vector<std::pair<QStringList, QString>> cases = {
        {{"Nope", "--lang", "en"}, "tarvelle-forge: Unknown graphics type: Nope\n"},
        {{"-", "--lang", "en"}, "tarvelle-forge: Unknown graphics type: -\n"},
        {{"Nope", "--lang", "de"}, "tarvelle-forge: Unbekannter Grafiktyp: Nope\n"},
        {{"--lang", "en"}, "tarvelle-forge: The graphics type is missing.\n"},
        {{"Backgroundcolor", "--set", "Foo=1"}, "tarvelle-forge: Unknown control: Foo\n"},
        {{"Backgroundcolor", "--set", "XFill=maybe"},
         "tarvelle-forge: Invalid value for XFill: maybe\n"},
        {{"Backgroundcolor", "--fore", "red"}, "tarvelle-forge: Invalid colour: red (#RRGGBB)\n"},
        {{"Backgroundcolor", "--transparency", "101"},
         "tarvelle-forge: Invalid transparency: 101 (0 to 100)\n"},
        {{"Backgroundcolor", "--size", "0x5"},
         "tarvelle-forge: Invalid size: 0x5 (WIDTHxHEIGHT, 1 to 14000)\n"},
        {{"Backgroundcolor", "--seed", "-3"}, "tarvelle-forge: Invalid seed: -3\n"},
        {{"Backgroundcolor", "--frobnicate"}, "tarvelle-forge: Unknown option: --frobnicate\n"},
        {{"Backgroundcolor", "--lang", "fr"},
         "tarvelle-forge: Unbekannte Sprache: fr (de oder en)\n"},
    };
    for (const auto &[args, message] : cases) {
        const QStringList english =
            args.contains(QStringLiteral("--lang"))
                ? QStringList{}
                : QStringList{QStringLiteral("--lang"), QStringLiteral("en")};
        const Result r = forge(QStringList{QStringLiteral("paint")} + args + english +
                               QStringList{QStringLiteral("-o"), file("no.png")});
        EXPECT_EQ(r.code, 2) << args.join(' ').toStdString();
        EXPECT_EQ(r.err, message) << args.join(' ').toStdString();
    }
    EXPECT_FALSE(QFile::exists(file("no.png")));
}

TEST_F(CliTest, ATypeWithoutPainterOrAnUnreadablePictureFailWithExitCodeOne)
{
    // A type whose painter has not landed yet, while there is one.
    QString unbuilt;
    for (const tf::PainterEntry &e : tf::painterTable())
        if (!e.paint && unbuilt.isEmpty()) unbuilt = QString::fromLatin1(e.key);
    if (!unbuilt.isEmpty()) {
        const Result none = forge({QStringLiteral("paint"), unbuilt, QStringLiteral("--lang"),
                                   QStringLiteral("en"), QStringLiteral("-o"), file("t.png")});
        EXPECT_EQ(none.code, 1);
        EXPECT_EQ(none.err,
                  QStringLiteral("tarvelle-forge: \"%1\" paints nothing yet: its painter is "
                                 "not built in.\n")
                      .arg(unbuilt));
        EXPECT_FALSE(QFile::exists(file("t.png")));
    }
    const Result over = paint({QStringLiteral("--over"), file("missing.png")});
    EXPECT_EQ(over.code, 1);
    EXPECT_EQ(over.err, QStringLiteral("tarvelle-forge: The file %1 does not exist.\n")
                            .arg(file("missing.png")));
}

TEST_F(CliTest, TheCopiedCommandLineReproducesThePaintOnAClearedPicture)
{
    registerAllPanels();
    struct Setting {
        bool randomColors;
        int transparency;
        int systemPalette; // with the duotone table of the palette; 0 none
    };
    for (const Setting setting :
         {Setting{true, 0, 0}, Setting{false, 30, 0}, Setting{true, 0, 7}}) {
        Session s;
        s.setPainters(painterTable());
        ScriptedPrompter prompter;
        s.setPrompter(&prompter);
        s.workspace().New_BildSize(40, 30);
        mn_Grafmodes(s, 1);
        ListBoxType_Click(s, 0);
        s.colours().RandomColors = setting.randomColors;
        s.colours().ColorBack = RGB(12, 200, 99);
        s.controls().set(ControlKey{QStringLiteral("XFill")}, QStringLiteral("0"));
        s.controls().set(ControlKey{QStringLiteral("txtPaperSize"), 0}, QStringLiteral("800"));
        s.controls().set(ControlKey{QStringLiteral("ScrollTransparence")},
                         QString::number(setting.transparency));
        if (setting.systemPalette) {
            ASSERT_TRUE(Lade_RESPalette(s, setting.systemPalette));
            clickDuotones(s, 1, true);
        }
        ASSERT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
        ASSERT_TRUE(s.paint().lastPaint);

        const QString line = paintCommandLine(*s.paint().lastPaint);
        ASSERT_TRUE(
            line.startsWith(QLatin1String("tarvelle-forge paint Backgroundcolor --size 40x30 ")));
        EXPECT_TRUE(line.contains(QLatin1String(" --set 'txtPaperSize(0)=800'")));
        EXPECT_EQ(line.contains(QLatin1String("--system-palette 7 --duotones 1")),
                  setting.systemPalette == 7);
        const QString out = file("copied.png");
        QFile::remove(out);
        const Result r =
            forgetest::run(QStringLiteral("/bin/sh"),
                       {QStringLiteral("-c"), shellQuote(QStringLiteral(TF_EXE)) +
                                                  line.mid(int(qstrlen("tarvelle-forge"))) +
                                                  QStringLiteral(" -o ") + shellQuote(out)});
        ASSERT_EQ(r.code, 0) << line.toStdString() << "\n" << r.err.toStdString();
        EXPECT_EQ(QImage(out).convertToFormat(QImage::Format_RGB32), s.workspace().Bild.Image())
            << line.toStdString();
    }
}

TEST_F(CliTest, PalettesComeFromFilesOrTheSystemLibraryAndABadFileFails)
{
    TF_REQUIRE_TESTDATA();
    const QString pal = QStringLiteral(TF_TESTDATA_DIR "/palettes/");
    const QStringList out{QStringLiteral("-o"), file("p.png")};
    for (const char *bad : {"malformed/derived-pico-8-entry-out-of-range.pal",
                            "malformed/anypalette-KDE40.colors.out-riff.pal", "no-such-file.pal"}) {
        const Result r =
            paint(QStringList{QStringLiteral("--palette"), pal + QLatin1String(bad)} + out);
        EXPECT_EQ(r.code, 1) << bad;
        EXPECT_TRUE(r.err.contains(QLatin1String("Palette file error or not there"))) << bad;
        EXPECT_FALSE(QFile::exists(file("p.png"))) << bad;
    }
    EXPECT_EQ(
        paint(QStringList{QStringLiteral("--palette"), pal + QLatin1String("minipixel-db32.pal"),
                          QStringLiteral("--duotones"), QStringLiteral("1")} +
              out)
            .code,
        0);
    const Result unknown = paint({QStringLiteral("--system-palette"), QStringLiteral("0")});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err, QStringLiteral("tarvelle-forge: Unknown system palette: 0 (1 to 34)\n"));
    const Result duo = paint({QStringLiteral("--duotones"), QStringLiteral("2")});
    EXPECT_EQ(duo.code, 2);
    EXPECT_EQ(duo.err, QStringLiteral("tarvelle-forge: Invalid value for --duotones: 2\n"));
}
