#pragma once
// Graphics-device calls over a DeviceContext: pixels, closed figures, fills, rectangles,
// regions and text.
//
// Every call works on both kinds of context (a top-down RGB32 picture control and a
// bottom-up 24-bit surface); coordinates are picture coordinates. Pens, brushes and fonts are
// the ones selected into the context; pen and brush pixels go through the context's raster
// mode (rop2), and nothing is drawn outside the clip. Rectangles are right/bottom exclusive:
// (left, top, right, bottom) covers the pixels left..right-1 and top..bottom-1.
//
// Pixel geometry: a pen of width 1 draws one 8-connected pixel path; a wider pen covers the
// pixels whose centres lie within width/2 of the figure's outline (round ends on lines).
// Closed figures are filled with the brush first and outlined with the pen second; no pixel
// is written twice, so XOR modes stay reversible.

#include "core/colour.h"
#include "core/devicecontext.h"

#include <QFont>
#include <QRegion>
#include <QString>
#include <cstdint>
#include <span>

namespace tf {

struct POINTAPI {
    int32_t x = 0;
    int32_t y = 0;
};

struct RECT {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;
};

struct SIZE {
    int32_t cx = 0;
    int32_t cy = 0;
};

// ---- Pixels ----------------------------------------------------------------------------------

// The colour long of a pixel, -1 outside the picture or the clip.
ColorLong GetPixel(const DeviceContext &dc, int x, int y);
// Sets a pixel as given (no raster mode); answers the colour set, -1 outside or clipped.
ColorLong SetPixel(DeviceContext &dc, int x, int y, ColorLong c);
// The same, answering only whether the pixel was set.
bool SetPixelV(DeviceContext &dc, int x, int y, ColorLong c);

// ---- Figures ---------------------------------------------------------------------------------

// Connected lines through `count` points with the pen; the last point is not drawn.
bool Polyline(DeviceContext &dc, const POINTAPI *pts, int count);
bool Polyline(DeviceContext &dc, std::span<const POINTAPI> pts);
// A closed polygon, filled by the alternate (even-odd) rule and outlined. Needs 2 points.
bool Polygon(DeviceContext &dc, const POINTAPI *pts, int count);
bool Polygon(DeviceContext &dc, std::span<const POINTAPI> pts);
// The ellipse inscribed in the rectangle.
bool Ellipse(DeviceContext &dc, int left, int top, int right, int bottom);
// A rectangle with corners rounded by ellipses of width x height.
bool RoundRect(DeviceContext &dc, int left, int top, int right, int bottom, int width,
               int height);
bool Rectangle(DeviceContext &dc, int left, int top, int right, int bottom);

// ---- Fills -----------------------------------------------------------------------------------

constexpr unsigned FLOODFILLBORDER = 0;
constexpr unsigned FLOODFILLSURFACE = 1;

// Fills, with the selected brush, the 4-connected area around (x,y) that does not have the
// colour `crColor`; answers false when the seed is outside, clipped or of that colour.
bool FloodFill(DeviceContext &dc, int x, int y, ColorLong crColor);
// FLOODFILLBORDER as FloodFill; FLOODFILLSURFACE fills the 4-connected area that has exactly
// the colour `crColor`, answering false when the seed has another. The fill stays inside the
// clip and ignores the raster mode.
bool ExtFloodFill(DeviceContext &dc, int x, int y, ColorLong crColor, unsigned fillType);
// Fills the rectangle with `brush` (no raster mode); a hollow brush draws nothing.
int FillRect(DeviceContext &dc, const RECT &r, const Brush &brush);

// ---- Rectangles ------------------------------------------------------------------------------

bool SetRect(RECT &r, int left, int top, int right, int bottom);
bool SetRectEmpty(RECT &r);
bool OffsetRect(RECT &r, int dx, int dy);
bool InflateRect(RECT &r, int dx, int dy);
// `dst` becomes the common part of `a` and `b`; answers false (and an empty `dst`) when there
// is none.
bool IntersectRect(RECT &dst, const RECT &a, const RECT &b);
// Answers true when the rectangle has no pixel (right <= left or bottom <= top).
bool IsRectEmpty(const RECT &r);
bool PtInRect(const RECT &r, POINTAPI pt);
inline bool PtInRect(const RECT &r, int x, int y) { return PtInRect(r, POINTAPI{x, y}); }

// ---- Regions ---------------------------------------------------------------------------------

// A set of pixels.
struct Region {
    QRegion pixels;
};

enum RegionKind { ERROR_REGION = 0, NULLREGION = 1, SIMPLEREGION = 2, COMPLEXREGION = 3 };
enum CombineMode { RGN_AND = 1, RGN_OR = 2, RGN_XOR = 3, RGN_DIFF = 4, RGN_COPY = 5 };

Region CreateRectRgn(int left, int top, int right, int bottom);
// The pixels that Ellipse with the same rectangle covers.
Region CreateEllipticRgn(int left, int top, int right, int bottom);
inline bool DeleteObject(const Region &) { return true; }
bool PtInRegion(const Region &rgn, int x, int y);
// `box` becomes the bounding rectangle (empty for an empty region); answers the region's kind.
int GetRgnBox(const Region &rgn, RECT &box);
// `dst` becomes `a` combined with `b` (`b` unused for RGN_COPY); answers the result's kind.
int CombineRgn(Region &dst, const Region &a, const Region &b, int mode);
int OffsetRgn(Region &rgn, int dx, int dy);
// Fills the region's pixels with `brush` (no raster mode).
bool FillRgn(DeviceContext &dc, const Region &rgn, const Brush &brush);

// ---- Text ------------------------------------------------------------------------------------

constexpr int LF_FACESIZE = 32;

struct LOGFONT {
    int32_t lfHeight = 0; // < 0 em height, > 0 cell height, 0 the default, in pixels
    int32_t lfWidth = 0;  // average character width, 0 natural
    int32_t lfEscapement = 0; // tenths of a degree, counter-clockwise
    int32_t lfOrientation = 0;
    int32_t lfWeight = 0; // 0 normal, 400 normal, 700 bold
    uint8_t lfItalic = 0;
    uint8_t lfUnderline = 0;
    uint8_t lfStrikeOut = 0;
    uint8_t lfCharSet = 0;
    uint8_t lfOutPrecision = 0;
    uint8_t lfClipPrecision = 0;
    uint8_t lfQuality = 0;
    uint8_t lfPitchAndFamily = 0;
    QString lfFaceName;
};

struct TEXTMETRIC {
    int32_t tmHeight = 0; // ascent + descent
    int32_t tmAscent = 0;
    int32_t tmDescent = 0;
    int32_t tmInternalLeading = 0;
    int32_t tmExternalLeading = 0;
    int32_t tmAveCharWidth = 0;
    int32_t tmMaxCharWidth = 0;
    int32_t tmWeight = 0;
    uint8_t tmItalic = 0;
    uint8_t tmUnderlined = 0;
    uint8_t tmStruckOut = 0;
};

// Output qualities of a logical font.
enum FontQuality {
    DEFAULT_QUALITY = 0, DRAFT_QUALITY = 1, PROOF_QUALITY = 2, NONANTIALIASED_QUALITY = 3,
    ANTIALIASED_QUALITY = 4, CLEARTYPE_QUALITY = 5
};

// A logical font; the character set, precisions and pitch are accepted and ignored. The
// quality decides whether its text is drawn with soft edges.
Font CreateFontA(int height, int width, int escapement, int orientation, int weight,
                 unsigned italic, unsigned underline, unsigned strikeOut, unsigned charSet,
                 unsigned outPrecision, unsigned clipPrecision, unsigned quality,
                 unsigned pitchAndFamily, const QString &faceName);
Font CreateFontIndirectA(const LOGFONT &lf);
// Metrics of the selected font.
bool GetTextMetricsA(const DeviceContext &dc, TEXTMETRIC &tm);
// Advance width and cell height of `text` in the selected font, unrotated.
bool GetTextExtentPoint32A(const DeviceContext &dc, const QString &text, SIZE &size);
// Draws `text` with its cell's top left at (x,y), rotated by the font's escapement, in the
// text colour; with bkMode OPAQUE the rotated cell is filled with bkColor first. A font of
// hard edges writes whole pixels (a glyph covers a pixel when at least half of it is ink); a
// font of ANTIALIASED_QUALITY or CLEARTYPE_QUALITY lays the text colour over each pixel by its
// coverage. Text ignores the raster mode.
bool TextOutA(DeviceContext &dc, int x, int y, const QString &text);
bool TextOutA(DeviceContext &dc, int x, int y, const QString &text, int count);

// The Qt font that renders a logical font (the height rules above; anti-aliased only for the
// soft qualities).
QFont toQFont(const Font &font);

} // namespace tf
