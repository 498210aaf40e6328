#include "generators/webtiles.h"

#include "generators/figures.h"

#include "core/fault.h"
#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <QFile>
#include <QtGlobal>
#include <algorithm>
#include <array>

namespace tf {

using namespace fig;

const std::vector<Webtile> &webtiles()
{
    static const std::vector<Webtile> table{
        {"01-wellen.png", QT_TRANSLATE_NOOP("Controls", "Wellen")},
        {"02-rauten.png", QT_TRANSLATE_NOOP("Controls", "Rauten")},
        {"03-schuppen.png", QT_TRANSLATE_NOOP("Controls", "Schuppen")},
        {"04-ziegel.png", QT_TRANSLATE_NOOP("Controls", "Ziegel")},
        {"05-marmor.png", QT_TRANSLATE_NOOP("Controls", "Marmor")},
        {"06-leinen.png", QT_TRANSLATE_NOOP("Controls", "Leinen")},
        {"07-ringe.png", QT_TRANSLATE_NOOP("Controls", "Ringe")},
        {"08-flechtwerk.png", QT_TRANSLATE_NOOP("Controls", "Flechtwerk")},
        {"09-sterne.png", QT_TRANSLATE_NOOP("Controls", "Sterne")},
        {"10-holz.png", QT_TRANSLATE_NOOP("Controls", "Holz")},
        {"11-waben.png", QT_TRANSLATE_NOOP("Controls", "Waben")},
    };
    return table;
}

QImage webtileImage(int i)
{
    const auto &tiles = webtiles();
    if (i < 0 || size_t(i) >= tiles.size()) return QImage();
    QImage image(QStringLiteral(":/tiles/") + QString::fromLatin1(tiles[size_t(i)].file));
    return image.isNull() ? image : image.convertToFormat(QImage::Format_Grayscale8);
}

void Create_Interne_Webtiles(PaintContext &ctx)
{
    const int count = int(webtiles().size());
    const int chosen =
        ctx.colours().RandomValues
            ? int(Int(rnd(ctx) * count))
            : std::clamp(ctx.session.controls().value(QStringLiteral("cmbInterneKachel")), 0,
                         count - 1);
    const QImage tile = webtileImage(chosen);
    if (tile.isNull()) throw Fault(Fault::FileNotFound);
    begin(ctx, 2);
    ColorLong dark = 0, light = 0xFFFFFF;
    if (ctx.session.controls().checked(QStringLiteral("XKachelFarben"))) {
        const ColourState &c = ctx.colours();
        if (ctx.opt.UseDuoTable || c.RandomColors) {
            dark = figureColour(ctx, 2);
            light = figureColour(ctx, 2);
            if (dark == NoColour) dark = c.ColorFore;
            if (light == NoColour) light = c.ColorBack;
        } else {
            dark = c.ColorFore;
            light = c.ColorBack;
        }
    }
    std::array<QRgb, 256> ramp{};
    for (int g = 0; g < 256; ++g) {
        const ColorLong c = blend(dark, light, g / 255.0);
        ramp[size_t(g)] = qRgb(RedOf(c), GreenOf(c), BlueOf(c));
    }
    QImage &img = ctx.XBild.mutableImage();
    const int tw = tile.width(), th = tile.height();
    for (int y = 0; y < img.height(); ++y) {
        const uchar *src = tile.constScanLine(y % th);
        auto *row = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = 0; x < img.width(); ++x)
            row[x] = ramp[src[x % tw]];
    }
    ctx.XBild.markChanged();
    end(ctx);
}

} // namespace tf
