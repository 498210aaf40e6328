#pragma once
// The dispatch from type key to painter, and the start-up registration of the engine.

#include "paint/painter.h"

#include <span>

namespace tf {

// The one table from every key of the catalogue to its painter.
std::span<const PainterEntry> painterTable();

// Registers every option panel of the engine. Call it once at start, before the first Session
// is made (a session takes the defaults of the panels registered when it is made); further
// calls do nothing. A session is given painterTable() by whoever makes it.
void registerAllPanels();

} // namespace tf
