#pragma once
// "Plasma": the paint of a plasma into the work picture, its option panel `feat_22Plasma`,
// and what the tunnel reads from the panel.
//
// A Paint clears the target, opens the transparency bracket, fills a plasma of the target's
// size and writes its colours, and closes the bracket. With random values the cell size
// (64..128) and the grain (2..5) are drawn; without, the panel's "Körnung" and "Skalierung"
// stand. The wraps always come from the panel.

#include "generators/plasma.h"
#include "generators/tunnel.h"

namespace tf {

struct PaintContext;
class Session;

constexpr const char *PlasmaPanelName = "feat_22Plasma";

// The panel's grain, cell size and wraps.
PlasmaSettings plasmaSettingsOf(const Session &s);
// What a paint or a tunnel fills with: the panel's, or with random values a cell size of
// 64..128 and a grain of 2..5 drawn (the wraps stay the panel's).
PlasmaSettings plasmaSettingsOfPaint(Session &s);
// The panel's tunnel speed and spin; the hole, when "Loch" is checked, an eighth of
// `shorterSide` (the field's shorter side).
TunnelSettings tunnelSettingsOf(const Session &s, int shorterSide);

// The palette of a paint or a tunnel start: the loaded palette while it is fixed and "Gelad.
// Palette verwenden" is checked; with `useTable` (the colour table in force) a ramp between
// two painted cells of DuoColors drawn at random; otherwise plasmaPaletteFor. It becomes the
// palette on show (ColourState::PlasmaPalette).
Palette512 plasmaPaletteOfPaint(Session &s, bool useTable);

// The painter of "Plasma".
void Create_Plasma(PaintContext &ctx);

// Registers feat_22Plasma.
void registerPlasmaPanels();

} // namespace tf
