#pragma once
// The gradient group: smooth transitions between two colours.
//
// Every routine paints on the paint target (ctx.XBild), clears it first (Bild_CLEAR) and, where
// `do_transparence` says so, brackets its drawing with Start_Transparent / Ende_Transparent.
// A gradient runs to its end: it gives way (DoEvents) in its long loops but does not stop.
//
// Colours: `use_duos`, `duocolo1`, `duocolo2` are what the dispatcher hands over from the
// colour table (see duoArguments); each routine takes them by its own rule, written at it.

#include "core/colour.h"

#include <cstdint>

namespace tf {

class PictureBox;
class Random;
struct PaintContext;

// What the dispatcher hands a gradient: with a colour table in force (DuoActive) use_duos is
// true and the two colours are two painted cells of DuoColors drawn at random (two draws);
// otherwise false and 0, 0 (no draw).
struct DuoArguments {
    bool use_duos = false;
    ColorLong duocolo1 = 0;
    ColorLong duocolo2 = 0;
};
DuoArguments duoArguments(PaintContext &ctx);

// "H-Gradient" (set_nr 1: vertical lines from left to right) and "V-Gradient" (set_nr 2:
// horizontal lines from top to bottom): one line per step from the start to the end colour
// of the colour pair rule. With a pen above 1 only every (pen * 2)-th line is drawn, at most
// 16 wide, leaving gaps of the former picture.
void Create_Gradientsimple(PaintContext &ctx, int16_t set_nr, bool use_duos, ColorLong duocolo1,
                           ColorLong duocolo2, bool do_transparence);
// "Chromo-Steps": a band of scrollProzChromo percent of the picture from the side that
// cmbOrientation names, running from the foreground (or a random) colour to the background
// (or a second random) colour. Always transparent-bracketed; ignores the colour table.
void Create_GradientChromo(PaintContext &ctx);
// "H-GradientCrazy" (set_nr 1, horizontal lines) and "V-GradientCrazy" (set_nr 2): bands of
// pen-wide lines whose channels bounce between 0 and 255 by random steps. With use_duos the
// colours are random ones, not the table's.
void Create_Gradientband(PaintContext &ctx, int16_t set_nr, bool use_duos, ColorLong duocolo1,
                         ColorLong duocolo2, bool do_transparence);
// The bands themselves on `picture`: from p = 0 a line in the running colour every `pen`
// pixels until past the picture, each channel advanced by its step and bounced at 0 and 255.
// Equal start and end give every channel the step min(steps + 1, 200); otherwise each step is
// min((Rnd - 0.5) * (steps + 1), 200), red, green, blue in that order.
void Draw_Band(PictureBox &picture, Random &rnd, int set_nr, int pen, int steps,
               ColorLong start, ColorLong end);

// The per-pixel painter of sets 1 to 10 ("Fixed 4 squares" 1, "Randomized 4 squares" 2,
// "Randomized bars" 3, "Neonbars vertical" 4, "Horizon" 5, "Lense" 6, "Sky gradient" 7,
// "Random Lines" 8, "Random Noise" 9, "Neon vertical" 10). Sets 8 and 9 leave in `set_nr` the
// last pattern (1..6) they drew.
void Create_Gradients(PaintContext &ctx, int16_t &set_nr, bool use_duos, ColorLong duocolo1,
                      ColorLong duocolo2, bool do_transparence);

// "Framegradient-Transp": the colour mix of filter 45 as a frame, linear, rectangular or
// elliptic gradient over the former picture.
void Create_GradientFrames(PaintContext &ctx);
// "Frequenzgradient-Transp": one to seven waves between two random points, laid over each
// other by DoFrequencyWaves 3 (parallel waves) or 4 (circular waves).
void Create_GradientFrequences(PaintContext &ctx);

// The painters of the dispatch table, one per type key.
void paintHGradient(PaintContext &ctx);
void paintVGradient(PaintContext &ctx);
void paintHGradientCrazy(PaintContext &ctx);
void paintVGradientCrazy(PaintContext &ctx);
void paintFixed4Squares(PaintContext &ctx);
void paintRandomized4Squares(PaintContext &ctx);
void paintRandomizedBars(PaintContext &ctx);
void paintNeonbarsVertical(PaintContext &ctx);
void paintNeonVertical(PaintContext &ctx);
void paintHorizon(PaintContext &ctx);
void paintLense(PaintContext &ctx);
void paintSkyGradient(PaintContext &ctx);
void paintRandomLines(PaintContext &ctx);
void paintRandomNoise(PaintContext &ctx);

} // namespace tf
