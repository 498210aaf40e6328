// The text types through the Paint command: the Latin sample of an empty text, text at an
// angle with and without escapement, the text block's alignments and its tab rule (the boxes
// of the painted lines), the star's copies, the shadow's offsets and the placing click.
#include "paintfixture.h"

#include "core/gdi.h"
#include "generators/textdraw.h"
#include "generators/textpanels.h"
#include "generators/texts.h"
#include "paint/controls.h"
#include "paint/textstate.h"

#include <cmath>
#include <set>

using namespace tf;

namespace {

constexpr ColorLong Ink = 0x000000;
constexpr ColorLong White = 0xFFFFFF;

struct TextTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(400, 300);
        ground(White);
        s.colours().RandomColors = false;
        s.colours().RandomValues = false;
        s.colours().TextFore = Ink;
        s.colours().TextBack = 0x808080;
        set("cmbShadeThickness", QStringLiteral("0"));
        set("XFntAntiAlias", QStringLiteral("0"));
        set("txtFontSize", QStringLiteral("18"));
    }
    // The box of the ink inside `r` (the whole picture when empty).
    QRect inkIn(const QRect &r = QRect()) { return boxOfOther(White, r); }
    int lineStep() { return text::lineStep(text::dialogFont(s.controls())); }
    void text(const QString &t) { set("txtOrthoIn", t); }
};

TEST_F(TextTest, AnEmptyTextPaintsTheLatinSample)
{
    text(QString());
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    const QImage empty = image();
    EXPECT_FALSE(inkIn().isEmpty());
    ground(White);
    text(QString::fromLatin1(text::LatinSample));
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    EXPECT_EQ(image(), empty);
}

TEST_F(TextTest, AnAngleOfZeroSetsNoEscapementOthersTurnTheTextAndThePositionIsItsCorner)
{
    const text::TextFont f = text::dialogFont(s.controls());
    EXPECT_EQ(text::logicalFont(f, 0).escapement, 0);
    EXPECT_EQ(text::logicalFont(f, 30).escapement, 300);
    EXPECT_EQ(text::logicalFont(f, 0).height, -24); // 18 points at 15 twips a pixel

    text(QStringLiteral("MMMMMMMM"));
    set("txtDialogXYPos", QStringLiteral("200"), 0);
    set("txtDialogXYPos", QStringLiteral("150"), 1);
    set("XTextDialog_Center", QStringLiteral("1"));
    ASSERT_EQ(paint("TEXT-Dialog"), PaintOutcome::Painted);
    const QRect flat = inkIn();
    EXPECT_GT(flat.width(), 3 * flat.height());
    EXPECT_NEAR(flat.center().x(), 200, 2);
    EXPECT_NEAR(flat.center().y(), 150, 2);

    ground(White);
    set("TDW1", QStringLiteral("90"), 0);
    ASSERT_EQ(paint("TEXT-Dialog"), PaintOutcome::Painted);
    const QRect upright = inkIn();
    EXPECT_GT(upright.height(), 3 * upright.width());
    EXPECT_NEAR(upright.height(), flat.width(), 2);
    EXPECT_NEAR(upright.center().y(), 150, 2);

    // Not centred, the position is the ink's top left corner.
    ground(White);
    set("TDW1", QStringLiteral("0"), 0);
    set("XTextDialog_Center", QStringLiteral("0"));
    set("txtDialogXYPos", QStringLiteral("30"), 0);
    set("txtDialogXYPos", QStringLiteral("40"), 1);
    ASSERT_EQ(paint("TEXT-Dialog"), PaintOutcome::Painted);
    EXPECT_NEAR(inkIn().left(), 30, 1);
    EXPECT_NEAR(inkIn().top(), 40, 1);
}

