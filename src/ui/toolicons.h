#pragma once
// The pictures of the hand tools: the toolbar's icons (the desktop's icon theme first, our own
// drawings where the theme has none) and the pointers over the picture.

#include "tools/toolengine.h"

#include <QCursor>
#include <QIcon>

namespace tf::ui {

// The tool's icon: the theme's icon of the tool's row, else our own drawing.
QIcon toolIcon(Tool tool);
// Our own drawing of the tool, 24 x 24.
QIcon bundledToolIcon(Tool tool);
// The tip of pen kind 0..4 (optPenStyle): a round dot, the nib \, the nib /, level, upright.
QIcon penTipIcon(int kind);
// The pointer that shows `cursor`.
QCursor toolCursor(ToolCursor cursor);

} // namespace tf::ui
