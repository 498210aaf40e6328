#include "core/pictureformats.h"

#include <QtGlobal>

namespace tf {

const std::array<NewPictureFormat, NewPictureFormatCount> &newPictureFormats()
{
    static const std::array<NewPictureFormat, NewPictureFormatCount> formats = {{
        {QT_TRANSLATE_NOOP("PictureFormats", "Freies Format ..."), 0, 0},
        {QT_TRANSLATE_NOOP("PictureFormats", "256 x 256"), 256, 256},
        {QT_TRANSLATE_NOOP("PictureFormats", "512 x 512"), 512, 512},
        {QT_TRANSLATE_NOOP("PictureFormats", "640 x 640"), 640, 640},
        {QT_TRANSLATE_NOOP("PictureFormats", "712 x 712"), 712, 712},
        {QT_TRANSLATE_NOOP("PictureFormats", "768 x 768"), 768, 768},
        {QT_TRANSLATE_NOOP("PictureFormats", "896 x 896"), 896, 896},
        // DIN-A4 (1 : 1.414), 20 x 30 cm (2 : 3) and 24 x 30 cm (4 : 5).
        {QT_TRANSLATE_NOOP("PictureFormats", "DIN-A4 Hochformat (504 x 712)"), 504, 712},
        {QT_TRANSLATE_NOOP("PictureFormats", "DIN-A4 Querformat (712 x 504)"), 712, 504},
        {QT_TRANSLATE_NOOP("PictureFormats", "20 x 30 Hochformat (475 x 712)"), 475, 712},
        {QT_TRANSLATE_NOOP("PictureFormats", "30 x 20 Querformat (712 x 475)"), 712, 475},
        {QT_TRANSLATE_NOOP("PictureFormats", "24 x 30 Hochformat (570 x 712)"), 570, 712},
        {QT_TRANSLATE_NOOP("PictureFormats", "30 x 24 Querformat (712 x 570)"), 712, 570},
    }};
    return formats;
}

} // namespace tf
