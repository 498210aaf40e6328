// The recipe of a picture: which paints make it, and their command lines read back.
#include "files/recipe.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

PaintRecord paint(int transparency, uint32_t seed)
{
    PaintRecord r;
    r.GrafKey = QStringLiteral("Backgroundcolor");
    r.width = 40;
    r.height = 30;
    r.TranspPercent = transparency;
    r.seed = seed;
    return r;
}

} // namespace

TEST(Recipe, OnlyPaintsThatMakeThePictureAreKept)
{
    PaintHistory h;
    EXPECT_TRUE(h.recipeFor(0).isEmpty());
    h.notePaint(paint(0, 1), 10, 11);
    h.notePaint(paint(50, 2), 11, 12); // over the recipe's own picture: joins
    ASSERT_EQ(h.recipeFor(12).size(), 2);
    EXPECT_EQ(h.recipeFor(12)[1], paintCommandLine(paint(50, 2)));
    EXPECT_TRUE(h.recipeFor(13).isEmpty()); // the picture changed since

    h.notePaint(paint(50, 3), 99, 100); // over a picture changed by other means: no recipe
    EXPECT_TRUE(h.recipeFor(100).isEmpty());
    h.notePaint(paint(50, 4), 100, 101);
    EXPECT_TRUE(h.recipeFor(101).isEmpty());
    h.notePaint(paint(0, 5), 101, 102); // a paint without transparency starts again
    EXPECT_EQ(h.recipeFor(102), QStringList{paintCommandLine(paint(0, 5))});
    h.notePaint(paint(0, 6), 102, 103, false); // into a selection
    EXPECT_TRUE(h.recipeFor(103).isEmpty());
}

TEST(Recipe, CommandLinesSplitAsAShellSplitsThem)
{
    PaintRecord r = paint(25, 77);
    r.paletteFile = QStringLiteral("/home/a b/it's.pal");
    r.controls.push_back({ControlKey{QStringLiteral("txtMondrian"), 2}, QStringLiteral("x y")});
    const auto words = splitCommandLine(paintCommandLine(r));
    ASSERT_TRUE(words);
    EXPECT_EQ(words->mid(1), paintCommandArguments(r));

    EXPECT_EQ(*splitCommandLine(QStringLiteral(R"(a "b \" c" d\ e '')")),
              (QStringList{QStringLiteral("a"), QStringLiteral("b \" c"), QStringLiteral("d e"),
                           QString()}));
    EXPECT_FALSE(splitCommandLine(QStringLiteral("a 'open")));

    QString why;
    EXPECT_EQ(recipePaintArguments(paintCommandLine(r), why), paintCommandArguments(r));
    EXPECT_FALSE(recipePaintArguments(QStringLiteral("tarvelle-forge paint X -o /etc/passwd"), why));
    EXPECT_EQ(why, QStringLiteral("Die Malanweisung darf -o nicht enthalten: tarvelle-forge paint X -o /etc/passwd"));
    EXPECT_FALSE(recipePaintArguments(QStringLiteral("rm -rf /"), why));

    EXPECT_EQ(withSize({QStringLiteral("paint"), QStringLiteral("X"), QStringLiteral("--size"), QStringLiteral("5x5")},
                       QStringLiteral("9x8")),
              (QStringList{QStringLiteral("paint"), QStringLiteral("X"), QStringLiteral("--size"), QStringLiteral("9x8")}));
}