TEST_F(TextTest, UmlautsAndSharpSPaintWithTheirMarks)
{
    const text::TextFont f = text::dialogFont(s.controls());
    // The dots of an umlaut lie above the letter's own top; ß reaches above the x height.
    EXPECT_LT(text::inkBox(f, QStringLiteral("Ä"), 0).top(), text::inkBox(f, QStringLiteral("A"), 0).top() - 1);
    EXPECT_LT(text::inkBox(f, QStringLiteral("ö"), 0).top(), text::inkBox(f, QStringLiteral("o"), 0).top() - 1);
    EXPECT_LT(text::inkBox(f, QStringLiteral("ß"), 0).top(), text::inkBox(f, QStringLiteral("s"), 0).top() - 1);

    text(QStringLiteral("Größe, Übermaß,\nÄpfel und Öl"));
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    const QImage umlauts = image();
    ground(White);
    text(QStringLiteral("Grosse, Ubermas,\nApfel und Ol"));
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    EXPECT_NE(image(), umlauts);
}

TEST_F(TextTest, TheRowsOfABlockEndAtTheLastRowWithText)
{
    const auto rows = textBlockRows(QStringLiteral("a$$b\tc$$$$  $$"));
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].before, QStringLiteral("a"));
    EXPECT_FALSE(rows[0].tab);
    EXPECT_EQ(rows[1].before, QStringLiteral("b"));
    EXPECT_EQ(rows[1].after, QStringLiteral("c"));
    EXPECT_TRUE(rows[1].tab);
}

TEST_F(TextTest, ALongRowIsBrokenAtItsBlanksToTheRoomBetweenTheMargins)
{
    const auto width = [](const QString &t) { return double(t.size() * 10); };
    const auto rows = wrapTextBlockRows(
        {{QStringLiteral("eins zwei drei vier"), QString(), false},
         {QStringLiteral("links"), QStringLiteral("rechts und noch mehr"), true},
         {QStringLiteral("Donaudampfschifffahrt kurz"), QString(), false}},
        100, width);
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_EQ(rows[0].before, QStringLiteral("eins zwei"));
    EXPECT_EQ(rows[1].before, QStringLiteral("drei vier"));
    EXPECT_TRUE(rows[2].tab); // a row with a tab keeps its two parts
    EXPECT_EQ(rows[3].before, QStringLiteral("Donaudampfschifffahrt")); // too long alone
    EXPECT_EQ(rows[4].before, QStringLiteral("kurz"));

    // The Latin sample fills the picture's width between the margins, line under line.
    set("scrollTextBlock", QStringLiteral("40"), 0);
    set("scrollTextBlock", QStringLiteral("10"), 1);
    text(QString());
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    const QRect ink = inkIn();
    EXPECT_GE(ink.left(), 38);
    EXPECT_LE(ink.right(), 400 - 40);
    EXPECT_GT(ink.bottom(), 250);
}

TEST_F(TextTest, TheCreditsCentreTheBlockWhenTheLeftEdgeIsBelowFifty)
{
    EXPECT_EQ(textBlockLeft(AlignCinema, 10, 400), 200);
    EXPECT_EQ(textBlockLeft(AlignCinema, 49, 400), 200);
    EXPECT_EQ(textBlockLeft(AlignCinema, 50, 400), 50);
    EXPECT_EQ(textBlockLeft(AlignCinema, 350, 400), 350);
    EXPECT_EQ(textBlockLeft(AlignCinema, 351, 400), 200);

    set("optTextBlockAlign", QStringLiteral("3"));
    set("scrollTextBlock", QStringLiteral("10"), 0);
    set("scrollTextBlock", QStringLiteral("20"), 1);
    set("txtCinemaGap", QStringLiteral("30"));
    text(QStringLiteral("Regie\tAnna Berg"));
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    // The name before the tab ends left of the gap, the one after starts right of it.
    const QRect left = inkIn(QRect(0, 0, 200, 300));
    const QRect right = inkIn(QRect(200, 0, 200, 300));
    EXPECT_LE(left.right(), 185);
    EXPECT_GE(left.right(), 180);
    EXPECT_GE(right.left(), 215);
    EXPECT_LE(right.left(), 220);
}

