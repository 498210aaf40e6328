#pragma once
// Choosing a group and a type: the handlers of the group menu and of the paint dialog's type
// list, on the session's paint state.

namespace tf {

class Session;

// Loads the type list for GrafGroup: the GUI reloads captions and title (the TypeList
// change), the row last painted in the group (GrafTypeMem) is chosen again, GrafKey is
// cleared.
void show_GMENU(Session &s);
// Sets GrafKey to the key of row `row` (1-based: list index + 1) of GrafGroup's list, when
// the row exists; a group outside 1..10 does nothing.
void Hole_GMENU(Session &s, int row);
// The group menu, index 1..10: sets GrafGroup and shows its list. Like the type list's click,
// it does nothing while a paint or filter runs.
void mn_Grafmodes(Session &s, int group);
// A click on the type list: chooses the row (0-based, -1 none), fills GrafKey and lets the
// option panels follow.
void ListBoxType_Click(Session &s, int listIndex);

} // namespace tf
