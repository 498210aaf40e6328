// The mirrors and half mirrors on small pictures, exactly, and the commands on the picture and
// on both selections with undo.
#include "filterpictures.h"
#include "filters/mirrors.h"
#include "paint/session.h"

#include <gtest/gtest.h>

using namespace tf;
using namespace filtertest;

namespace {

// One row whose red channel is the 0-based column plus one.
QImage row(int w)
{
    QImage img(w, 1, QImage::Format_RGB32);
    for (int x = 0; x < w; ++x)
        img.setPixel(x, 0, qRgb(x + 1, 0, 0));
    return img;
}

std::vector<int> redsOfColumn(const QImage &img, int x)
{
    std::vector<int> out;
    for (int y = 0; y < img.height(); ++y)
        out.push_back(qRed(img.pixel(x, y)));
    return out;
}

} // namespace

TEST(Mirrors, WholeMirrorsTurnThePictureOverAndTwiceGiveItBack)
{
    QImage img = row(5);
    mirrorLeftRight(img);
    EXPECT_EQ(reds(img), (std::vector<int>{5, 4, 3, 2, 1}));
    const QImage photo = noisy(7, 6);
    QImage twice = photo;
    mirrorTopBottom(twice);
    EXPECT_EQ(twice.pixel(3, 0), photo.pixel(3, 5));
    mirrorTopBottom(twice);
    mirrorLeftRight(twice);
    mirrorLeftRight(twice);
    EXPECT_EQ(twice, photo);
}

TEST(Mirrors, HalfMirrorsOfEvenAndOddWidths)
{
    QImage even = row(6);
    halfMirror(even, HalfMirror::LeftToRight);
    EXPECT_EQ(reds(even), (std::vector<int>{1, 2, 3, 3, 2, 1}));
    even = row(6);
    halfMirror(even, HalfMirror::RightToLeft);
    EXPECT_EQ(reds(even), (std::vector<int>{6, 5, 4, 4, 5, 6}));
    // W = 5: W/2 = 2.5 and W/2 - 1 = 1.5 both round to 2, -W/2 to -2: the copy starts on the
    // middle column and the last column keeps its own pixel.
    QImage odd = row(5);
    halfMirror(odd, HalfMirror::LeftToRight);
    EXPECT_EQ(reds(odd), (std::vector<int>{1, 2, 3, 2, 5}));
    // W = 7: 3.5 rounds to 4, 2.5 to 2: the middle column keeps its own pixel.
    odd = row(7);
    halfMirror(odd, HalfMirror::LeftToRight);
    EXPECT_EQ(reds(odd), (std::vector<int>{1, 2, 3, 4, 3, 2, 1}));
    odd = row(7);
    halfMirror(odd, HalfMirror::RightToLeft);
    EXPECT_EQ(reds(odd), (std::vector<int>{7, 6, 5, 4, 5, 6, 7}));
}

TEST(Mirrors, HalfMirrorsTopAndBottomAndThePrismaticQuarter)
{
    QImage column(1, 4, QImage::Format_RGB32);
    for (int y = 0; y < 4; ++y)
        column.setPixel(0, y, qRgb(y + 1, 0, 0));
    QImage down = column;
    halfMirror(down, HalfMirror::TopToBottom);
    EXPECT_EQ(redsOfColumn(down, 0), (std::vector<int>{1, 2, 2, 1}));
    QImage up = column;
    halfMirror(up, HalfMirror::BottomToTop);
    EXPECT_EQ(redsOfColumn(up, 0), (std::vector<int>{4, 3, 3, 4}));

    const QImage photo = noisy(8, 6);
    QImage prism = photo;
    halfMirror(prism, HalfMirror::Prismatic);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x) {
            const QRgb p = photo.pixel(x, y);
            EXPECT_EQ(prism.pixel(x, y), p);
            EXPECT_EQ(prism.pixel(7 - x, y), p);
            EXPECT_EQ(prism.pixel(x, 5 - y), p);
            EXPECT_EQ(prism.pixel(7 - x, 5 - y), p);
        }
}

TEST(Mirrors, CommandsActOnTheShownSelectionOrThePictureWithUndo)
{
    Session s;
    ScriptedPrompter prompter;
    s.setPrompter(&prompter);
    Workspace &ws = s.workspace();
    ws.New_BildSize(9, 5);
    const QImage start = noisy(9, 5);
    ws.Bild.setPicture(start);
    QImage expected = start;
    mirrorLeftRight(expected);
    ASSERT_TRUE(mn_MirrorV(s));
    EXPECT_EQ(ws.Bild.Image(), expected);
    ws.Menu_UndoRedo();
    EXPECT_EQ(ws.Bild.Image(), start);

    // A rectangular selection: only it turns over, and its undo slot holds it as it was.
    const QImage part = noisy(4, 3);
    ws.PicSelect.resize(4, 3);
    ws.PicSelect.setPicture(part);
    ws.PicSelect.setVisible(true);
    ASSERT_TRUE(mn_MirrorH(s));
    QImage flipped = part;
    mirrorTopBottom(flipped);
    EXPECT_EQ(ws.PicSelect.Image(), flipped);
    EXPECT_EQ(ws.PicUndo.Picture(), part);
    EXPECT_EQ(ws.Bild.Image(), start);
    ws.PicSelect.setVisible(false);

    // The cut-out selection, by a half mirror; index 4 is no half mirror.
    ws.picSelectC.resize(4, 3);
    ws.picSelectC.setPicture(part);
    ws.picSelectC.setVisible(true);
    ASSERT_TRUE(mn_KlappH(s, 0));
    QImage half = part;
    halfMirror(half, HalfMirror::LeftToRight);
    EXPECT_EQ(ws.picSelectC.Image(), half);
    EXPECT_FALSE(mn_KlappH(s, 4));
    EXPECT_EQ(ws.Bild.Image(), start);
    EXPECT_TRUE(prompter.asked().empty());
}
