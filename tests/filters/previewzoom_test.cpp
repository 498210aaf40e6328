// The zoom steps and the visible part of the filter dialog's picture after.
#include "core/picturebox.h"
#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "filters/previewzoom.h"
#include "paint/session.h"
#include "filterpictures.h"

#include <gtest/gtest.h>

using namespace tf;

TEST(PreviewZoom, StepsFromTheWholePictureToFourTimesAndKeepsTheMiddle)
{
    PreviewZoom z(QSize(4800, 2400), 240);
    EXPECT_DOUBLE_EQ(z.scale(), 0.05); // the whole picture in the area
    EXPECT_EQ(z.scaledSize(), QSize(240, 120));
    EXPECT_EQ(z.maxOffset(), QPoint(0, 0));
    EXPECT_FALSE(z.canZoomOut());
    const double steps[] = {0.125, 0.25, 0.5, 1.0, 2.0, 4.0};
    for (double s : steps) {
        ASSERT_TRUE(z.canZoomIn());
        z.zoomIn();
        EXPECT_DOUBLE_EQ(z.scale(), s);
        // The middle of the picture stays in the middle of the view.
        const QRect r = z.sourceRect();
        EXPECT_NEAR(r.center().x(), 2400, 1.0 + 1 / s) << s;
        EXPECT_NEAR(r.center().y(), 1200, 1.0 + 1 / s) << s;
    }
    EXPECT_FALSE(z.canZoomIn());
    EXPECT_EQ(z.maxOffset(), QPoint(4800 * 4 - 240, 2400 * 4 - 240));
    z.setOffset(QPoint(-5, 1 << 30)); // clamped to the picture
    EXPECT_EQ(z.offset(), QPoint(0, 2400 * 4 - 240));
    EXPECT_EQ(z.sourceRect(), QRect(0, 2400 - 60, 60, 60));

    // A picture smaller than the area starts at 1:1.
    PreviewZoom small(QSize(100, 50), 240);
    EXPECT_DOUBLE_EQ(small.scale(), 1.0);
    small.zoomIn();
    EXPECT_DOUBLE_EQ(small.scale(), 2.0);
}

TEST(PreviewZoom, APartShowsThePixelsTheFullResultHasThere)
{
    // At 1:1 and above the part is the full result's pixels, the neighbourhood filters
    // included, since the part carries a margin of neighbours.
    Session s;
    ScriptedPrompter prompter;
    s.setPrompter(&prompter);
    const QImage picture = filtertest::noisy(700, 500);
    s.workspace().New_BildSize(700, 500);
    s.workspace().Bild.setPicture(picture);
    for (int number : {25, 13, 12}) {
        FilterDialogRun run(s, *findFilter(number));
        FilterArgs args = defaultArguments(*findFilter(number));
        ASSERT_TRUE(run.preview(args));
        const QImage full = s.workspace().Bild.Image().convertToFormat(QImage::Format_RGB32);
        PreviewZoom z(picture.size(), 240);
        while (z.scale() < 1.0)
            z.zoomIn();
        z.setOffset(QPoint(300, 130));
        EXPECT_EQ(previewPart(run, run.original(), z, args), full.copy(300, 130, 240, 240)) << number;
        z.zoomIn(); // 2:1: each picture pixel as two by two
        const QImage twice = previewPart(run, run.original(), z, args);
        const QPoint o = z.offset();
        ASSERT_EQ(twice.size(), QSize(240, 240));
        for (QPoint p : {QPoint(0, 0), QPoint(121, 37), QPoint(239, 239)})
            EXPECT_EQ(twice.pixel(p), full.pixel((o.x() + p.x()) / 2, (o.y() + p.y()) / 2)) << number;
        run.finish(true, false);
    }
}
