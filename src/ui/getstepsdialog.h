#pragma once
// frmGetSteps, "Schritte": asks for one number. A text box `txtValue` and a scroll control
// `vscroll` beside it show the same value; the arrows of the scroll control move it by one
// step (up is more), typing sets it. OK takes the value into GD_Wert when it is a number
// within the range (a comma or a point before the decimals), otherwise it says under the
// value which numbers it takes (`lblInfo`) and stays open. Abbrechen leaves GD_Wert as it was.

#include "core/numeric.h"

#include <QDialog>
#include <optional>

class QLabel;
class QLineEdit;
class QScrollBar;

namespace tf::ui {

class GetStepsDialog : public QDialog {
    Q_OBJECT
public:
    // `value` starts the dialog; `step` is what an arrow adds (above 0).
    GetStepsDialog(const QString &prompt, Single value, Single min, Single max, Single step,
                   QWidget *parent = nullptr);

    Single GD_Wert() const { return m_value; }
    bool Cancelled() const { return m_cancelled; }
    QLineEdit *txtValue() const { return m_text; }
    QScrollBar *vscroll() const { return m_scroll; }
    QString info() const;

    // Asks modally; no value when cancelled.
    static std::optional<Single> ask(QWidget *parent, const QString &prompt, Single value,
                                     Single min, Single max, Single step);

    void cmdOK();
    void cmdCancel();

protected:
    void reject() override { cmdCancel(); }

private:
    std::optional<Single> typedValue() const;
    void show(Single value);

    Single m_value, m_min, m_max, m_step;
    bool m_cancelled = true;
    QLineEdit *m_text = nullptr;
    QScrollBar *m_scroll = nullptr;
    QLabel *m_info = nullptr;
};

} // namespace tf::ui
