#pragma once
// The 3-D Blurize family: four routines on two pictures, run by DoGraficFilters2 by their
// selector. In the program the first picture is the picture now and the second the picture
// before the last change (its undo image), so that a painted gradient can steer a photo.
//
// 1 GBlurBMPs, depth blur: the second picture is blurred pixel by pixel, the more the farther
//   the brightness of the first (the depth map: dark near, bright far) lies from the focus.
// 2 GBlurPictureBMPs, depth between two pictures: the first stands in front where it is dark
//   and gives way, where it is bright, to the second blurred by that depth.
// 3 Soft blend: the second picture fades into the first along a direction, over a band.
// 4 Brightness blend: the second picture shows through the bright parts of the first, with a
//   soft edge.
// Every routine is pure over rows and runs on all threads with the same result.

#include "filters/filterargs.h"
#include "filters/filtertable.h"

#include <QImage>
#include <span>

namespace tf {

class Session;

struct BlurizeRow {
    int selector;
    const char *name;    // the command line's name
    const char *control; // the menu entry's control name
    const char *german;  // menu caption
    const char *english;
    std::span<const FilterSlider> sliders;
};

// The four routines in menu order.
std::span<const BlurizeRow> blurizeTable();
const BlurizeRow *findBlurize(int selector);
const BlurizeRow *findBlurize(const QString &name);
// Slider defaults of a routine.
FilterArgs blurizeDefaults(const BlurizeRow &row);

// The routine of `selector` on two pictures of the same size (Format_RGB32): the result goes
// into `second`. `threads` as the filter state's limit (0 all).
void runBlurize(int selector, const QImage &first, QImage &second, const FilterArgs &args,
                int threads = 0);

// The command: Bild now and the picture before the last change, the result on Bild with
// undo. False with a message when there is no picture before.
bool Menu_Blurize(Session &s, int selector, const FilterArgs &args);
// The picture before the last change at Bild's size; null when there is none.
QImage pictureBefore(Session &s);

} // namespace tf
