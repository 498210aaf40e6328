#pragma once
// The option panels of the gradient group: the Chromo band, the frame gradients and the
// frequency gradients. One table per panel; the GUI's pages, `--set` and `controls TYPE` read
// them.
//
// An option group (a row of option buttons of which one is set) is one list control named by
// the group: its value is the index of the button that is set, so `optGColorTyp` 2 is the third
// button.

#include "paint/controls.h"

namespace tf {

constexpr const char *ChromoPanelName = "feat_24Chromo";
constexpr const char *FrameGradientPanelName = "feat_25FrameGradient";
constexpr const char *FrequencyPanelName = "feat_26Frequenz";

const ControlPanel &chromoPanel();
const ControlPanel &frameGradientPanel();
const ControlPanel &frequencyPanel();

// Registers the three panels (idempotent).
void registerGradientPanels();

} // namespace tf