TEST_F(TextTest, ATabWithTheLeftAlignmentPaintsBothPartsABlankApart)
{
    const auto width = [](const QString &t) { return double(t.size() * 10); };
    const auto pieces = layTextBlockRow({QStringLiteral("ab"), QStringLiteral("cd"), true}, AlignLeft,
                                        40, 400, 0, width);
    ASSERT_EQ(pieces.size(), 2u);
    EXPECT_EQ(pieces[0].x, 40);
    EXPECT_EQ(pieces[1].x, 70); // "ab " is 30 wide

    set("scrollTextBlock", QStringLiteral("40"), 0);
    set("scrollTextBlock", QStringLiteral("20"), 1);
    text(QStringLiteral("Links\tRechts"));
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    const QImage tabbed = image();
    ground(White);
    text(QStringLiteral("Links Rechts"));
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    EXPECT_EQ(image(), tabbed);
}

TEST_F(TextTest, EveryAlignmentLaysItsLinesWhereItSays)
{
    set("scrollTextBlock", QStringLiteral("60"), 0);
    set("scrollTextBlock", QStringLiteral("20"), 1);
    text(QStringLiteral("Erste Zeile\nZwei\tDrei"));
    const int step = lineStep();
    const auto rowBox = [&](int row) { return inkIn(QRect(0, 20 + row * step, 400, step)); };
    struct Case {
        int align;
        const char *name;
    };
    for (const Case c : {Case{AlignLeft, "left"}, Case{AlignCentred, "centred"},
                         Case{AlignRight, "right"}, Case{AlignCinema, "credits"},
                         Case{AlignLeftRight, "left and right"}}) {
        SCOPED_TRACE(c.name);
        ground(White);
        set("optTextBlockAlign", QString::number(c.align));
        ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
        const QRect first = rowBox(0), second = rowBox(1);
        ASSERT_FALSE(first.isEmpty());
        ASSERT_FALSE(second.isEmpty());
        EXPECT_GE(first.top(), 20);
        EXPECT_GE(second.top(), 20 + step);
        switch (c.align) {
        case AlignLeft:
            EXPECT_NEAR(first.left(), 60, 3);
            EXPECT_NEAR(second.left(), 60, 3);
            break;
        case AlignCentred:
            EXPECT_NEAR(first.center().x(), 200, 3);
            EXPECT_NEAR(second.center().x(), 200, 3);
            break;
        case AlignRight:
            // Aligned by the advance: the last letter's side bearing stays free.
            EXPECT_NEAR(first.right(), 340, 5);
            EXPECT_NEAR(second.right(), 340, 5);
            break;
        case AlignCinema:
            EXPECT_NEAR(first.center().x(), 60, 3); // 60 lies in 50..350: the middle stays
            // "Zwei" ends left of the gap about the middle, "Drei" starts right of it.
            EXPECT_LT(inkIn(QRect(0, 20 + step, 60, step)).right(), 60 - 12);
            EXPECT_GT(inkIn(QRect(60, 20 + step, 340, step)).left(), 60 + 12);
            break;
        case AlignLeftRight:
            EXPECT_NEAR(first.left(), 60, 3);
            EXPECT_NEAR(second.left(), 60, 3);
            EXPECT_NEAR(second.right(), 340, 5);
            break;
        }
    }
}

TEST_F(TextTest, ABlockStopsAtTheBottomOfThePicture)
{
    size(200, 60);
    ground(White);
    set("scrollTextBlock", QStringLiteral("0"), 0);
    set("scrollTextBlock", QStringLiteral("0"), 1);
    QString many;
    for (int i = 0; i < 50; ++i) many += QStringLiteral("Zeile %1\n").arg(i);
    text(many);
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    EXPECT_EQ(prompter.lastText(), QString());
}

