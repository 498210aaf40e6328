#include "paint/bildformate.h"

#include "core/numeric.h"
#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

const std::array<Bildformat, BildformatCount> &bildformate()
{
    static const std::array<Bildformat, BildformatCount> formats = {{
        {QT_TRANSLATE_NOOP("Controls", "Freies Format (pixel)"), 0, 0},
        {QT_TRANSLATE_NOOP("Controls", "Freies Format (cm)"), 0, 0},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A4 Hochformat"), 21, 29.7},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A4 Querformat"), 29.7, 21},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A3 Hochformat"), 29.7, 42},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A3 Querformat"), 42, 29.7},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A2 Hochformat"), 42, 59.4},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A2 Querformat"), 59.4, 42},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A1 Hochformat"), 59.4, 84},
        {QT_TRANSLATE_NOOP("Controls", "DIN-A1 Querformat"), 84, 59.4},
        {QT_TRANSLATE_NOOP("Controls", "12 x 12 cm"), 12, 12},
        {QT_TRANSLATE_NOOP("Controls", "20 x 30 cm"), 20, 30},
        {QT_TRANSLATE_NOOP("Controls", "30 x 20 cm"), 30, 20},
        {QT_TRANSLATE_NOOP("Controls", "24 x 30 cm"), 24, 30},
        {QT_TRANSLATE_NOOP("Controls", "30 x 24 cm"), 30, 24},
        {QT_TRANSLATE_NOOP("Controls", "30 x 40 cm"), 30, 40},
        {QT_TRANSLATE_NOOP("Controls", "40 x 30 cm"), 40, 30},
        {QT_TRANSLATE_NOOP("Controls", "30 x 45 cm"), 30, 45},
        {QT_TRANSLATE_NOOP("Controls", "45 x 30 cm"), 45, 30},
    }};
    return formats;
}

namespace {
constexpr double CmPerInch = 2.54;

int toPixels(double inches, double dpi)
{
    return int(std::max(0.0, roundHalfEven(inches * dpi)));
}
} // namespace

QSize Calc_Bildformate_WH(int index, double dpi, double paperW, double paperH, Language lang)
{
    if (index < 0 || index >= BildformatCount) return {};
    if (index == FreeFormatPixels)
        return {int(std::max(0.0, roundHalfEven(paperW))),
                int(std::max(0.0, roundHalfEven(paperH)))};
    if (index == FreeFormatLength) {
        const double unit = lang == Language::English ? 1.0 : CmPerInch;
        return {toPixels(paperW / unit, dpi), toPixels(paperH / unit, dpi)};
    }
    const Bildformat &f = bildformate()[size_t(index)];
    return {toPixels(f.widthCm / CmPerInch, dpi), toPixels(f.heightCm / CmPerInch, dpi)};
}

QSize Calc_Bildformate_WH(const Controls &controls)
{
    return Calc_Bildformate_WH(controls.listIndex(ControlKey{QStringLiteral("cmbBildformate")}),
                               controls.number(ControlKey{QStringLiteral("cmbDPI")}),
                               controls.number(ControlKey{QStringLiteral("txtPaperSize"), 0}),
                               controls.number(ControlKey{QStringLiteral("txtPaperSize"), 1}),
                               currentLanguage());
}

QString pixelSizeLabel(const QSize &size)
{
    return QStringLiteral("%1 x %2 px").arg(size.width()).arg(size.height());
}

} // namespace tf
