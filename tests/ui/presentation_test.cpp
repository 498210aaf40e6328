// Picture presentations through the session: what a .tvp takes from and gives back to the
// controls, the colours, the source and the layout tables; the rule for the folder of line 2;
// the messages of loading and of the menu.
#include "files/presentation.h"
#include "generators/painters.h"
#include "paint/session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

const QSize Screen(1600, 1200);

QByteArray bytesOf(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

// Answers the dialogs with a fixed path and counts them.
struct ScriptedChooser : PresentationChooser {
    QString answer;
    int asked = 0;
    QString lastDir, lastTitle, lastFilter;
    QString chooseToLoad(const QString &dir, const QString &title, const QString &filter) override
    {
        return choose(dir, title, filter);
    }
    QString chooseToSave(const QString &dir, const QString &title, const QString &filter) override
    {
        return choose(dir, title, filter);
    }
    QString choose(const QString &dir, const QString &title, const QString &filter)
    {
        ++asked;
        lastDir = dir;
        lastTitle = title;
        lastFilter = filter;
        return answer;
    }
};

struct PresentationTest : ::testing::Test {
    QTemporaryDir dir;
    Session s;
    ScriptedPrompter prompter;

    void SetUp() override
    {
        s.setPrompter(&prompter);
        s.setPainters(painterTable());
    }

    QString path(const char *name) const { return dir.filePath(QString::fromLatin1(name)); }

    // A layout of H x V cells with distinct entries, as a paint leaves it.
    static void layout(Session &x, int H, int V)
    {
        MondrianTables &m = x.mondrian();
        m.MondrianHSplits = m.MondrianLastH = int16_t(H);
        m.MondrianVSplits = m.MondrianLastV = int16_t(V);
        m.MondrianMargin = 6;
        m.ArrCellH.redim(3, H + 1, V + 1);
        m.ArrCellV.redim(2, H + 1, V + 1);
        const int subH = 2 + H * 2, subV = 2 + V * 2;
        m.ArrSubH.redim(3, subH, subV);
        m.ArrSubVX.redim(3, subH, subV);
        m.ArrSubHY.redim(2, subH, subV);
        m.ArrSubV.redim(2, subH, subV);
        int n = 1;
        for (Table3 *t :
             {&m.ArrCellH, &m.ArrCellV, &m.ArrSubH, &m.ArrSubVX, &m.ArrSubHY, &m.ArrSubV})
            for (int k = 0; k <= t->upperF(); ++k)
                for (int i = 0; i <= t->upperI(); ++i)
                    for (int j = 0; j <= t->upperJ(); ++j)
                        (*t)(k, i, j) = n++;
        // Sub-frame counts within what a file holds.
        for (int c = 0; c < H; ++c)
            for (int r = 0; r < V; ++r) {
                m.ArrSubH(2, c, r) = (c + r) % 3;
                m.ArrSubV(2, c, r) = (c * r) % 2;
            }
    }

    // A presentation file of the session as it stands, written to `name`.
    QString saved(const char *name)
    {
        const QString p = path(name);
        EXPECT_TRUE(picPresentation_Save(s, p, Screen));
        return p;
    }

    // The lines of a file written from a 2 x 2 layout, for editing.
    QList<QByteArray> savedLines()
    {
        layout(s, 2, 2);
        QList<QByteArray> lines = bytesOf(saved("base.tvp")).split('\n');
        lines.removeLast();
        return lines;
    }
    QString withLines(const QList<QByteArray> &lines, const char *name)
    {
        const QString p = path(name);
        writeBytes(p, lines.join('\n') + '\n');
        return p;
    }
};

} // namespace

