#include "paint/grafmenu.h"

#include "paint/catalogue.h"
#include "paint/session.h"

namespace tf {

void show_GMENU(Session &s)
{
    PaintState &p = s.paint();
    p.dialog.notify(GrafDialogState::Change::TypeList);
    const int count = int(groupRows(p.GrafGroup).size());
    const int remembered =
        p.GrafGroup >= 1 && p.GrafGroup <= GroupCount ? p.GrafTypeMem[size_t(p.GrafGroup)] : -1;
    p.dialog.setListIndex(remembered >= 0 && remembered < count ? remembered
                                                                : (count > 0 ? 0 : -1));
    p.GrafKey.clear();
}

void Hole_GMENU(Session &s, int row)
{
    PaintState &p = s.paint();
    const CatalogueRow *r = groupRow(p.GrafGroup, row - 1);
    if (row >= 1 && r) p.GrafKey = QString::fromUtf8(r->key);
}

void mn_Grafmodes(Session &s, int group)
{
    if (s.runState().busy() || group < 1 || group > GroupCount) return;
    s.paint().GrafGroup = group;
    show_GMENU(s);
}

void ListBoxType_Click(Session &s, int listIndex)
{
    if (s.runState().busy()) {
        // The list shows the row of the running paint again.
        s.paint().dialog.notify(GrafDialogState::Change::ListIndex);
        return;
    }
    PaintState &p = s.paint();
    p.dialog.setListIndex(listIndex);
    Hole_GMENU(s, listIndex + 1);
    s.view().Handle_Formobjects();
}

} // namespace tf