// The number of separate directions in which ink lies in the ring r0..r1 about `c`: the
// ring's pixels are binned by their angle, and neighbouring bins with ink count as one.
int inkDirections(const QImage &img, QPointF c, double r0, double r1)
{
    const int bins = 180;
    std::vector<bool> ink(bins);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const double dx = x + 0.5 - c.x(), dy = c.y() - (y + 0.5);
            const double r = std::hypot(dx, dy);
            if (r < r0 || r > r1 || (img.pixel(x, y) & 0xFFFFFF) == 0xFFFFFF) continue;
            double a = std::atan2(dy, dx) * 180 / M_PI;
            if (a < 0) a += 360;
            ink[size_t(int(a / 2) % bins)] = true;
        }
    int runs = 0;
    for (int i = 0; i < bins; ++i)
        if (ink[size_t(i)] && !ink[size_t((i + bins - 1) % bins)]) ++runs;
    return runs;
}

TEST_F(TextTest, AStarOfNCopiesHasNCopies)
{
    size(400, 400);
    set("XCenter", QStringLiteral("1"));
    set("txtFontSize", QStringLiteral("14"));
    text(QStringLiteral("IIIIIIIIIIIIIIIIIIIIIIIIIII"));
    for (const int n : {1, 3, 5, 8}) {
        SCOPED_TRACE(n);
        ground(White);
        set("TRW1", QString::number(n), 0);
        set("TRW1", QString::number(360 / n), 1);
        set("TRW1", QStringLiteral("10"), 2);
        ASSERT_EQ(paint("TEXT-StarRotated"), PaintOutcome::Painted);
        // Each copy is a bar of letters from the centre outwards, in a direction of its own.
        EXPECT_EQ(inkDirections(image(), QPointF(200, 200), 80, 190), n);
    }
}

TEST_F(TextTest, TheShadowLiesByTheAngleOfTheText)
{
    EXPECT_EQ(text::shadowOffset(0, 2), QPoint(2, -2));
    EXPECT_EQ(text::shadowOffset(90, 2), QPoint(2, -2));
    EXPECT_EQ(text::shadowOffset(180, 2), QPoint(-2, -2));
    EXPECT_EQ(text::shadowOffset(270, 2), QPoint(2, 2));
    EXPECT_EQ(text::shadowOffset(45, 3), QPoint(4, 0)); // (|s|+|c|)*3 = 4.24, (s-c)*3 = 0
    EXPECT_EQ(text::shadowOffset(0, 0), QPoint(0, 0));

    // The shadow's colour shows beside the text's.
    set("cmbShadeThickness", QStringLiteral("3"));
    set("icb1Color3D", QStringLiteral("0"));
    text(QStringLiteral("Schatten"));
    ASSERT_EQ(paint("TEXT-Dialog"), PaintOutcome::Painted);
    EXPECT_GT(count(0x808080), 0);
    EXPECT_GT(count(Ink), 0);
}

TEST_F(TextTest, AntiAliasingMixesTheEdgesAndItsAbsenceKeepsTwoColours)
{
    text(QStringLiteral("Kante"));
    set("TDW1", QStringLiteral("30"), 0);
    const auto colours = [this] {
        std::set<QRgb> seen;
        for (int y = 0; y < image().height(); ++y)
            for (int x = 0; x < image().width(); ++x) seen.insert(image().pixel(x, y) & 0xFFFFFF);
        return seen.size();
    };
    ASSERT_EQ(paint("TEXT-Dialog"), PaintOutcome::Painted);
    EXPECT_EQ(colours(), 2u);
    ground(White);
    set("XFntAntiAlias", QStringLiteral("1"));
    ASSERT_EQ(paint("TEXT-Dialog"), PaintOutcome::Painted);
    EXPECT_GT(colours(), 10u);
}

