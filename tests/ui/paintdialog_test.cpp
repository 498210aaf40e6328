#include "paint/paintdriver.h"
#include "paint/paintrecord.h"
#include "windowfixture.h"

#include <QDockWidget>

using namespace tf;

namespace {

using PaintDialogTest = StartedWindow;

} // namespace

TEST_F(PaintDialogTest, TheTypeListFollowsTheGroupAndShowsItsRows)
{
    ASSERT_TRUE(typeList());
    EXPECT_EQ(typeList()->count(), int(groupRows(1).size()));
    EXPECT_EQ(typeList()->item(0)->text(), QStringLiteral("Hintergrundfarbe"));
    mn_Grafmodes(window->session(), 5);
    EXPECT_EQ(typeList()->count(), int(groupRows(5).size()));
    // Separators cannot be chosen.
    for (int i = 0; i < typeList()->count(); ++i) {
        if (groupRow(5, i)->isSeparator()) {
            EXPECT_EQ(typeList()->item(i)->flags(), Qt::NoItemFlags);
        }
    }
}

TEST_F(PaintDialogTest, PaintWithoutATypeOnlyTellsTheUser)
{
    const QImage before = window->session().workspace().Bild.Image();
    paintButton()->click();
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Sie haben keine Grafikoption ausgewählt!"));
    EXPECT_EQ(window->session().workspace().Bild.Image(), before);
}

