#pragma once
// What the text types share: the preparation of the text, the text colour rule, the font the
// text dialog gives, and text at any angle through the drawing vocabulary's fonts
// (`Print_Rotated`, `Measure_Rotated`, the ink box of `Get_TextposBox`).
//
// Angles are degrees, counter-clockwise, as a font's escapement; a text of angle 0 is written
// without an escapement. A position is the top left corner of the text's unrotated cell
// (ascent above the baseline, descent below), turned about that corner.

#include "core/colour.h"

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace tf {

struct Font;
struct PaintContext;
class Controls;
class PictureBox;

namespace text {

// The built-in sample an empty text paints.
extern const char *const LatinSample;

// The font of the text dialog: cmbFontName ("Arial" when empty), txtFontSize in points,
// txtFontWidth in percent of the natural width while XFontWidthActiv is on (0: natural),
// imgBold and XFntAntiAlias.
struct TextFont {
    QString name;
    double size = 36;
    int widthPercent = 0;
    bool bold = false;
    bool antialias = true;
};
TextFont dialogFont(const Controls &c);

// The logical font of a text font at an angle: em height -20 * size / 15 pixels (points at
// 15 twips a pixel), escapement angle * 10 (none at 0), weight 700 for bold, the quality by
// the anti-aliasing.
Font logicalFont(const TextFont &f, double angle);

// The text preparation: txtOrthoIn (the Latin sample when empty), its line breaks as the
// marker "$$"; unless `keepLines` every "$$" becomes a blank and trailing blanks are cut;
// upper case when the panel's check box `bigLetters` is on. Sets UseMixFonts from
// XText_Mixfonts when `allowMixFonts`.
QString prepareText(PaintContext &ctx, const char *bigLetters, int bigLettersIndex,
                    bool keepLines, bool allowMixFonts);
// With UseMixFonts, the font's name becomes FontList(Int(Rnd*FontCount)+1) (the list is
// loaded first when empty).
void mixFont(PaintContext &ctx, TextFont &f);

// The Text colour rule. `table`: the colours come from the table DuoColors (built here as
// "RandomMondrianText" of 5 x 5); duoFore, duoBack: the pair chosen for it.
struct TextColours {
    ColorLong text = 0, shadow = 0xFFFFFF;
    bool table = false;
    ColorLong duoFore = 0, duoBack = 0;
};
TextColours textColourRule(PaintContext &ctx, bool allowRandoms);
// Cell i of the table (1..25, wrapped), or `fallback` for a blank cell.
ColorLong tableColour(PaintContext &ctx, int i, ColorLong fallback);
// A random text colour (three rounded Rnd*255) and a random shadow grey (rounded Rnd*129+64).
ColorLong randomTextColour(PaintContext &ctx);
ColorLong randomShadowGrey(PaintContext &ctx);
// The shadow as icb1Color3D says: the rule's shadow colour, black, grey, white or the text
// colour darkened to half.
ColorLong shadowColour(const Controls &c, ColorLong ruleShadow, ColorLong textColour);
// Val(cmbShadeThickness), at least 0.
int shadowThickness(const Controls &c);
// The offset of the shadow of a text at `angle` for a thickness.
QPoint shadowOffset(double angle, int thickness);

// Writes `text` at (x, y) turned by `angle` in the picture's ForeColor, background untouched.
void Print_Rotated(PictureBox &pic, const QString &text, double x, double y, double angle,
                   const TextFont &f);
// The advance width and the cell height of `text` unrotated.
QSizeF Measure_Rotated(const TextFont &f, const QString &text);
// The line step of a text block in the font: cell height plus external leading.
int lineStep(const TextFont &f);
// The box of the ink of `text` written at (0, 0) at `angle`, from the glyphs' outlines.
QRectF inkBox(const TextFont &f, const QString &text, double angle);
// Where a text at `angle` is written so that the point (u, v) of its cell lands on `at`.
QPointF originFor(QPointF at, double u, double v, double angle);

} // namespace text
} // namespace tf
