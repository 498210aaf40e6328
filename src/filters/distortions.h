#pragma once
// The distortions of the menu "Transformieren", run by DoGraficFilters through the filter
// table. Each reads the unchanged copy S and writes D (see filterrun.h for the layout), row
// by row on all threads; no row reads what another row wrote, so results do not depend on
// the thread count.
//
// The warps (47 to 53) are inverse mappings: for every target pixel the routine asks where
// it comes from in S and samples there, bilinearly (the rotation only when its anti-aliasing
// is on, else the nearest pixel). Stretching and rotation may change the picture's size; they
// leave such a result in FilterRun::resized.

namespace tf {

class FilterRun;

// 46: the row shapes (hourglass, vase, torso, lantern, funnel, roof, fisheye, parabola) by
// args.selector, with args.argument as the dialog value. Faults are reported as
// "TransGMirrors [<selector>]  [<description>]" and leave the rows done so far.
void TransGMirrors(FilterRun &run);

void filterLens(FilterRun &run);         // 47: diameter, scaling, position
void filterWaves(FilterRun &run);        // 48: frequency, amplitude, start angle
void filterPolar(FilterRun &run);        // 49: factor -200..200, 0 leaves the picture
void filterTwirl(FilterRun &run);        // 50: factor, angle
void filterBend(FilterRun &run);         // 51: horizontal and vertical factor
void filterStretchShape(FilterRun &run); // 52: horizontal and vertical factor, may resize
void filterRotate(FilterRun &run);       // 53: angle in degrees, anti-aliasing, may resize

} // namespace tf