TEST_F(PresentationTest, ARoundTripGivesBackTheOptionsColoursSourceAndTables)
{
    layout(s, 3, 2);
    Controls &c = s.controls();
    c.set({QStringLiteral("XPicMosaikSubDirs")}, QStringLiteral("1"));
    c.set({QStringLiteral("XPicMosaikStretchpics")}, QStringLiteral("0"));
    c.set({QStringLiteral("XPicMosaikCenterPics")}, QStringLiteral("0"));
    c.set({QStringLiteral("XPicMosaik"), 1}, QStringLiteral("1"));
    c.set({QStringLiteral("txtPicMosaik_Timer")}, QStringLiteral("7"));
    c.set({QStringLiteral("cmbPen")}, QStringLiteral("4"));
    c.set({QStringLiteral("XPicMosaik_UseSmallPics"), 0}, QStringLiteral("1"));
    s.colours().ColorFore = 0x102030;
    s.colours().ColorBack = 0xA0B0C0;
    s.colours().ColorBorder = 0x0000FF;
    s.picSources().PicSource = dir.path();
    s.picSources().FromFile = false;
    const QString file = saved("show.tvp");

    Session t;
    t.setPrompter(&prompter);
    ASSERT_TRUE(picPresentation_Load(t, file, Screen));
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
    const Controls &d = t.controls();
    EXPECT_TRUE(d.checked(QStringLiteral("XPicMosaikSubDirs")));
    EXPECT_FALSE(d.checked(QStringLiteral("XPicMosaikStretchpics")));
    EXPECT_TRUE(d.checked(QStringLiteral("XPicMosaikAliasing")));
    EXPECT_FALSE(d.checked(QStringLiteral("XPicMosaikCenterPics")));
    EXPECT_EQ(d.text({QStringLiteral("txtPMKachel"), 0}), QStringLiteral("3"));
    EXPECT_EQ(d.text({QStringLiteral("txtPMKachel"), 1}), QStringLiteral("2"));
    EXPECT_EQ(d.text({QStringLiteral("txtPMKachel"), 2}), QStringLiteral("6"));
    EXPECT_TRUE(d.checked({QStringLiteral("XPicMosaik"), 1}));
    EXPECT_EQ(d.text(QStringLiteral("txtPicMosaik_Timer")), QStringLiteral("7"));
    EXPECT_EQ(d.text(QStringLiteral("cmbPen")), QStringLiteral("4"));
    EXPECT_TRUE(d.checked({QStringLiteral("XPicMosaik_UseSmallPics"), 0}));
    EXPECT_EQ(t.colours().ColorFore, 0x102030);
    EXPECT_EQ(t.colours().ColorBack, 0xA0B0C0);
    EXPECT_EQ(t.colours().ColorBorder, 0x0000FF);
    EXPECT_FALSE(t.colours().RandomValues);
    EXPECT_EQ(t.picSources().PicSource, dir.path());

    const MondrianTables &m = t.mondrian();
    EXPECT_EQ(m.MondrianLastH, 3);
    EXPECT_EQ(m.MondrianLastV, 2);
    EXPECT_EQ(m.MondrianMargin, 6);
    EXPECT_TRUE(m.holdsLayout());
    // The cell tables come back whole; the sub tables in the cell tables' bounds.
    EXPECT_EQ(m.ArrSubH.upperI(), 4);
    EXPECT_EQ(m.ArrSubV.upperF(), 2);
    for (int k = 0; k <= 3; ++k)
        for (int i = 0; i <= 4; ++i)
            for (int j = 0; j <= 3; ++j) {
                EXPECT_EQ(m.ArrCellH(k, i, j), s.mondrian().ArrCellH(k, i, j));
                EXPECT_EQ(m.ArrSubVX(k, i, j), s.mondrian().ArrSubVX(k, i, j));
                if (k < 3) {
                    EXPECT_EQ(m.ArrSubHY(k, i, j), s.mondrian().ArrSubHY(k, i, j));
                }
            }

    // Saved again, the file is the same byte for byte.
    t.picSources().FromFile = false;
    const QString again = dir.filePath(QStringLiteral("again.tvp"));
    ASSERT_TRUE(picPresentation_Save(t, again, Screen));
    EXPECT_EQ(bytesOf(again), bytesOf(file));
}

TEST_F(PresentationTest, AHeaderInOtherCasePassesAndAShortFileIsRefusedChangingNothing)
{
    QList<QByteArray> lines = savedLines();
    lines[0] = "tarvelle-forge-v2.00_diamatrix\r";
    EXPECT_TRUE(picPresentation_Load(s, withLines(lines, "lower.tvp"), Screen));

    s.mondrian().MondrianLastH = 9;
    prompter.clear();
    writeBytes(path("short.tvp"), "Tarvelle-Forge-V2.00_DIAMA");
    EXPECT_FALSE(picPresentation_Load(s, path("short.tvp"), Screen));
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Falsches Dateiformat!"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Critical);
    EXPECT_EQ(s.mondrian().MondrianLastH, 9);
}

