#pragma once
// An option panel built from its control table: one widget per control, bound both ways to
// the session's control values. A change in the widget goes through the control's normalising
// rule (the widget then shows the normalised value); a change of the value by the engine shows
// in the widget.
//
// Kinds and widgets: a Text control with items is an editable combo box, one without a line
// edit; a Value control a slider with its number (and unit) beside it; Checked a check box;
// ListIndex a combo box; Colour a colour button.
//
// A widget shows the value its control keeps, also while a link disables it; the panel enables
// its widgets as the links of the control tables say, after every change it is told of.

#include "core/runstate.h"
#include "paint/controls.h"

#include <QWidget>
#include <functional>
#include <map>

class QFormLayout;
class QLabel;
class QPushButton;

namespace tf::ui {

class ControlPanelWidget : public QWidget {
    Q_OBJECT
public:
    ControlPanelWidget(const ControlPanel &panel, Controls &controls, QWidget *parent = nullptr);
    ~ControlPanelWidget() override;

    const ControlPanel &panel() const { return m_panel; }
    // The widget of a control (for layouts that place some controls elsewhere); null if none.
    QWidget *widgetFor(const ControlKey &key) const;
    // The caption label beside a control; null if it has none.
    QLabel *labelFor(const ControlKey &key) const;
    // Shows the values as they stand in the control model.
    void refresh();
    // Shows one control's value.
    void refresh(const ControlKey &key);
    // Changes are refused (the widget shows the value that stands) while `run` is busy.
    void setRunState(const RunState *run) { m_run = run; }

signals:
    // A button of the panel's actions was pressed.
    void actionRequested(const tf::PanelAction *action);

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Binding {
        const ControlSpec *def;
        QWidget *widget;
        QLabel *label;
        std::function<void()> show;      // model -> widget
    };
    void build();
    void retranslate();
    void commit(const ControlSpec &def, const QString &value);
    // Enables each widget (and its label) as the links say.
    void showEnabled();
    // A control's stored value as a number (a disabled control shows what it keeps).
    int storedNumber(const ControlKey &key) const;

    const ControlPanel &m_panel;
    Controls &m_controls;
    std::map<ControlKey, Binding> m_bindings;
    std::vector<std::pair<QPushButton *, const PanelAction *>> m_actions;
    bool m_showing = false;
    const RunState *m_run = nullptr;
};

} // namespace tf::ui