TEST_F(TextTest, TheCircleAndTheSpiralPaintTheirLettersRoundTheCentre)
{
    set("XCenter", QStringLiteral("1"));
    text(QStringLiteral("Rund um die Mitte"));
    for (const char *key : {"TEXT-Circular", "TEXT-Spiral"}) {
        SCOPED_TRACE(key);
        ground(White);
        ASSERT_EQ(paint(key), PaintOutcome::Painted);
        const QRect ink = inkIn();
        ASSERT_FALSE(ink.isEmpty());
        // Nothing lies at the centre itself.
        EXPECT_TRUE(inkIn(QRect(180, 130, 40, 40)).isEmpty());
    }
    // The circle mode spreads the text round the whole circle: ink on all four sides.
    ground(White);
    ASSERT_EQ(paint("TEXT-Circular"), PaintOutcome::Painted);
    const QRect ink = inkIn();
    EXPECT_LT(ink.left(), 200 - 80);
    EXPECT_GT(ink.right(), 200 + 80);
    EXPECT_LT(ink.top(), 150 - 80);
    EXPECT_GT(ink.bottom(), 150 + 80);
}

TEST_F(TextTest, EveryTextTypePaintsWithRandomColoursTablesAndTransparency)
{
    s.colours().RandomColors = true;
    s.colours().RandomValues = true;
    text(QStringLiteral("Größe"));
    for (const char *key : {"TEXT-Dialog", "TEXT-Textblock", "TEXT-StarRotated", "TEXT-Circular",
                            "TEXT-Spiral"}) {
        SCOPED_TRACE(key);
        for (int duo = -1; duo < 2; ++duo) {
            s.colours().XDuotones = {duo == 0, duo == 1};
            set("ScrollTransparence", duo == 1 ? QStringLiteral("50") : QStringLiteral("0"));
            ground(White);
            ASSERT_EQ(paint(key, 7), PaintOutcome::Painted);
            EXPECT_EQ(prompter.lastText(), QString());
        }
    }
}

TEST_F(TextTest, MixedFontsLoadTheSystemsFontList)
{
    set("XText_Mixfonts", QStringLiteral("1"));
    text(QStringLiteral("Gemischt"));
    ASSERT_EQ(paint("TEXT-Textblock"), PaintOutcome::Painted);
    EXPECT_TRUE(s.text().UseMixFonts);
    EXPECT_GT(s.text().FontCount(), 0);
}

TEST_F(TextTest, TheNextClickPlacesTheDialogsText)
{
    const auto where = findType(QStringLiteral("TEXT-Dialog"));
    ASSERT_TRUE(where);
    mn_Grafmodes(s, where->group);
    ListBoxType_Click(s, where->listIndex);

    EXPECT_FALSE(placeTextAt(s, 5, 5)); // not armed
    armTextPlacing(s, TextPlacing::Centre);
    EXPECT_TRUE(placeTextAt(s, 123, 45));
    EXPECT_EQ(s.controls().text(ControlKey{QStringLiteral("txtDialogXYPos"), 0}), QStringLiteral("123"));
    EXPECT_EQ(s.controls().text(ControlKey{QStringLiteral("txtDialogXYPos"), 1}), QStringLiteral("45"));
    EXPECT_TRUE(s.controls().checked(QStringLiteral("XTextDialog_Center")));
    EXPECT_EQ(s.text().placing, TextPlacing::Off);
    EXPECT_FALSE(placeTextAt(s, 1, 1)); // one click only

    armTextPlacing(s, TextPlacing::Corner);
    EXPECT_TRUE(placeTextAt(s, 7, 8));
    EXPECT_FALSE(s.controls().checked(QStringLiteral("XTextDialog_Center")));

    // Armed, then another type chosen: the click is not the text's.
    armTextPlacing(s, TextPlacing::Corner);
    ListBoxType_Click(s, where->listIndex + 1);
    EXPECT_FALSE(placeTextAt(s, 9, 9));
}

TEST_F(TextTest, TheTextBlockMarginsStartAtTheProgramsTextBlockStep)
{
    const Session fresh;
    for (int i : {0, 1})
        EXPECT_EQ(fresh.controls().value(ControlKey{QStringLiteral("scrollTextBlock"), i}),
                  fresh.startValues().TextBlockStep);
}

} // namespace
