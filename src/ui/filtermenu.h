#pragma once
// The menu "Filter" and its sub-menus, built from the filter table: one action per menu entry
// of every row, in the order the rows give. An entry whose filter is not built in yet is
// shown disabled. Direct entries and target routines run at once; dialog entries open
// frmGamma; "Sepia" and "Hue/Sättigung..." sit in the colour sub-menu.

#include <QMenu>
#include <map>

namespace tf {
class Session;
struct FilterMenuEntry;
struct FilterRow;
} // namespace tf

namespace tf::ui {

class FilterMenu : public QMenu {
    Q_OBJECT
public:
    FilterMenu(Session &session, QWidget *parent);

    // The action of a menu entry (by control name and index), for tests; null when none.
    QAction *entryAction(const QString &control, int index = -1) const;
    QAction *sepiaAction() const { return m_sepia; }
    QAction *colouriseAction() const { return m_colourise; }

signals:
    // A filter changed the picture.
    void pictureChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void run(const FilterRow &row, const FilterMenuEntry &entry);

    Session &m_session;
    std::map<int, QMenu *> m_menus; // by FilterMenu
    std::vector<std::pair<QAction *, const FilterMenuEntry *>> m_actions;
    QAction *m_sepia = nullptr;
    QAction *m_colourise = nullptr;
};

} // namespace tf::ui
