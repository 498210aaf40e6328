#pragma once
// The prompter of the desktop program: a modal message box over the main window.

#include "core/prompter.h"

class QWidget;

namespace tf::ui {

class MessageBoxPrompter : public Prompter {
public:
    explicit MessageBoxPrompter(QWidget *parent) : m_parent(parent) {}
    Answer ask(const Prompt &p) override;

private:
    QWidget *m_parent;
};

} // namespace tf::ui
