#include "core/language.h"
#include "paint/bildformate.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <set>

using namespace tf;

namespace {

// Sets the dimensioning of group 2 for one test.
struct TilesScope {
    explicit TilesScope(bool on) { setInternalTilesAvailable(on); }
    ~TilesScope() { setInternalTilesAvailable(std::nullopt); }
};

QStringList keysOf(int group)
{
    QStringList out;
    for (const CatalogueRow &row : groupRows(group))
        out << QString::fromUtf8(row.key);
    return out;
}

} // namespace

TEST(Catalogue, TenGroupsOfUniqueKeysWithSeparatorsThatAreDashesInAllColumns)
{
    TilesScope tiles(true);
    std::set<QString> keys;
    for (int g = 1; g <= GroupCount; ++g) {
        EXPECT_FALSE(groupRows(g).empty()) << "group " << g;
        for (const CatalogueRow &row : groupRows(g)) {
            if (row.isSeparator()) {
                EXPECT_STREQ(row.english, "-");
                EXPECT_STREQ(row.german, "-");
            } else {
                EXPECT_TRUE(keys.insert(QString::fromUtf8(row.key)).second) << row.key;
            }
        }
    }
    EXPECT_EQ(catalogueGroup(0), nullptr);
    EXPECT_EQ(catalogueGroup(11), nullptr);
    EXPECT_TRUE(groupRows(11).empty());
    EXPECT_EQ(groupRow(1, -1), nullptr);
    EXPECT_EQ(groupRow(10, 6), nullptr);
}

TEST(Catalogue, GroupTwoHasTheInternalTilesOnlyInItsLargerDimensioning)
{
    {
        TilesScope tiles(false);
        EXPECT_EQ(groupRows(2).size(), 14u);
        EXPECT_EQ(keysOf(2).last(), QStringLiteral("Photo-CUBESuper"));
        EXPECT_FALSE(findType(QStringLiteral("Interne Kacheln")));
    }
    TilesScope tiles(true);
    EXPECT_EQ(keysOf(2).mid(13), (QStringList{"Photo-CUBESuper", "-", "Interne Kacheln"}));
    const auto where = findType(QStringLiteral("Interne Kacheln"));
    ASSERT_TRUE(where);
    EXPECT_EQ(std::pair(where->group, where->listIndex), std::pair(2, 15));
}

TEST(Catalogue, FindsTypesButNotTheSeparator)
{
    const auto neon = findType(QStringLiteral("Neon vertical"));
    ASSERT_TRUE(neon);
    EXPECT_EQ(std::pair(neon->group, neon->listIndex), std::pair(5, 11));
    EXPECT_EQ(groupRow(5, 11)->caption(Language::German), QStringLiteral("Neon vertikal"));
    EXPECT_FALSE(findType(QStringLiteral("-")));
    EXPECT_FALSE(findType(QStringLiteral("Neon  vertical")));
    EXPECT_FALSE(findType(QStringLiteral("backgroundcolor")));
}

TEST(Catalogue, GroupTitlesOfTheMenuTranslateToTheCataloguesEnglishTitles)
{
    for (const Language lang : {Language::English, Language::German}) {
        setLanguage(lang);
        for (int g = 1; g <= GroupCount; ++g)
            EXPECT_EQ(QCoreApplication::translate("Groups", groupTitle(g)), groupCaption(g, lang))
                << g;
    }
    EXPECT_EQ(typeCaptions(10).first(), QStringLiteral("Linien"));
    setLanguage(Language::English);
    EXPECT_EQ(typeCaptions(10),
              (QStringList{"Lines", "Musical notation", "-", "Diamonds", "-", "Wave grid"}));
    setLanguage(Language::German);
    EXPECT_EQ(groupCaption(2, Language::English), QStringLiteral("Photo && Arts"));
    EXPECT_STREQ(groupTitle(0), "");
}

TEST(GrafMenu, ShowingAGroupRestoresItsLastTypeAndClearsTheKey)
{
    Session s;
    PaintState &p = s.paint();
    struct Changes : SessionView {
        std::vector<GrafDialogState::Change> seen;
        void grafDialogChanged(GrafDialogState::Change c) override { seen.push_back(c); }
    } view;
    s.setView(&view);
    const std::vector<GrafDialogState::Change> &changes = view.seen;
    p.GrafTypeMem[5] = 11;
    p.GrafKey = QStringLiteral("Backgroundcolor");
    mn_Grafmodes(s, 5);
    EXPECT_EQ(std::pair(p.GrafGroup, p.dialog.ListIndex()), std::pair(5, 11));
    EXPECT_TRUE(p.GrafKey.isEmpty());
    ASSERT_FALSE(changes.empty());
    EXPECT_EQ(changes.front(), GrafDialogState::Change::TypeList);

    Hole_GMENU(s, 12);
    EXPECT_EQ(p.GrafKey, QStringLiteral("Neon vertical"));
    // Rows outside the list and groups outside 1..10 leave the key alone.
    Hole_GMENU(s, 0);
    Hole_GMENU(s, 28);
    EXPECT_EQ(p.GrafKey, QStringLiteral("Neon vertical"));
    mn_Grafmodes(s, 11);
    EXPECT_EQ(p.GrafGroup, 5);
    p.GrafGroup = 12;
    Hole_GMENU(s, 1);
    EXPECT_EQ(p.GrafKey, QStringLiteral("Neon vertical"));
}

TEST(Bildformate, CentimetresAndInchesBecomePixelsRoundedHalfToEven)
{
    // DIN-A4: 21 x 29.7 cm.
    EXPECT_EQ(Calc_Bildformate_WH(2, 300, 0, 0, Language::German), QSize(2480, 3508));
    EXPECT_EQ(Calc_Bildformate_WH(3, 72, 0, 0, Language::German), QSize(842, 595));
    EXPECT_EQ(Calc_Bildformate_WH(10, 254, 0, 0, Language::English), QSize(1200, 1200));
    // The free formats: pixels as given; a length in cm (German) or inches (English).
    EXPECT_EQ(Calc_Bildformate_WH(0, 300, 800, 600, Language::German), QSize(800, 600));
    EXPECT_EQ(Calc_Bildformate_WH(1, 254, 10, 5, Language::German), QSize(1000, 500));
    EXPECT_EQ(Calc_Bildformate_WH(1, 5, 0.5, 1.5, Language::English), QSize(2, 8));
    EXPECT_EQ(Calc_Bildformate_WH(19, 300, 0, 0, Language::German), QSize());
    EXPECT_EQ(pixelSizeLabel(QSize(2480, 3508)), QStringLiteral("2480 x 3508 px"));
}