TEST_F(PresentationTest, AFileThatEndsEarlyIsAFaultAndChangesNothing)
{
    QList<QByteArray> lines = savedLines();
    s.colours().ColorFore = 0x111111;
    lines[7] = "2236962\r"; // 0x222222
    EXPECT_FALSE(picPresentation_Load(s, withLines(lines.mid(0, 30), "cut.tvp"), Screen));
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("picPresentation_Load  [Die Datei endet vor Zeile 31]"));
    EXPECT_EQ(s.colours().ColorFore, 0x111111);
}

TEST_F(PresentationTest, TheFolderOfLineTwoIsTakenOnlyAsAFullPathThatIsThere)
{
    s.picSources().PicSource = QStringLiteral("/old/source");
    QList<QByteArray> lines = savedLines();

    // Neither a relative path, a network share without a drive nor an empty text is looked at.
    for (const char *unlooked : {"Bilder/Urlaub\r", "\\\\server\\bilder\r", "\r"}) {
        lines[1] = unlooked;
        prompter.clear();
        EXPECT_TRUE(picPresentation_Load(s, withLines(lines, "rel.tvp"), Screen));
        EXPECT_TRUE(prompter.asked().empty()) << unlooked;
        EXPECT_EQ(s.picSources().PicSource, QStringLiteral("/old/source"));
    }

    // A Windows path and an absolute path that are not there are named; the read goes on.
    for (const char *missing : {"C:\\Bilder\\Urlaub", "/nicht/da"}) {
        lines[1] = QByteArray(missing) + '\r';
        prompter.clear();
        s.colours().ColorFore = 0x123;
        EXPECT_TRUE(picPresentation_Load(s, withLines(lines, "missing.tvp"), Screen));
        ASSERT_EQ(prompter.asked().size(), 1u);
        EXPECT_EQ(prompter.lastText(),
                  QStringLiteral("Der Bildpfad %1 ist auf diesem PC nicht verfügbar. Stellen Sie "
                                 "bitte einen korrekten Pfad mit dem Befehl [...] ein.")
                      .arg(QString::fromLatin1(missing)));
        EXPECT_EQ(prompter.asked().back().icon, Icon::Exclamation);
        EXPECT_EQ(s.picSources().PicSource, QStringLiteral("/old/source"));
        EXPECT_NE(s.colours().ColorFore, 0x123);
    }

    lines[1] = dir.path().toUtf8() + '\r';
    s.picSources().FromFile = true;
    s.controls().set({QStringLiteral("optPicMosaikSource")}, QStringLiteral("0"));
    EXPECT_TRUE(picPresentation_Load(s, withLines(lines, "here.tvp"), Screen));
    EXPECT_EQ(s.picSources().PicSource, dir.path());
    EXPECT_FALSE(s.picSources().FromFile);
    EXPECT_EQ(s.controls().listIndex({QStringLiteral("optPicMosaikSource")}), 1);
}

TEST_F(PresentationTest, AnotherScreenIsNamedAndTheReadGoesOn)
{
    const QString file = withLines(savedLines(), "screen.tvp");
    EXPECT_TRUE(picPresentation_Load(s, file, QSize(1024, 768)));
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Die Präsentation wurde mit der Bildschirmauflösung 1600/1200 "
                             "erstellt. Eine korrekte Darstellung mit der aktuellen "
                             "Bildschirmauflösung von 1024/768 ist deshalb nicht möglich!"));
    EXPECT_TRUE(s.mondrian().holdsLayout());
}

TEST_F(PresentationTest, OutOfRangeOptionsAreClampedSilentlyIntoTheControls)
{
    QList<QByteArray> lines = savedLines();
    lines[3] = "5\r";     // XPicMosaikSubDirs
    lines[16] = "9000\r"; // seconds
    lines[17] = "99\r";   // pen
    lines[18] = "0\r";    // XBorders off ...
    lines[19] = "1\r";    // ... so no frame lines at all
    ASSERT_TRUE(picPresentation_Load(s, withLines(lines, "wild.tvp"), Screen));
    EXPECT_TRUE(prompter.asked().empty());
    const Controls &c = s.controls();
    EXPECT_TRUE(c.checked(QStringLiteral("XPicMosaikSubDirs")));
    EXPECT_EQ(c.text(QStringLiteral("txtPicMosaik_Timer")), QStringLiteral("600"));
    EXPECT_EQ(c.text(QStringLiteral("cmbPen")), QStringLiteral("50"));
    EXPECT_FALSE(c.checked(QStringLiteral("XBorders")));
    EXPECT_FALSE(c.checked(QStringLiteral("YPicMosaik_EachRahmen")));
}

