#pragma once
// The text dialog's fields and the option panels of the text types: one table per panel
// (see paint/controls.h), registered at start.

#include "paint/controls.h"

namespace tf {

constexpr const char *TextDialogTypePanelName = "feat_14Textdialog";
constexpr const char *TextBlockPanelName = "feat_13TextBlock";
constexpr const char *TextCircularPanelName = "feat_12TextCircular";
constexpr const char *TextRotationPanelName = "feat_11TextRotation";

// The alignments of optTextBlockAlign.
enum TextBlockAlign { AlignLeft = 0, AlignCentred = 1, AlignRight = 2, AlignCinema = 3,
                      AlignLeftRight = 4 };

// The shadow colours of icb1Color3D.
enum Shadow3D { ShadowOfRule = 0, ShadowBlack = 1, ShadowGrey = 2, ShadowWhite = 3,
                ShadowDarkText = 4 };

// Registers the text dialog ("frmTextDialog") and the four panels.
void registerTextPanels();

} // namespace tf
