// Links between controls: a control enabled only with others, read at rest while disabled, and
// a change that sets another control, with the order a record lists them in.
#include "paint/controls.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

// A panel shaped as the photo mosaic's: a list whose index enables two check boxes, a check box
// that disables another, and a check box that switches a control of another panel on.
const ControlPanel &linkedPanel()
{
    using K = ControlKind;
    static const ControlPanel panel{
        QStringLiteral("feat_LinkTest"),
        "Test",
        {
            controlSpec("cmbLinkType", -1, K::ListIndex, "Typ", "0", 0, 3, {"a", "b", "c", "d"}),
            controlSpec("XLink", 0, K::Checked, "Unterteilung", "0"),
            controlSpec("XLink", 1, K::Checked, "Harmonisch", "0"),
            controlSpec("XLink", 2, K::Checked, "Kacheln", "1"),
            controlSpec("XLink", 3, K::Checked, "Alle füllen", "0"),
            controlSpec("XLink", 4, K::Checked, "Nur freie", "1"),
            controlSpec("XLink", 5, K::Checked, "Alle Rahmen", "0"),
            controlSpec("cmbLinkFormat", -1, K::ListIndex, "Format", "0", 0, 2, {"q", "v", "h"}),
            controlSpec("XLinkSym", 0, K::Checked, "H sym", "0"),
            controlSpec("XLinkSym", 1, K::Checked, "V sym", "0"),
            controlSpec("XLinkColours", -1, K::Checked, "4 Farben", "0"),
            controlSpec("picLinkColour", -1, K::Colour, "Farbe", "255"),
            controlSpec("XABorders", -1, K::Checked, "Ränder", "1"),
        },
        {},
        {
            enabledOnlyWith({controlKey("XLink", 1)}, {valueIn("cmbLinkType", -1, {2})}),
            enabledOnlyWith({controlKey("XLink", 2)}, {valueIn("cmbLinkType", -1, {0})}),
            enabledOnlyWith({controlKey("XLink", 4)}, {isOff("XLink", 3)}),
            enabledOnlyWith({controlKey("cmbLinkFormat"), controlKey("XLinkColours")},
                            {valueIn("cmbLinkType", -1, {0, 1})}),
            enabledOnlyWith({controlKey("picLinkColour")}, {isOn("XLinkColours")}),
            enabledOnlyWith({controlKey("XLinkSym", 1)},
                            {isOn("XLink", 0), anyOf({isOff("XLinkSym", 0), isOff("XLink", 3)})}),
            setsWhen(isOn("XLink", 5), {controlKey("XABorders")}, "1"),
        }};
    return panel;
}

struct ControlLinksTest : ::testing::Test {
    void SetUp() override { registerControlPanel(&linkedPanel()); }
    Controls c;
    static ControlKey k(const char *name, int index = -1) { return controlKey(name, index); }
    void set(const char *name, int index, const char *value)
    {
        ASSERT_TRUE(c.set(k(name, index), QString::fromLatin1(value)));
    }
};

} // namespace

TEST_F(ControlLinksTest, TheMosaicsThreeRulesHoldAndADisabledControlKeepsItsValue)
{
    c.addDefaults(linkedPanel());
    // "only with index 2": off at index 0, the value kept and read at rest.
    set("XLink", 1, "1");
    EXPECT_FALSE(c.enabled(k("XLink", 1)));
    EXPECT_EQ(c.stored(k("XLink", 1)), QStringLiteral("1"));
    EXPECT_FALSE(c.checked(k("XLink", 1)));
    set("cmbLinkType", -1, "2");
    EXPECT_TRUE(c.enabled(k("XLink", 1)));
    EXPECT_TRUE(c.checked(k("XLink", 1)));
    // "only with index 0": a check box on by default reads off at index 2.
    EXPECT_FALSE(c.enabled(k("XLink", 2)));
    EXPECT_FALSE(c.checked(k("XLink", 2)));
    EXPECT_EQ(c.stored(k("XLink", 2)), QStringLiteral("1"));
    // "disabled with": on while the other is off.
    EXPECT_TRUE(c.checked(k("XLink", 4)));
    set("XLink", 3, "1");
    EXPECT_FALSE(c.enabled(k("XLink", 4)));
    EXPECT_FALSE(c.checked(k("XLink", 4)));
    set("XLink", 3, "0");
    EXPECT_TRUE(c.checked(k("XLink", 4)));
}

