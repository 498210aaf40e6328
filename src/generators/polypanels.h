#pragma once
// The option panels of the drawn types, the curve family, the tiles and the matrix: one table
// per panel (see paint/controls.h), registered at start.

#include "paint/controls.h"

namespace tf {

constexpr const char *TilesPanelName = "feat_02Kacheln";
constexpr const char *EllipticPanelName = "feat_03PolyElliptic";
constexpr const char *PolyAreaPanelName = "feat_04PolyArea";
constexpr const char *LissajouPanelName = "feat_05Lissajou";
constexpr const char *RosePanelName = "feat_06Rose";
constexpr const char *RosettePanelName = "feat_07Rosette";
constexpr const char *WebtilesPanelName = "feat_08InterneKacheln";
constexpr const char *MatrixPanelName = "feat_09Matrix";

// The star or polygon kinds of cmbPolyType and the colour modes of cmbCMStar.
enum PolyKind { PolyPolygon = 0, PolyStar = 1, PolyMixed = 2 };
enum StarColourMode { StarPlain = 0, StarRandomTable = 1, StarDuoTable = 2 };

// Registers every panel of this family (idempotent through the caller).
void registerPolyPanels();

} // namespace tf
