#pragma once
// The pixel filters, one function each, called by DoGraficFilters through the filter table.
// Each reads the arrays its table row names (D in place, or the unchanged copy S) and writes
// D; see filterrun.h for the layout. Numbers are the filter numbers of the table.

namespace tf {

class FilterRun;

// Neighbourhoods (kernels_neighbour.cpp). Neighbour coordinates are clamped to the picture.
void filterSharpen(FilterRun &run);         // 1, in place: (v*(a+24) - 2N) \ (a+8)
void filterBlurMore(FilterRun &run);        // 3, in place: N \ 8
void filterBlur(FilterRun &run);            // 5, in place: centre and 4 neighbours \ 5
void filterEdge(FilterRun &run);            // 6, in place: (v*(a+9) - N) \ (a+1)
void filterContour(FilterRun &run);         // 7, S: 8v - N + K
void filterEmboss(FilterRun &run);          // 8, S
void filterEmbossMore(FilterRun &run);      // 9, S
void filterEngrave(FilterRun &run);         // 10, S
void filterEngraveMore(FilterRun &run);     // 11, S
void filterRelief(FilterRun &run);          // 13, S
void filterPastel(FilterRun &run);          // 24, S
void filterDilate(FilterRun &run);          // 25, S: 3 x 3 maximum
void filterErode(FilterRun &run);           // 26, S: 3 x 3 minimum
void filterConnection(FilterRun &run);      // 27, S: v - 3 x 3 minimum, inner pixels
void filterDespeckle(FilterRun &run);       // 33, in place, three passes

// Channel tables and point operations (kernels_point.cpp).
void filterNegative(FilterRun &run);        // 2
void filterGreyScale(FilterRun &run);       // 12
void filterBrightness(FilterRun &run);      // 14
void filterMosaic(FilterRun &run);          // 15
void filterSwapBank(FilterRun &run);        // 16
void filterContrast(FilterRun &run);        // 17
void filterStretch(FilterRun &run);         // 28
void filterSaturation(FilterRun &run);      // 30
void filterGamma(FilterRun &run);           // 31
void filterDuotone(FilterRun &run);         // 32
void filterEqualize(FilterRun &run);        // 34
void filterReduceColor(FilterRun &run);     // 41
void filterChannelMixer(FilterRun &run);    // 43
void filterShiftRGB(FilterRun &run);        // 44
void filterWebColors(FilterRun &run);       // 54

// Random numbers (kernels_random.cpp): row by row on the calling thread.
void filterDiffuse(FilterRun &run);         // 4, in place
void filterAddNoise(FilterRun &run);        // 29, S
void filterDissolve(FilterRun &run);        // 35, the composite recipe

// Colour tests, light, halftone, hue stretch, colour mix (kernels_colour.cpp).
void filterHalftoneGrid(FilterRun &run);    // 36
void filterHueStretch(FilterRun &run);      // 37
void filterShiftColor(FilterRun &run);      // 38
void filterIsolateColor(FilterRun &run);    // 39
void filterReplaceColor(FilterRun &run);    // 40
void filterAddLight(FilterRun &run);        // 42
void filterColourMix(FilterRun &run);       // 45

// Black and white (kernels_bw.cpp).
void filterBWValue(FilterRun &run);         // 18
void filterBWDiffusion(FilterRun &run);     // 19
void filterBWRaster(FilterRun &run);        // 20
void filterFloydSteinberg(FilterRun &run);  // 21
void filterBurke(FilterRun &run);           // 22
void filterStucki(FilterRun &run);          // 23

} // namespace tf
