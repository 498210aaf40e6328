#pragma once
// The option panels of the hand tools: the shapes of the box tool ("feat_17Shapes"), the pen
// ("feat_18FreeHand") and the spray brushes ("feat_19Spray"). The tools read them at the
// moment they act, as the painters read theirs.

namespace tf {

inline constexpr const char *ShapesPanelName = "feat_17Shapes";
inline constexpr const char *FreeHandPanelName = "feat_18FreeHand";
inline constexpr const char *SprayPanelName = "feat_19Spray";

// Registers the three panels (once, at start, with the painters' panels).
void registerToolPanels();

} // namespace tf
