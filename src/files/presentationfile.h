#pragma once
// The picture presentation file (.tvp): a photo mosaic's layout, its options and its source
// folder as text, so that a show can be repeated on another day. Bytes in, bytes out: the
// session's side (which control a value comes from and goes to) is presentation.h.
//
// The file, one statement a line, lines ending in CR LF:
//
//   1      "Tarvelle-Forge-V2.00_DIAMATRIX"
//   2      the source folder, or nothing (a file source)
//   3      screen width "," screen height, in pixels
//   4..21  one number each, in the order of presentationLines()
//   then   block 1: for k 0..3, i 0..H+1, j 0..V+1: ArrCellH, ArrSubH, ArrSubVX (k, i, j)
//          block 2: for k 0..2, i 0..H+1, j 0..V+1: ArrCellV, ArrSubHY, ArrSubV (k, i, j)
//          each line three numbers separated by ","
//
// Numbers are written plainly ("1024,768"). Reading is tolerant as the classic field input
// is: blanks around a number are skipped, a comma or a line end ends it, a field that is no
// number reads as its leading number or 0, so the padded form " 5 , 7 " reads the same. Line
// 2 is taken whole (a folder may hold commas). H and V are clamped to 1..20 as they are read
// and size the table blocks, so a file written with more splits is read only as far as those
// bounds reach.

#include "paint/mondriantables.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>
#include <span>

namespace tf {

// The first line; the header test compares this many bytes, in upper case.
inline constexpr char PresentationHeader[] = "Tarvelle-Forge-V2.00_DIAMATRIX";
inline constexpr int PresentationHeaderLength = int(sizeof(PresentationHeader)) - 1;

// The values of lines 4 to 21, in file order.
enum class PresentationValue {
    SubDirs,   // XPicMosaikSubDirs
    Stretch,   // XPicMosaikStretchpics
    Aliasing,  // XPicMosaikAliasing
    Center,    // XPicMosaikCenterPics
    Fore,      // the foreground colour
    Back,      // the background colour
    Border,    // the frame colour
    H,         // the columns of the layout
    V,         // its rows
    SymH,      // XPicMosaik(0)
    SymV,      // XPicMosaik(1)
    DoSub,     // XPicMosaik(2)
    Margin,    // the margin of the layout
    Timer,     // seconds of a slide, txtPicMosaik_Timer
    Pen,       // cmbPen
    Borders,   // XBorders
    EachFrame, // YPicMosaik_EachRahmen
    UseSmall,  // XPicMosaik_UseSmallPics(0)
    Count
};
inline constexpr int PresentationValueCount = int(PresentationValue::Count);

// One of lines 4 to 21: the value it holds, whether it is a 32-bit number (else 16-bit), and
// the range it is clamped to on reading (max < min: not clamped).
struct PresentationLine {
    PresentationValue value;
    bool wide;
    int32_t min;
    int32_t max;
};
// Lines 4 to 21 in file order.
std::span<const PresentationLine> presentationLines();

struct PicPresentation {
    QString source;                   // line 2
    int32_t screenW = 0, screenH = 0; // line 3
    std::array<int32_t, PresentationValueCount> values{};
    // The layout: the cell tables and the sub tables, as the blocks hold them.
    Table3 ArrCellH, ArrSubH, ArrSubVX, ArrCellV, ArrSubHY, ArrSubV;

    int32_t &operator[](PresentationValue v) { return values[size_t(v)]; }
    int32_t operator[](PresentationValue v) const { return values[size_t(v)]; }
};

// True when `firstBytes` begins with the header, compared in upper case.
bool hasPresentationHeader(const QByteArray &firstBytes);

// The file's bytes. The tables are read over (0..3 or 0..2, 0..H+1, 0..V+1); a table smaller
// than that is a SubscriptOutOfRange fault.
QByteArray presentationBytes(const PicPresentation &p);

// Reads a file whose header has been checked. Values are clamped to their lines' ranges; a
// number beyond its 16- or 32-bit field is an Overflow fault and a file that ends before its
// last table line an "Input past end of file" fault, both naming the line.
PicPresentation parsePresentation(const QByteArray &bytes);

} // namespace tf
