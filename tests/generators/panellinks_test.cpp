// The links of the Mondrian and lead-glass panels as the painters see them: a disabled check box
// paints as if it were off, whatever it keeps, and "Alle Rahmen zeichnen" switches the borders
// on, from --set values as from the panel.
#include "paintfixture.h"

#include "core/picturebox.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

struct PanelLinksTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(240, 240);
        fixedColours(0x000000, 0xFFFFFF);
        set("cmbPen", "2");
    }
    QImage painted(const char *key, uint32_t seed)
    {
        EXPECT_EQ(paint(key, seed), PaintOutcome::Painted);
        EXPECT_TRUE(prompter.asked().empty());
        return s.workspace().Bild.Image().copy();
    }
    bool checked(const char *name, int index = -1) { return s.controls().checked(controlKey(name, index)); }
};

TEST_F(PanelLinksTest, AllFramesSwitchesTheBordersOnInBothPanels)
{
    for (const char *box : {"XMondrian", "XMLG"}) {
        const int index = QLatin1String(box) == QLatin1String("XMondrian") ? 3 : 2;
        set(box, "0", index);
        set("XBorders", "0");
        set(box, "1", index);
        EXPECT_TRUE(checked("XBorders")) << box;
        // Turning the borders off afterwards is the user's to do, and stays.
        set("XBorders", "0");
        EXPECT_FALSE(checked("XBorders")) << box;
        EXPECT_TRUE(checked(box, index));
    }
}

TEST_F(PanelLinksTest, HarmonicSplitsPaintAsOffWithoutSubdivisionAndKeepTheirValue)
{
    // Lead glass: "Unterteilung harmonisch" only with "Unterteilung verwenden".
    set("txtMLGKachel", "6", 0);
    set("txtMLGKachel", "6", 1);
    set("XMLG", "0", 6);
    set("XMLG", "0", 7);
    const QImage plain = painted("ART-Mondrian-LeadGlass", 9);
    set("XMLG", "1", 7);
    EXPECT_FALSE(s.controls().enabled(controlKey("XMLG", 7)));
    EXPECT_EQ(painted("ART-Mondrian-LeadGlass", 9), plain);
    set("XMLG", "1", 6);
    EXPECT_TRUE(checked("XMLG", 7)); // kept while disabled

    // Mondrian: also disabled while both halves are symmetric.
    set("txtMondrian", "5", 0);
    set("txtMondrian", "5", 1);
    set("XMondrian", "1", 0);
    set("XMondrian", "1", 1);
    set("XMondrian", "1", 2);
    set("XMondrian", "0", 5);
    const QImage even = painted("ART-Mondrian", 4);
    set("XMondrian", "1", 5);
    EXPECT_FALSE(checked("XMondrian", 5));
    EXPECT_EQ(painted("ART-Mondrian", 4), even);
    set("XMondrian", "0", 1);
    EXPECT_TRUE(checked("XMondrian", 5));
}

TEST_F(PanelLinksTest, TheBoogieTypesDisableFormatAndMarginAndEnableTheirOwnControls)
{
    const ControlKey format = controlKey("cmbMondrian_Format", 0);
    const ControlKey margin = controlKey("txtMondrian", 2);
    set("cmbMondrian_Format", "2", 0);
    set("txtMondrian", "40", 2);
    set("XMondrian", "1", 6);
    EXPECT_EQ(s.controls().listIndex(format), 2);
    EXPECT_FALSE(checked("XMondrian", 6)); // a Boogie's box under a standard type
    EXPECT_FALSE(s.controls().enabled(controlKey("pic4C", 0)));
    set("cmbMondrian_Format", "4", 1);
    EXPECT_EQ(s.controls().listIndex(format), 0);
    EXPECT_EQ(s.controls().value(margin), 0);
    EXPECT_TRUE(checked("XMondrian", 6));
    EXPECT_TRUE(s.controls().enabled(controlKey("pic4C", 0)));
    EXPECT_TRUE(s.controls().enabled(controlKey("pic4C", 4))); // the Superformat's ground stays
    set("XMondrian", "0", 7);
    EXPECT_FALSE(s.controls().enabled(controlKey("cmbMondrian_Format", 3)));
    set("cmbMondrian_Format", "1", 1);
    EXPECT_EQ(s.controls().listIndex(format), 2);
    EXPECT_EQ(s.controls().value(margin), 40);
}

} // namespace

// The photo mosaic's three dependent boxes read as off while the box they hang on says no.
TEST_F(PanelLinksTest, TheMosaicsDependentBoxesReadAsOffUntilTheirBoxAllowsThem)
{
    struct Rule {
        const char *box;
        int index;
        const char *on;
        int onIndex;
        const char *allowed; // the value of `on` that enables `box`
    };
    for (const Rule &r : {Rule{"XPicMosaik", 3, "XPicMosaik", 2, "1"},
                          Rule{"XPicMosaik_UseSmallPics", 1, "XPicMosaik_UseSmallPics", 0, "1"},
                          Rule{"XPicMosaik_FillOnlyEmpty", -1, "XPicMosaik_FillAll", -1, "0"}}) {
        const char *other = QLatin1String(r.allowed) == QLatin1String("1") ? "0" : "1";
        set(r.on, other, r.onIndex);
        set(r.box, "1", r.index);
        EXPECT_FALSE(checked(r.box, r.index)) << r.box;
        set(r.on, r.allowed, r.onIndex);
        EXPECT_TRUE(checked(r.box, r.index)) << r.box;
    }
}
