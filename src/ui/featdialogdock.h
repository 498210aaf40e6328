#pragma once
// The option panels `frmFeatDialog1`: one panel per family of types, built from the family's
// control table, in a dock beside the paint dialog. `Handle_Formobjects` brings the panel of
// the chosen type to the top; a type without a panel of its own shows a short note.

#include <QDockWidget>
#include <map>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace tf {
class Session;
struct ControlKey;
struct PanelAction;
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
    // Shows the panel of that name (a hand tool's), when there is one.
    void showPanel(const QString &name);
    // Shows a control's new value in whichever panel holds it.
    void controlChanged(const ControlKey &key);
    // The widget of a panel; null when there is none of that name.
    ControlPanelWidget *panelWidget(const QString &name) const;
    // The name of the panel on top ("" for the note).
    QString currentPanel() const;
    // The palette strip and the tunnel's buttons of the plasma panel.
    PlasmaPanelExtras *plasmaExtras() const { return m_plasmaExtras; }

signals:
    // A button of the text panel armed the placing mode: the next click on the picture
    // places the text.
    void textPlacingArmed();
    // A button of a panel's actions was pressed.
    void actionRequested(const tf::PanelAction *action);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    // The placing buttons under the text panel (BtnSet_TextDialogPosition, BtnSet_TextPosC).
    QWidget *textPlacingButtons(QWidget *parent);

    Session &m_session;
    QStackedWidget *m_stack;
    QLabel *m_none;
    std::map<QString, ControlPanelWidget *> m_panels;
    std::map<QString, QWidget *> m_pages;
    QPushButton *BtnSet_TextDialogPosition = nullptr;
    QPushButton *BtnSet_TextPosC = nullptr;
    PlasmaPanelExtras *m_plasmaExtras = nullptr;
};

} // namespace tf::ui
