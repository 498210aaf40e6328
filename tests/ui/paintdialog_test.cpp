#include "paint/paintdriver.h"
#include "paint/paintrecord.h"
#include "windowfixture.h"

#include <QDockWidget>
#include <QProcess>

using namespace tf;

namespace {

struct PaintDialogTest : WindowFixture {
    void SetUp() override
    {
        WindowFixture::SetUp();
        start();
    }
};

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

TEST_F(PaintDialogTest, TheCopiedCommandLineReproducesAGuiPaint)
{
    window->session().controls().set({QStringLiteral("ScrollTransparence")}, QStringLiteral("0"));
    typeList()->setCurrentRow(0); // Backgroundcolor
    paintButton()->click();
    const auto &last = window->session().paint().lastPaint;
    ASSERT_TRUE(last.has_value());
    const QImage painted = window->session().workspace().Bild.Image();

    const QString out = dir.filePath(QStringLiteral("again.png"));
    QStringList args = paintCommandArguments(*last);
    args << QStringLiteral("-o") << out;
    QProcess cli;
    cli.start(QStringLiteral(TF_EXE), args);
    ASSERT_TRUE(cli.waitForFinished(60000));
    ASSERT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();
    const QImage again(out);
    ASSERT_EQ(again.size(), painted.size());
    EXPECT_EQ(again.convertToFormat(QImage::Format_RGB32), painted.convertToFormat(QImage::Format_RGB32));
}