TEST_F(ControlLinksTest, ADisabledListReadsItsDefaultAndAChainFollowsTheControlItHangsOn)
{
    c.addDefaults(linkedPanel());
    set("cmbLinkFormat", -1, "2");
    set("XLinkColours", -1, "1");
    set("picLinkColour", -1, "#00FF00");
    EXPECT_EQ(c.listIndex(k("cmbLinkFormat")), 2);
    EXPECT_TRUE(c.enabled(k("picLinkColour")));
    set("cmbLinkType", -1, "3");
    EXPECT_EQ(c.listIndex(k("cmbLinkFormat")), 0);
    EXPECT_EQ(c.stored(k("cmbLinkFormat")), QStringLiteral("2"));
    // " 4 Farben" is disabled and reads off, so the colour it enables is disabled too.
    EXPECT_FALSE(c.enabled(k("picLinkColour")));
    EXPECT_EQ(c.value(k("picLinkColour")), 255);
    set("cmbLinkType", -1, "1");
    EXPECT_EQ(c.listIndex(k("cmbLinkFormat")), 2);
    EXPECT_EQ(c.value(k("picLinkColour")), 0x00FF00);
}

TEST_F(ControlLinksTest, AConditionOfClausesNeedsEveryClauseAndOneTestOfEach)
{
    c.addDefaults(linkedPanel());
    const ControlKey target = k("XLinkSym", 1);
    EXPECT_FALSE(c.enabled(target)); // XLink(0) off
    set("XLink", 0, "1");
    EXPECT_TRUE(c.enabled(target));
    set("XLinkSym", 0, "1");
    EXPECT_TRUE(c.enabled(target)); // XLink(3) still off
    set("XLink", 3, "1");
    EXPECT_FALSE(c.enabled(target));
    set("XLinkSym", 0, "0");
    EXPECT_TRUE(c.enabled(target));
}

TEST_F(ControlLinksTest, SwitchingOnSetsTheOtherControlAndThePainterWriteDoesNot)
{
    c.addDefaults(linkedPanel());
    struct Seen : ControlsView {
        std::vector<QString> keys;
        void controlChanged(const ControlKey &key) override { keys.push_back(key.toString()); }
    } view;
    c.setView(&view);
    set("XABorders", -1, "0");
    set("XLink", 5, "1");
    EXPECT_TRUE(c.checked(k("XABorders")));
    EXPECT_EQ(view.keys.back(), QStringLiteral("XABorders"));
    // Setting it again changes nothing, so it sets nothing either.
    set("XABorders", -1, "0");
    set("XLink", 5, "1");
    EXPECT_FALSE(c.checked(k("XABorders")));
    // Switching it off sets nothing.
    set("XLink", 5, "0");
    EXPECT_FALSE(c.checked(k("XABorders")));
    // A painter writing the field as it stands fires no link.
    c.setRaw(k("XLink", 5), QStringLiteral("1"));
    EXPECT_FALSE(c.checked(k("XABorders")));
    c.setView(nullptr);
}

TEST_F(ControlLinksTest, ChangedListsTheSettingControlFirstSoThatAReplayGivesTheSameValues)
{
    c.addDefaults(linkedPanel());
    // The borders sort before the switch that sets them: set in that order, the switch would
    // switch them on again.
    set("XLink", 5, "1");
    set("XABorders", -1, "0");
    set("cmbLinkType", -1, "1");
    const auto listed = c.changed();
    ASSERT_EQ(listed.size(), 3u);
    EXPECT_EQ(listed.front().first, k("XLink", 5));
    EXPECT_EQ(listed.back().first, k("XABorders"));

    Controls replay;
    replay.addDefaults(linkedPanel());
    for (const auto &[key, value] : listed)
        ASSERT_TRUE(replay.set(key, value));
    EXPECT_EQ(replay.changed(), listed);
    EXPECT_FALSE(replay.checked(k("XABorders")));

    // A control such a change sets is listed even at its default, so the replay keeps it.
    set("XABorders", -1, "1");
    EXPECT_EQ(c.changed().back(), std::make_pair(k("XABorders"), QStringLiteral("1")));
    // Not so once the switch is back at rest.
    set("XLink", 5, "0");
    EXPECT_EQ(c.changed().size(), 1u);
}

TEST_F(ControlLinksTest, ARuleIsWrittenOutForTheListing)
{
    const auto &links = linkedPanel().links;
    EXPECT_EQ(links[0].describe(), QStringLiteral("nur mit cmbLinkType = 2"));
    EXPECT_EQ(links[3].describe(), QStringLiteral("nur mit cmbLinkType in 0,1"));
    EXPECT_EQ(links[5].describe(),
              QStringLiteral("nur mit XLink(0) = 1 und (XLinkSym(0) = 0 oder XLink(3) = 0)"));
    EXPECT_EQ(links[6].describe(), QStringLiteral("setzt XABorders auf 1 bei XLink(5) = 1"));
}
