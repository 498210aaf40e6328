#pragma once
// The inside of the photo mosaic's run: the options read at its start, the plan of a frame
// (everything drawn at random for it, decided before any picture is decoded) and the
// preparation of a frame's piece of picture, which runs on any thread.

#include "core/colour.h"
#include "core/numeric.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

namespace tf {

class Session;

// The effects of "Opt.", in the order of its list.
enum PicMosaikOpt : int {
    OptNone = 0,
    OptBlurSmall = 1,
    OptBlurBig = 2,
    OptBlurBigStrong = 3,
    OptBlurRandom = 4,
    OptBlurAll = 5,
    OptColouriseRandom = 6,
    OptGreyRandom = 7,
    OptOnlyEdge = 8,
    OptOnlyInner = 9,
};

// What a run reads from the panel and the general options at its start.
struct PicMosaikOptions {
    bool fromFile = false;      // optPicMosaikSource 0 "Datei"
    bool duplicates = true;     // XPicMosaik_Duplikate
    bool subDirs = false;       // XPicMosaikSubDirs
    bool mix = true;            // XPicMosaik_MixSlots ("Bild-Mix", "Ausschnitt-Mix" for a file)
    bool allowSmall = false;    // XPicMosaik_UseSmallPics(0)
    bool tileSmall = false;     // XPicMosaik_UseSmallPics(1), only with allowSmall
    bool shrink = true;         // XPicMosaikStretchpics
    bool center = true;         // XPicMosaikCenterPics
    bool antiAlias = true;      // XPicMosaikAliasing
    bool colorize = false;      // XPicMosaik_Colorize
    double hueDegrees = 30;     // picHue
    bool monochrome = true;     // XMonochrome
    int satStart = 30;          // SliderSatur(0), percent
    int satRange = 40;          // SliderSatur(1), percent
    bool onlyGrey = false;      // XPicMosaik_OnlyGrey
    bool fillAll = true;        // XPicMosaik_FillAll
    bool fillOnlyEmpty = false; // XPicMosaik_FillOnlyEmpty (off with fillAll or in Superformat)
    int opt = OptNone;          // cmbPicMosaik_Options
    int16_t panelH = 2, panelV = 2; // txtPMKachel(0), (1)
    int32_t margin = 0;         // txtPMKachel(2)
    bool doSub = true;          // XPicMosaik(2)
    bool harmonic = false;      // XPicMosaik(3), only with doSub
    bool drawBorders = true;    // XBorders
    bool centreLayout = false;  // XCenter
    bool randomValues = false;  // XRandomValues
    QString source;             // PicSource
};

PicMosaikOptions readPicMosaikOptions(Session &s, bool super);

// A frame's piece of picture, as planned: the picture brought to `scaled` (the whole picture
// scaled; equal to its own size when it is not scaled), and its placing in the frame: the
// pixel (0,0) of the scaled picture lies at `origin` relative to the frame's top left (an
// origin at or below 0 cuts the frame's part out of a larger picture; one above 0 places a
// smaller picture inside the frame). With `tile` the scaled picture repeats from `origin`
// over the whole frame.
struct PiecePlan {
    QString path;        // the file (empty for the one picture of a file source)
    QSize stored;        // the picture's own upright size
    QSize scaled;
    bool resample = true; // bilinear (Anti-Aliasing), else the nearest pixel
    QPoint origin;
    bool tile = false;
    QSize frame;          // FW x FH
};

// The effects planned for a frame, applied to its piece before it is pasted.
struct EffectPlan {
    int blurPasses = 0;
    bool strongBlur = false;
    bool grey = false;
    bool colourise = false;
    Single hue = 0;        // sextants -1..5
    Single saturation = 0; // 0..1
    bool monochrome = true;
};

// One frame of the layout as planned.
struct FramePlan {
    enum Kind { Empty, Fill, Picture };
    int index = 0;        // the frame's place in the layout's order
    QRect rect;           // on the target
    Kind kind = Empty;
    ColorLong fill = 0;   // Fill: the frame's colour
    PiecePlan piece;
    EffectPlan effects;
};

// The prepared piece: the part of the frame covered by picture, `area` relative to the
// frame's top left, and its pixels (RGB32); `failed` when the file could not be decoded.
struct PreparedPiece {
    QImage image;
    QRect area;
    bool failed = false;
    QString detail;
};

// Decodes (reduced where the format allows) and scales the picture, and cuts or tiles the
// frame's part. `whole`, when given, is the one picture of a file source, already decoded.
// Touches no shared state: any thread may run it.
PreparedPiece preparePiece(const PiecePlan &plan, const QImage *whole);

// Applies the effects to a piece in place (the filters of the filter library).
void applyEffects(Session &s, QImage &piece, const EffectPlan &effects);

} // namespace tf