TEST_F(PresentationTest, SavingWithNoLayoutShowsTheMessageAndWritesNothing)
{
    ScriptedChooser chooser;
    chooser.answer = path("none.tvp");
    QString presentationDir;
    EXPECT_FALSE(Menu_OpenPicPresentation(s, 1, chooser, presentationDir, dir.path()));
    EXPECT_EQ(chooser.asked, 0);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Erzeugen Sie bitte zuerst mit dem Befehl "
                                                  "[Paint <F5>] eine Bildpräsentation!"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Exclamation);
    EXPECT_FALSE(QFile::exists(chooser.answer));

    // A layout whose tables a later paint erased is no layout either.
    layout(s, 2, 2);
    s.mondrian().eraseLastSet();
    EXPECT_FALSE(Menu_OpenPicPresentation(s, 1, chooser, presentationDir, dir.path()));
    EXPECT_EQ(chooser.asked, 0);
}

TEST_F(PresentationTest, TheMenuForcesTheExtensionKeepsTheFolderAndTellsHowToStart)
{
    layout(s, 2, 3);
    ScriptedChooser chooser;
    QString presentationDir;
    const QString sub = dir.filePath(QStringLiteral("shows"));
    QDir().mkpath(sub);
    chooser.answer = sub + QStringLiteral("/Urlaub.2024");
    ASSERT_TRUE(Menu_OpenPicPresentation(s, 1, chooser, presentationDir, dir.path()));
    EXPECT_EQ(chooser.lastDir, dir.path()); // no folder yet: the picture folder
    EXPECT_EQ(chooser.lastTitle, QStringLiteral("Bildpräsentation speichern"));
    EXPECT_EQ(chooser.lastFilter, QStringLiteral("Tvl Pic.Presentation (*.tvp)"));
    EXPECT_TRUE(QFile::exists(sub + QStringLiteral("/Urlaub.2024.tvp")));
    EXPECT_EQ(presentationDir, sub);

    s.picSources().ListValid = true;
    s.mondrian().MondrianFrames = 12;
    prompter.clear();
    ASSERT_TRUE(Menu_OpenPicPresentation(s, 0, chooser, presentationDir, dir.path()));
    EXPECT_EQ(chooser.lastDir, sub);
    EXPECT_EQ(chooser.lastTitle, QStringLiteral("Bildpräsentation laden"));
    EXPECT_EQ(
        prompter.lastText(),
        QStringLiteral("Starten Sie die geladene Präsentation mit dem Befehlsknopf "
                       "[Repaint letztes Set]. Verwenden Sie nicht den Befehl [Paint <F5>]!"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Information);
    EXPECT_FALSE(s.picSources().ListValid);
    EXPECT_EQ(s.mondrian().MondrianFrames, 0);

    // A cancelled dialog does nothing.
    chooser.answer.clear();
    prompter.clear();
    EXPECT_FALSE(Menu_OpenPicPresentation(s, 0, chooser, presentationDir, dir.path()));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(PresentationTest, SubFrameCountsBeyondWhatTheFileHoldsAreCut)
{
    layout(s, 2, 2);
    s.mondrian().ArrSubH(2, 1, 0) = 9; // a row cut into nine: the file holds sub-frames 0..3
    s.mondrian().ArrSubV(2, 0, 1) = 2;
    s.mondrian().ArrSubV(2, 1, 1) = 7;
    const QString file = saved("subs.tvp");
    Session t;
    ASSERT_TRUE(picPresentation_Load(t, file, Screen));
    EXPECT_EQ(t.mondrian().ArrSubH(2, 1, 0), 4);
    EXPECT_EQ(t.mondrian().ArrSubV(2, 0, 1), 2);
    EXPECT_EQ(t.mondrian().ArrSubV(2, 1, 1), 4);
}
