#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/controls.h"

#include <gtest/gtest.h>
#include <map>

using namespace tf;

TEST(PainterTable, EveryKeyOfTheCatalogueIsInTheDispatchTableExactlyOnce)
{
    setInternalTilesAvailable(true);
    std::map<QString, int> inTable;
    for (const PainterEntry &e : painterTable())
        ++inTable[QString::fromUtf8(e.key)];
    size_t catalogueKeys = 0;
    for (int g = 1; g <= GroupCount; ++g)
        for (const CatalogueRow &row : groupRows(g)) {
            if (row.isSeparator()) continue;
            ++catalogueKeys;
            EXPECT_EQ(inTable[QString::fromUtf8(row.key)], 1) << row.key;
        }
    setInternalTilesAvailable(std::nullopt);
    EXPECT_EQ(painterTable().size(), catalogueKeys);
    EXPECT_EQ(inTable.count(QStringLiteral("-")), 0u);
}

TEST(PainterTable, RegisteringTwiceRegistersTheGeneralPanelOnce)
{
    registerAllPanels();
    const size_t panels = controlPanels().size();
    registerAllPanels();
    EXPECT_EQ(controlPanels().size(), panels);
    EXPECT_NE(findControlSpec(ControlKey{QStringLiteral("ScrollTransparence")}), nullptr);
    ASSERT_NE(findPainter(painterTable(), QStringLiteral("Backgroundcolor")), nullptr);
}
