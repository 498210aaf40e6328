#pragma once
// The option panels of the figures around a centre: the mountains and the circle gradients.
// One table per panel (see paint/controls.h), registered at start. The figure kind
// `cmbPolyType` that stood beside the circle gradients' controls is read by "Poly-Area" only
// and lives on its page (polypanels.h).
//
// An option group is one list control named by the group: `radMountHorizon` 0 is "Oben".

#include "paint/controls.h"

namespace tf {

constexpr const char *MountainsPanelName = "feat_07Mountains";
constexpr const char *CircleGradientsPanelName = "feat_04CircleGradients";

const ControlPanel &mountainsPanel();
const ControlPanel &circleGradientsPanel();

// Registers every panel of this family (idempotent through the caller).
void registerCentrePanels();

} // namespace tf
