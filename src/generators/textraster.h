#pragma once
// The raster texts of group 7: the user's text laid letter by letter (or word by word) into
// the frames of a grid, each frame's letters sized to fit it.
//
//   "TEXT-Mondrian-Raster"  the frames of a Mondrian layout (generators/mondrianlayout.h),
//                           built with a minimum ratio of 15 and no multiplied subdivisions;
//   "TEXT-Simple-Raster"    H x V equal cells;
//   "TEXT-Spiral-Raster"    a rectangle spiral: strips cut off the rest of the picture in
//                           turn from the left, the top, the right and the bottom, each a
//                           1/H (left, right) or 1/V (top, bottom) share of what is left.
//
// The options are the panel "feat_02OrthoText1" (txtOrthoT1, XOrthoT1, cmbOrthoT1_Split).
// Every piece of text is clipped to the frame it belongs to: no pixel lands outside it.

#include <QRect>
#include <QString>
#include <QStringList>
#include <vector>

namespace tf {

class Session;
struct PaintContext;
enum class PaintOutcome;

constexpr const char *OrthoTextPanelName = "feat_02OrthoText1";

enum class RasterForm { Mondrian, Simple, Spiral };

// cmbOrthoT1_Split: what a frame takes from the text.
enum RasterSplit { SplitMix = 0, SplitLetters = 1, SplitWords = 2 };

// The shape of a frame, which decides its font size and how much text it takes:
//   Empty  not above the smallest font size in both sides;
//   Q      nearly square (sides differ by less than 8), mix or letter mode: one letter;
//   V      width / height below 0.5: letters stacked down the frame;
//   H      height / width below 0.5: letters along the frame;
//   R      any other: one letter (word mode: one word).
enum class RasterKind { Empty, Q, V, H, R };
RasterKind rasterKind(int fw, int fh, int minFont, RasterSplit split);
// The font size of a kind in points: Q and V width/2-2, H height/2-2, R smaller side/2-2.
double rasterFontSize(RasterKind kind, int fw, int fh);

// The frames of the spiral in `area`: strips in turn from the left, top, right and bottom,
// a 1/h or 1/v share of the rest, until the rest is too small to cut (a side below
// 2 * minSide) or h * v frames stand; the rest is the last frame. Frames touch, never overlap,
// and together cover the area.
std::vector<QRect> spiralFrames(const QRect &area, int h, int v, int minSide);

// The text as the frames take it in turn, letters and words from one place: a frame that takes
// a word goes on where the letters stopped (the rest of the word they broke into), and the next
// letters follow the word. Blanks are not letters; at the end the text starts again.
class RasterText {
public:
    explicit RasterText(const QStringList &words);
    bool isEmpty() const { return m_letters.isEmpty(); }
    QString takeLetters(int n);
    QString takeWord();
    QString peekWord() const; // what takeWord would give
    void giveBack(int n);     // the last n letters are taken again next

private:
    int wordEnd() const; // the end of the word the place lies in

    QString m_letters;
    std::vector<int> m_ends; // where each word ends in m_letters
    int m_next = 0;
};

void Draw_MondrianText(PaintContext &ctx, RasterForm form);

void paintTextMondrianRaster(PaintContext &ctx);
void paintTextSimpleRaster(PaintContext &ctx);
void paintTextSpiralRaster(PaintContext &ctx);

// "Repaint letztes Set" of the panel: paints the raster text again; the Mondrian grid keeps the
// frames of its last set while they fit (the same splits, margin and picture size), with new
// letters' colours and turns.
PaintOutcome BtnOrthoText_Repaint(Session &s);

void registerOrthoTextPanel();

} // namespace tf
