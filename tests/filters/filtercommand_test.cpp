// The three ways to run a filter on the picture, a selection and through the dialog, with
// undo; and the table the menus and the command line read.
#include "core/picturebox.h"
#include "filters/dografic.h"
#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "paint/session.h"
#include "filterpictures.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace tf;
using namespace filtertest;

namespace {

struct FilterCommands : FilterSession {
    QImage start;

    void SetUp() override
    {
        FilterSession::SetUp();
        s.workspace().New_BildSize(12, 9);
        start = noisy(12, 9);
        s.workspace().Bild.setPicture(start);
    }
    const QImage &bild() { return s.workspace().Bild.Image(); }
    const FilterMenuEntry &entry(int number, int i = 0) { return findFilter(number)->entries[size_t(i)]; }
};

QImage negative(const QImage &img)
{
    QImage out = img;
    out.invertPixels();
    return out;
}

} // namespace

TEST_F(FilterCommands, DirectAndTargetRoutineChangeThePictureAndUndoGivesItBack)
{
    ASSERT_TRUE(runMenuEntry(s, *findFilter(2), entry(2)));
    EXPECT_EQ(bild(), negative(start));
    s.workspace().Menu_UndoRedo();
    EXPECT_EQ(bild(), start);
    ASSERT_TRUE(runMenuEntry(s, *findFilter(12), entry(12)));
    EXPECT_EQ(at(bild(), 0, 0), RGB(0, 0, 0) + 0x010101 * ((rgb(start, 0, 0)[0] + rgb(start, 0, 0)[1] + rgb(start, 0, 0)[2]) / 3));
    s.workspace().Menu_UndoRedo();
    EXPECT_EQ(bild(), start);
}

TEST_F(FilterCommands, TheTargetRoutineBlendsAtTheTransparency)
{
    s.transparency().setPercent(50);
    ASSERT_TRUE(runMenuEntry(s, *findFilter(12), entry(12)));
    QImage grey = start;
    ASSERT_TRUE(DoGraficFilters(s, 12, grey, {}));
    const auto a = rgb(start, 3, 4), g = rgb(grey, 3, 4), r = rgb(bild(), 3, 4);
    for (size_t c = 0; c < 3; ++c)
        EXPECT_EQ(r[c], blendChannel(g[c], a[c], 0.5));
}

TEST_F(FilterCommands, AVisibleSelectionIsTheOnlyPartThatChanges)
{
    Workspace &ws = s.workspace();
    const QImage part = noisy(5, 4);
    ws.PicSelect.resize(5, 4);
    ws.PicSelect.setPicture(part);
    ws.PicSelect.setVisible(true);
    ASSERT_TRUE(runMenuEntry(s, *findFilter(2), entry(2)));
    EXPECT_EQ(ws.PicSelect.Image(), negative(part));
    EXPECT_EQ(bild(), start);
    ws.PicSelect.setVisible(false);
    ws.picSelectC.resize(5, 4);
    ws.picSelectC.setPicture(part);
    ws.picSelectC.setVisible(true);
    ASSERT_TRUE(runMenuEntry(s, *findFilter(12), entry(12)));
    EXPECT_NE(ws.picSelectC.Image(), part);
    EXPECT_EQ(bild(), start);
}

TEST_F(FilterCommands, TheDialogPreviewsAppliesAndCancelsExactly)
{
    const FilterRow &gamma = *findFilter(31);
    FilterArgs args = defaultArguments(gamma);
    args.argument = args.sliders[0] = 250;
    QImage expected = start;
    ASSERT_TRUE(DoGraficFilters(s, 31, expected, args));
    {
        FilterDialogRun run(s, gamma);
        EXPECT_TRUE(s.filters().dialogOpen);
        ASSERT_TRUE(run.preview(args));
        EXPECT_EQ(bild(), expected);
        run.finish(true, true);
    }
    EXPECT_EQ(bild(), start);
    {
        FilterDialogRun run(s, gamma);
        ASSERT_TRUE(run.preview(args));
        EXPECT_TRUE(run.finish(false, true));
    }
    EXPECT_EQ(bild(), expected);
    s.workspace().Menu_UndoRedo();
    EXPECT_EQ(bild(), start);
    // Closed with OK but never previewed: the system's own complaint.
    {
        FilterDialogRun run(s, gamma);
        EXPECT_FALSE(run.finish(false, false));
    }
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Please contact Vorun! Err-Code: 17"));
}

TEST_F(FilterCommands, ABusyFilterRefusesASecondCall)
{
    s.runState().setFiltering(true);
    QImage img = start;
    EXPECT_FALSE(DoGraficFilters(s, 2, img, {}));
    EXPECT_EQ(img, start);
}

TEST(FilterTable, HoldsEveryNumberOnceWithItsEntriesAndDialog)
{
    QSet<int> numbers;
    QSet<QString> names;
    for (const FilterRow &row : filterTable()) {
        EXPECT_FALSE(numbers.contains(row.number));
        numbers.insert(row.number);
        EXPECT_FALSE(names.contains(QLatin1String(row.name))) << row.name;
        names.insert(QLatin1String(row.name));
        EXPECT_TRUE(row.available()) << row.number;
        for (const FilterMenuEntry &e : row.entries) {
            EXPECT_FALSE(entryCaption(e, Language::German).isEmpty());
            EXPECT_FALSE(entryCaption(e, Language::English).isEmpty());
            // A dialog entry has something to set, or is the mixer.
            if (e.run == RunMode::Dialog) {
                EXPECT_TRUE(!row.sliders.empty() || row.mixer) << row.number;
            }
        }
        for (const FilterSlider &sl : row.sliders)
            EXPECT_TRUE(sl.min <= sl.def && sl.def <= sl.max) << row.number;
    }
    for (int n = 1; n <= 54; ++n)
        EXPECT_TRUE(numbers.contains(n)) << n;
    for (int n = 1000; n <= 1010; ++n)
        EXPECT_EQ(findFilter(n)->runsAs(), 46);
    EXPECT_EQ(findFilter(QStringLiteral("Gamma")), findFilter(31));
    EXPECT_EQ(findFilter(31)->sliders[0].display(100), QStringLiteral("1.00"));
    EXPECT_EQ(findFilter(48)->sliders[0].label(Language::German), QStringLiteral("Durchmesser"));
    EXPECT_EQ(findFilter(48)->sliders[0].label(Language::English), QStringLiteral("Frequency"));
    EXPECT_EQ(findFilter(1000)->dialogTitle(Language::English), QStringLiteral("Deformation Hourglass"));
}
