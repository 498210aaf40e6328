#include "generators/plasmapaint.h"

#include "core/fault.h"
#include "core/numeric.h"
#include "core/picturebox.h"
#include "paint/controls.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QtGlobal>
#include <utility>
#include <vector>

namespace tf {

namespace {

ControlKey plasmaBox(int i) { return ControlKey{QStringLiteral("XPlasmas"), i}; }
ControlKey plasmaScroll(int i) { return ControlKey{QStringLiteral("scrollPlasmaW"), i}; }
const ControlKey TunnelSpeed{QStringLiteral("scrollPlasmaTunnelSpeed")};

const ControlPanel &plasmaPanel()
{
    // "Start Tunnel" / "Stop" and the palette strip stand on the panel's page beside these.
    static const ControlPanel panel{
        QString::fromLatin1(PlasmaPanelName),
        QT_TRANSLATE_NOOP("Controls", "Plasma"),
        {
            controlSpec("scrollPlasmaW", 0, ControlKind::Value,
                        QT_TRANSLATE_NOOP("Controls", "Körnung"), "0", 0, 128),
            controlSpec("scrollPlasmaW", 1, ControlKind::Value,
                        QT_TRANSLATE_NOOP("Controls", "Skalierung"), "32", 4, 128),
            controlSpec("XPlasmas", 0, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Horizontal einhüllen"), "0", 0, 1),
            controlSpec("XPlasmas", 1, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Vertikal einhüllen"), "0", 0, 1),
            controlSpec("XPlasmas", 2, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Gelad. Palette verwenden"), "0", 0, 1),
            controlSpec("XPlasmas", 3, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Rotieren"), "0", 0, 1),
            controlSpec("XPlasmas", 4, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Loch"), "0", 0, 1),
            controlSpec("scrollPlasmaTunnelSpeed", -1, ControlKind::Value,
                        QT_TRANSLATE_NOOP("Controls", "Speed"), "4", 1, 64),
        }};
    return panel;
}

// Two painted cells of the 5 x 5 table, drawn at random (the first two painted ones when the
// draws meet blank cells only).
std::pair<ColorLong, ColorLong> tablePair(Session &s)
{
    const bool random = s.colours().XDuotones[0];
    Set_Duo_Colortable(s, 0, true,
                       random ? QStringLiteral("RandomMLeadGlass") : QStringLiteral("DuoMLeadGlass"),
                       5, 5);
    const std::vector<ColorLong> &cells = s.colours().DuoColors;
    std::vector<ColorLong> painted;
    for (size_t i = 1; i < cells.size(); ++i)
        if (cells[i] != NoColour) painted.push_back(cells[i]);
    if (painted.empty()) return {s.colours().ColorFore, s.colours().ColorBack};
    auto pick = [&] {
        const auto i = size_t(Int(double(s.Rnd()) * double(painted.size())));
        return painted[std::min(i, painted.size() - 1)];
    };
    const ColorLong a = pick();
    return {a, pick()};
}

} // namespace

PlasmaSettings plasmaSettingsOf(const Session &s)
{
    const Controls &c = s.controls();
    PlasmaSettings p;
    p.grain = std::max(0, c.value(plasmaScroll(0)));
    p.step = clampPlasmaStep(c.value(plasmaScroll(1)));
    p.wrapH = c.checked(plasmaBox(0));
    p.wrapV = c.checked(plasmaBox(1));
    return p;
}

PlasmaSettings plasmaSettingsOfPaint(Session &s)
{
    PlasmaSettings p = plasmaSettingsOf(s);
    if (s.colours().RandomValues) {
        // Cells of 64 to 128 with a grain of 2 to 5: clouds with detail at every scale (small
        // cells without grain show the blocks of the first pass).
        p.step = int(Int(double(s.Rnd()) * 65)) + 64;
        p.grain = int(Int(double(s.Rnd()) * 4)) + 2;
    }
    return p;
}

TunnelSettings tunnelSettingsOf(const Session &s, int shorterSide)
{
    const Controls &c = s.controls();
    TunnelSettings t;
    t.speed = std::max(1, c.value(TunnelSpeed));
    t.spin = c.checked(plasmaBox(3));
    t.hole = c.checked(plasmaBox(4)) ? shorterSide / 8.0 : 0.0;
    return t;
}

Palette512 plasmaPaletteOfPaint(Session &s, bool useTable)
{
    ColourState &c = s.colours();
    const bool loaded = c.PalFromFile && c.PalFixed && c.Pal512.size() >= 512 &&
                        s.controls().checked(plasmaBox(2));
    if (useTable && !loaded) {
        const auto [a, b] = tablePair(s);
        const int mode = plasmaPaletteMode(s);
        c.PlasmaPalette = mode == 3 ? Plasma_Palette(a, b, mode, Pick_RandomColor(s),
                                                     Pick_RandomColor(s))
                                    : Plasma_Palette(a, b, mode);
    } else {
        c.PlasmaPalette = plasmaPaletteFor(s);
    }
    return c.PlasmaPalette;
}

void Create_Plasma(PaintContext &ctx)
{
    Session &s = ctx.session;
    const PlasmaSettings settings = plasmaSettingsOfPaint(s);
    const Palette512 palette = plasmaPaletteOfPaint(s, ctx.opt.UseDuoTable);
    // The coarse passes first: a fault of the fill ("Plasma [...]") leaves the picture as it
    // was. The last pass and the colours then go straight into the picture's rows.
    PlasmaCoarse coarse;
    const int w = ctx.XBild.Width(), h = ctx.XBild.Height();
    if (!guarded(QStringLiteral("Plasma"),
                 [&] { coarse = Plasma_Coarse(w, h, settings, plasmaKey(s.random())); }))
        return;
    ctx.Bild_CLEAR();
    Start_Transparent(s);
    PictureBox &pic = ctx.XBild;
    QImage &image = pic.mutableImage();
    if (image.width() == w && image.height() == h)
        Plasma_FillColours(std::move(coarse), palette, reinterpret_cast<uint32_t *>(image.bits()),
                           size_t(image.bytesPerLine()) / 4);
    pic.markChanged();
    Ende_Transparent(s);
}

void registerPlasmaPanels() { registerControlPanel(&plasmaPanel()); }

} // namespace tf
