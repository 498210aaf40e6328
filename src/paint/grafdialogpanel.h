#pragma once
// The general options of the paint dialog, "frmGrafDialog": the controls every painter may
// read besides its own option panel.
//
// A Text control with items is an editable combo box: the items are the choices offered, the
// value is whatever text stands in the field (`Val` of it is read). The items of `cmbNumbArr`,
// `cmbPen`, `cmbDPI` and `cmbBildformate` are what the dialog's combos are filled with.

#include "paint/controls.h"

namespace tf {

constexpr const char *GrafDialogPanelName = "frmGrafDialog";

const ControlPanel &grafDialogPanel();

// Registers the option panels of the painting engine itself (idempotent).
void registerPaintPanels();

} // namespace tf
