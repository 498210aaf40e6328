#pragma once
// The paint dialog as the engine drives it: the caption of the Paint button and the chosen
// row of the type list. The GUI shows these and follows the change hook; the engine reads and
// sets them as the dialog's handlers would, so the dialog itself stays thin.
//
// The caption is the state of a paint shown to the user: "Paint <F5>" at rest, "STO&PP !"
// (English "STO&P !") while a paint runs, "Stopped - Wait!" while a Stop waits for its
// confirmation. A caption beginning with "STO" makes a click on the button a Stop.

#include <QCoreApplication>
#include <QString>

namespace tf {

class GrafDialogView;

class GrafDialogState {
    Q_DECLARE_TR_FUNCTIONS(GrafDialog)

public:
    enum class Change {
        Caption,     // BtnPaintCaption changed
        ListIndex,   // another row of the type list is chosen
        TypeList,    // the list shows another group: reload captions and title
        FocusButton, // the Paint button is to take the focus
    };

    // The three states of the Paint button, each with its caption.
    enum class Button { Rest, Running, Waiting };

    Button buttonState() const { return m_button; }
    void setButtonState(Button state);
    // The caption of the button's state in the current language.
    QString BtnPaintCaption() const;
    // True when the caption's first three letters in upper case are "STO": a paint runs.
    bool captionSaysStop() const;

    // ListBoxType.ListIndex: the chosen row, -1 when none.
    int ListIndex() const { return m_listIndex; }
    void setListIndex(int index);

    void notify(Change change);
    // The dialog that shows this state (borrowed; null: none).
    void setView(GrafDialogView *view) { m_view = view; }

private:
    Button m_button = Button::Rest;
    int m_listIndex = -1;
    GrafDialogView *m_view = nullptr;
};

// What the paint dialog is told when the engine changes its state.
class GrafDialogView {
public:
    virtual ~GrafDialogView() = default;
    virtual void grafDialogChanged(GrafDialogState::Change) {}
};

} // namespace tf
