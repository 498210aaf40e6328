#include "ui/guiprompter.h"

#include <QApplication>
#include <QMessageBox>
#include <vector>

namespace tf::ui {

namespace {

struct ButtonSet {
    std::vector<std::pair<QMessageBox::StandardButton, Answer>> buttons;
};

ButtonSet buttonsOf(Buttons b)
{
    using B = QMessageBox;
    switch (b) {
    case Buttons::Ok: return {{{B::Ok, Answer::Ok}}};
    case Buttons::OkCancel: return {{{B::Ok, Answer::Ok}, {B::Cancel, Answer::Cancel}}};
    case Buttons::AbortRetryIgnore:
        return {{{B::Abort, Answer::Abort}, {B::Retry, Answer::Retry}, {B::Ignore, Answer::Ignore}}};
    case Buttons::YesNoCancel:
        return {{{B::Yes, Answer::Yes}, {B::No, Answer::No}, {B::Cancel, Answer::Cancel}}};
    case Buttons::YesNo: return {{{B::Yes, Answer::Yes}, {B::No, Answer::No}}};
    case Buttons::RetryCancel: return {{{B::Retry, Answer::Retry}, {B::Cancel, Answer::Cancel}}};
    }
    return {{{B::Ok, Answer::Ok}}};
}

QMessageBox::Icon iconOf(Icon i)
{
    switch (i) {
    case Icon::None: return QMessageBox::NoIcon;
    case Icon::Critical: return QMessageBox::Critical;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Information: return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

} // namespace

Answer MessageBoxPrompter::ask(const Prompt &p)
{
    QMessageBox box(m_parent);
    box.setIcon(iconOf(p.icon));
    box.setWindowTitle(p.title.isEmpty() ? QApplication::applicationDisplayName() : p.title);
    box.setText(p.text);
    const ButtonSet set = buttonsOf(p.buttons);
    QMessageBox::StandardButtons all;
    for (const auto &b : set.buttons)
        all |= b.first;
    box.setStandardButtons(all);
    const size_t def = size_t(p.defaultButton) < set.buttons.size() ? size_t(p.defaultButton) : 0;
    box.setDefaultButton(set.buttons[def].first);
    const auto clicked = QMessageBox::StandardButton(box.exec());
    for (const auto &b : set.buttons)
        if (b.first == clicked)
            return b.second;
    // Closed with Escape or the window's close button: the box's cancel answer, else its default.
    for (const auto &b : set.buttons)
        if (b.second == Answer::Cancel || b.second == Answer::No)
            return b.second;
    return set.buttons[def].second;
}

} // namespace tf::ui
