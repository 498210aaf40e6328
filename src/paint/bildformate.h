#pragma once
// The picture formats of the paint dialog's format chooser (`cmbBildformate`) and their size
// in pixels at a resolution (`cmbDPI`).
//
// Index 0 is a free format in pixels, index 1 a free format in a length unit: centimetres in
// German, inches in English; both take their size from the two `txtPaperSize` fields. Indices
// 2 to 18 are paper and photo formats given in centimetres.

#include "core/language.h"

#include <QSize>
#include <QString>
#include <array>

namespace tf {

class Controls;

struct Bildformat {
    const char *caption; // German source text of the "Controls" context
    double widthCm;      // 0 for the free formats
    double heightCm;
};

constexpr int BildformatCount = 19;
constexpr int FreeFormatPixels = 0;
constexpr int FreeFormatLength = 1;
const std::array<Bildformat, BildformatCount> &bildformate();

// The pixel size of format `index` at `dpi` dots per inch. A length becomes pixels as
// length in inches * dpi, rounded half to even (21 cm at 300 dpi: 2480.3 -> 2480), so that a
// format prints at its paper size. The free formats take paperW x paperH: pixels for index
// 0; for index 1 centimetres in German and inches in English. An index outside the table
// gives an empty size.
QSize Calc_Bildformate_WH(int index, double dpi, double paperW, double paperH, Language lang);
// The same from the paint dialog's controls (cmbBildformate, cmbDPI, txtPaperSize(0/1)) in the
// current language.
QSize Calc_Bildformate_WH(const Controls &controls);
// The text of `lblPixelSize`: "2480 x 3508 px".
QString pixelSizeLabel(const QSize &size);

} // namespace tf
