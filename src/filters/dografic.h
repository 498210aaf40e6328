#pragma once
// The numbered entry points of the filters.
//
// DoGraficFilters copies the picture into the filter workspace (FilterDst, and FilterSrc for
// routines that read an unchanged copy), runs the routine of the number through the filter
// table and writes the result back in one piece. A number without a routine (outside 1..54,
// or one of a later part) changes nothing. A fault is reported as
// "DoGraficFilters [<number>]  [<description>]" and leaves the picture as it was, since the
// result is written back only at the end. While a filter runs, FilterBusy refuses a second
// call (one made from a yield of the first).

#include "core/colour.h"
#include "filters/filterargs.h"

#include <QImage>

namespace tf {

class Session;

// Runs filter `number` on `picture` (Format_RGB32) in place. Answers true when the picture
// holds the filter's result, or is unchanged because the number has no routine; false when
// the call was refused (busy) or a fault was reported.
bool DoGraficFilters(Session &s, int number, QImage &picture, const FilterArgs &args);

// Whether a caller needs its picture as it was should the filter fault. A batch run that
// writes nothing after a fault gives it up, and a routine that reads only its destination
// then works on the picture's own bytes: one picture in memory instead of two.
enum class OnFault { KeepPicture, PictureSpent };
bool DoGraficFilters(Session &s, int number, QImage &picture, const FilterArgs &args,
                     OnFault onFault);

// The two-picture entry of the 3-D Blurize family (blurize.h): selector 1 GBlurBMPs, 2
// GBlurPictureBMPs, 3 and 4 the blends, on `first` and `second` (brought to the size of
// `second`) with the slider values of `args`. The result is in `second`. Other selectors change
// nothing. Faults are reported as "DoGraficFilters2 [<selector>]  [<description>]".
bool DoGraficFilters2(Session &s, int selector, const QImage &first, QImage &second,
                      const FilterArgs &args);

// The frequency waves of "Frequenzgradient-Transp": selector 3 lays parallel waves, 4 circular
// waves, between the colours and points of `args` over `first`, the result in `second` (see
// gradientkernels.h). It shares the two-picture entry's busy guard and progress; other
// selectors change nothing. Faults are reported as "DoGraficFilters2 [<selector>]  [...]", the
// entry the waves were once run through.
bool DoFrequencyWaves(Session &s, int selector, const QImage &first, QImage &second,
                      const FilterArgs &args);

} // namespace tf
