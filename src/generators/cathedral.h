#pragma once
// "ART-Cathedral-LeadGlass": a round window of concentric leaded rings about the picture's
// middle. Each ring (Draw_CathedralRing) is a band of panes between two radii, the panes cut
// by radial lead about one pitch wide at the band's outside, each pane holding a small
// roundel; the disc inside the first band is a rosette of pie panes.
//
// The panel "feat_21CathedralWindow" chooses the Set (1..5), which fixes the pitch and the
// radii; random values scale the window by 0.5..1.17 and measure it on the picture's larger
// side, so that it may run past the edges.

#include "core/colour.h"

#include <cstdint>

namespace tf {

class PictureBox;
struct PaintContext;

constexpr const char *CathedralPanelName = "feat_21CathedralWindow";

// One ring: panes between the radii Ring1 and Ring2 (either may be the larger; equal radii
// make a band one pitch wide outwards), radial lead about every Pitch pixels of the outer
// edge. Hue -1 takes the window's own colours, else shades of that colour. Lead in the frame
// colour at the pen's width. Answers the number of panes.
int Draw_CathedralRing(PaintContext &ctx, PictureBox &picture, double Cx, double Cy,
                       int32_t Ring1, int32_t Pitch, int32_t Ring2, ColorLong Hue);

// The window of Set 1..5 at Scale; faults go to the handler under "Draw_CathedralWindow".
void Draw_CathedralWindow(PaintContext &ctx, PictureBox &picture, int32_t Set, float Scale);

// Do_CathedralWindow, the painter: reads the panel and paints the work picture.
void paintCathedralWindow(PaintContext &ctx);

void registerCathedralPanels();

} // namespace tf
