#include "paint/controls.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

// A panel shaped like a real one: a split count with its clamp, a list, a check box, a value
// and a colour, one of them a control array.
ControlSpec control(ControlKey key, ControlKind kind, const char *defaultValue, int min = 0,
                 int max = 0, std::vector<const char *> items = {})
{
    ControlSpec c;
    c.key = std::move(key);
    c.kind = kind;
    c.defaultValue = QString::fromLatin1(defaultValue);
    c.min = min;
    c.max = max;
    c.items = std::move(items);
    return c;
}

const ControlPanel &samplePanel()
{
    static const ControlPanel panel{
        QStringLiteral("feat_Test"),
        "Test",
        {control({QStringLiteral("txtSplits"), 0}, ControlKind::Text, "2", 2, 50),
         control({QStringLiteral("cmbFormat")}, ControlKind::ListIndex, "0", 0, 0,
              {"Quadratisch", "Vertikal"}),
         control({QStringLiteral("XFillTest")}, ControlKind::Checked, "1"),
         control({QStringLiteral("scrollTest")}, ControlKind::Value, "10", 1, 100),
         control({QStringLiteral("picTestColour")}, ControlKind::Colour, "0")}};
    return panel;
}

struct ControlsTest : ::testing::Test {
    void SetUp() override { registerControlPanel(&samplePanel()); }
};

} // namespace

TEST(ControlKeyTest, ParsesNamesAndIndices)
{
    EXPECT_EQ(ControlKey::parse(QStringLiteral("txtMondrian(2)")),
              (ControlKey{QStringLiteral("txtMondrian"), 2}));
    EXPECT_EQ(ControlKey::parse(QStringLiteral("XFill"))->index, -1);
    EXPECT_EQ((ControlKey{QStringLiteral("txtMondrian"), 2}).toString(),
              QStringLiteral("txtMondrian(2)"));
    EXPECT_FALSE(ControlKey::parse(QStringLiteral("txt(")));
    EXPECT_FALSE(ControlKey::parse(QStringLiteral("2abc")));
}

TEST(ValTest, ReadsTheLeadingNumber)
{
    EXPECT_EQ(Val(QStringLiteral("  12abc")), 12.0);
    EXPECT_EQ(Val(QStringLiteral("-3.5")), -3.5);
    EXPECT_EQ(Val(QStringLiteral("abc")), 0.0);
    EXPECT_EQ(Val(QString()), 0.0);
}

TEST_F(ControlsTest, DefaultsAndNormalisingRules)
{
    Controls c;
    const ControlKey splits{QStringLiteral("txtSplits"), 0};
    EXPECT_EQ(c.text(splits), QStringLiteral("2"));
    EXPECT_TRUE(c.set(splits, QStringLiteral("1")));
    EXPECT_EQ(c.text(splits), QStringLiteral("2")); // below 2 is rewritten as "2"
    EXPECT_TRUE(c.set(splits, QStringLiteral("77")));
    EXPECT_EQ(c.text(splits), QStringLiteral("50"));
    EXPECT_TRUE(c.set(splits, QStringLiteral("7")));
    EXPECT_EQ(c.value(splits), 7);
    EXPECT_FALSE(c.set({QStringLiteral("txtSplits"), 5}, QStringLiteral("3"))); // no such index

    EXPECT_TRUE(c.checked(QStringLiteral("XFillTest")));
    EXPECT_TRUE(c.set({QStringLiteral("XFillTest")}, QStringLiteral("off")));
    EXPECT_FALSE(c.checked(QStringLiteral("XFillTest")));
    EXPECT_FALSE(c.set({QStringLiteral("XFillTest")}, QStringLiteral("maybe")));

    EXPECT_TRUE(c.set({QStringLiteral("cmbFormat")}, QStringLiteral("Vertikal")));
    EXPECT_EQ(c.value(QStringLiteral("cmbFormat")), 1);
    EXPECT_TRUE(c.set({QStringLiteral("cmbFormat")}, QStringLiteral("Quadratisch")));
    EXPECT_EQ(c.value(QStringLiteral("cmbFormat")), 0);
    EXPECT_FALSE(c.set({QStringLiteral("cmbFormat")}, QStringLiteral("2")));

    EXPECT_TRUE(c.set({QStringLiteral("scrollTest")}, QStringLiteral("500")));
    EXPECT_EQ(c.value(QStringLiteral("scrollTest")), 100);
    EXPECT_FALSE(c.set({QStringLiteral("scrollTest")}, QStringLiteral("x")));

    EXPECT_TRUE(c.set({QStringLiteral("picTestColour")}, QStringLiteral("#FF8000")));
    EXPECT_EQ(c.value(QStringLiteral("picTestColour")), 0x0080FF); // 0x00BBGGRR
    EXPECT_FALSE(c.set({QStringLiteral("nope")}, QStringLiteral("1")));
}

TEST_F(ControlsTest, ChangedListsOnlyWhatDiffersAndTheViewSeesEachChange)
{
    Controls c;
    struct Seen : ControlsView {
        std::vector<QString> keys;
        void controlChanged(const ControlKey &k) override { keys.push_back(k.toString()); }
    } view;
    std::vector<QString> &seen = view.keys;
    c.setView(&view);
    c.set({QStringLiteral("scrollTest")}, QStringLiteral("10")); // the default: no change
    c.set({QStringLiteral("scrollTest")}, QStringLiteral("11"));
    c.set({QStringLiteral("txtSplits"), 0}, QStringLiteral("4"));
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[1], QStringLiteral("txtSplits(0)"));
    const auto changed = c.changed();
    ASSERT_EQ(changed.size(), 2u);
    c.resetToDefaults();
    EXPECT_TRUE(c.changed().empty());
}
