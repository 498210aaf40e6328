// The gradient group in the desktop program: its option panels come on top with their types,
// the type list shows previews, a paint with chosen options is repeated by its command line.
// With TF_SCREENSHOTS set to a folder the window is also saved there after each paint.
#include "paint/paintrecord.h"
#include "windowfixture.h"


using namespace tf;

namespace {

struct GradientWindowTest : StartedWindow {
    void SetUp() override
    {
        StartedWindow::SetUp();
        window->resize(1500, 1000);
        mn_Grafmodes(window->session(), 5);
    }
};

} // namespace

TEST_F(GradientWindowTest, EachFilteredGradientBringsItsOwnPanelOnTop)
{
    ASSERT_TRUE(options());
    choose("Chromo-Steps");
    EXPECT_EQ(options()->currentPanel(), QStringLiteral("feat_24Chromo"));
    choose("Framegradient-Transp");
    EXPECT_EQ(options()->currentPanel(), QStringLiteral("feat_25FrameGradient"));
    choose("Frequenzgradient-Transp");
    EXPECT_EQ(options()->currentPanel(), QStringLiteral("feat_26Frequenz"));
    choose("H-Gradient");
    EXPECT_EQ(options()->currentPanel(), QString());
}

TEST_F(GradientWindowTest, AClickOnTheRememberedRowAfterAChangeOfGroupBringsItsPanel)
{
    choose("Chromo-Steps");
    paintButton()->click(); // a paint makes it the group's last type
    QApplication::processEvents();
    mn_Grafmodes(window->session(), 4);
    mn_Grafmodes(window->session(), 5);
    QApplication::processEvents();
    ASSERT_EQ(typeList()->currentRow(), findType(QStringLiteral("Chromo-Steps"))->listIndex);
    EXPECT_TRUE(window->session().paint().GrafKey.isEmpty());
    emit typeList()->itemClicked(typeList()->currentItem());
    QApplication::processEvents();
    EXPECT_EQ(window->session().paint().GrafKey, QStringLiteral("Chromo-Steps"));
    EXPECT_EQ(options()->currentPanel(), QStringLiteral("feat_24Chromo"));
}

TEST_F(GradientWindowTest, TheTypeListShowsAPreviewOfEveryGradient)
{
    for (int i = 0; i < typeList()->count(); ++i) {
        const CatalogueRow *row = groupRow(5, i);
        if (row->isSeparator()) continue;
        const QString key = QString::fromUtf8(row->key);
        if (!findPainter(window->session().painters(), key)->paint) continue;
        EXPECT_FALSE(typeList()->item(i)->icon().isNull()) << row->key;
    }
}

TEST_F(GradientWindowTest, AFrameGradientWithChosenOptionsIsRepeatedByItsCommandLine)
{
    Session &s = window->session();
    // A picture to lay the frame over.
    choose("Lense");
    paintButton()->click();
    screenshot(*window, "gradient-lense");
    choose("Framegradient-Transp");
    s.colours().RandomValues = false;
    s.controls().set({QStringLiteral("optGColorTyp")}, QStringLiteral("1"));
    s.controls().set({QStringLiteral("txtGColorBorder"), 0}, QStringLiteral("60"));
    s.controls().set({QStringLiteral("chkGPassepartout")}, QStringLiteral("1"));
    paintButton()->click();
    screenshot(*window, "gradient-frame");
    ASSERT_TRUE(s.paint().lastPaint.has_value());

    // On a cleared picture, as the command line paints, the same options give the same bytes.
    s.workspace().Bild.setPicture(QImage());
    s.paint().nextSeed = s.paint().lastPaint->seed;
    paintButton()->click();
    const QImage painted = s.workspace().Bild.Image().convertToFormat(QImage::Format_RGB32);
    const QStringList args = paintCommandArguments(*s.paint().lastPaint);
    EXPECT_TRUE(args.contains(QStringLiteral("chkGPassepartout=1")));
    EXPECT_EQ(writtenBy(args + QStringList{QStringLiteral("-o"), outFile()}), painted);
}
