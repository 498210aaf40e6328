#include "paint/paintrecord.h"

#include <gtest/gtest.h>

using namespace tf;

TEST(PaintRecord, TheCommandLineStatesTypeSizeColoursChangedControlsTransparencyAndSeed)
{
    PaintRecord r;
    r.GrafKey = QStringLiteral("Neon vertical");
    r.width = 30;
    r.height = 20;
    r.ColorFore = RGB(0, 0, 255);
    r.ColorBack = RGB(255, 255, 255);
    r.ColorBorder = RGB(1, 2, 3);
    r.RandomColors = false;
    r.RandomValues = false;
    r.controls = {{ControlKey{QStringLiteral("txtPaperSize"), 0}, QStringLiteral("800")},
                  {ControlKey{QStringLiteral("txtText")}, QStringLiteral("it's")}};
    r.TranspPercent = 40;
    r.seed = 4000000000u;
    EXPECT_EQ(paintCommandLine(r),
              QStringLiteral("tarvelle-forge paint 'Neon vertical' --size 30x20 --fore '#0000FF' "
                             "--back '#FFFFFF' --border '#010203' --random-colors off "
                             "--random-values off --set 'txtPaperSize(0)=800' "
                             "--set 'txtText=it'\\''s' --transparency 40 --seed 4000000000"));

    r.RandomColors = r.RandomValues = true;
    r.controls.clear();
    r.TranspPercent = 0;
    r.GrafKey = QStringLiteral("Backgroundcolor");
    EXPECT_EQ(paintCommandArguments(r).join(QLatin1Char(' ')),
              QStringLiteral("paint Backgroundcolor --size 30x20 --fore #0000FF --back #FFFFFF "
                             "--border #010203 --random-colors on --seed 4000000000"));
}
