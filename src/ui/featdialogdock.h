#pragma once
// The option panels `frmFeatDialog1`: one panel per family of types, built from the family's
// control table, in a dock beside the paint dialog. `Handle_Formobjects` brings the panel of
// the chosen type to the top; a type without a panel of its own shows a short note.

#include <QDockWidget>
#include <map>

class QLabel;
class QStackedWidget;

namespace tf {
class Session;
struct ControlKey;
}

namespace tf::ui {

class ControlPanelWidget;
class PlasmaPanelExtras;

class FeatDialogDock : public QDockWidget {
    Q_OBJECT
public:
    explicit FeatDialogDock(Session &session, QWidget *parent = nullptr);

    // Shows the panel that GrafKey reads.
    void Handle_Formobjects();
    // Shows a control's new value in whichever panel holds it.
    void controlChanged(const ControlKey &key);
    // The name of the panel on top ("" for the note).
    QString currentPanel() const;
    // The palette strip and the tunnel's buttons of the plasma panel.
    PlasmaPanelExtras *plasmaExtras() const { return m_plasmaExtras; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    Session &m_session;
    QStackedWidget *m_stack;
    QLabel *m_none;
    std::map<QString, ControlPanelWidget *> m_panels;
    std::map<QString, QWidget *> m_pages;
    PlasmaPanelExtras *m_plasmaExtras = nullptr;
};

} // namespace tf::ui
