#include "core/prompter.h"

#include <cstdio>

namespace tf {

namespace {
Prompter *g_installed = nullptr;

Answer buttonAnswer(Buttons b, int index)
{
    switch (b) {
    case Buttons::Ok: return Answer::Ok;
    case Buttons::OkCancel: return index == 1 ? Answer::Cancel : Answer::Ok;
    case Buttons::AbortRetryIgnore:
        return index == 2 ? Answer::Ignore : index == 1 ? Answer::Retry : Answer::Abort;
    case Buttons::YesNoCancel:
        return index == 2 ? Answer::Cancel : index == 1 ? Answer::No : Answer::Yes;
    case Buttons::YesNo: return index == 1 ? Answer::No : Answer::Yes;
    case Buttons::RetryCancel: return index == 1 ? Answer::Cancel : Answer::Retry;
    }
    return Answer::Ok;
}
} // namespace

Answer defaultAnswer(const Prompt &p) { return buttonAnswer(p.buttons, p.defaultButton); }

Answer StderrPrompter::ask(const Prompt &p)
{
    QByteArray text = p.text.toLocal8Bit();
    if (!p.title.isEmpty())
        std::fprintf(stderr, "%s: %s\n", p.title.toLocal8Bit().constData(), text.constData());
    else
        std::fprintf(stderr, "%s\n", text.constData());
    return m_assumeYes ? buttonAnswer(p.buttons, 0) : defaultAnswer(p);
}

Answer ScriptedPrompter::ask(const Prompt &p)
{
    m_asked.push_back(p);
    if (m_next < m_answers.size())
        return m_answers[m_next++];
    return defaultAnswer(p);
}

Prompter &currentPrompter()
{
    static StderrPrompter fallback;
    return g_installed ? *g_installed : fallback;
}

Prompter *installPrompter(Prompter *p)
{
    Prompter *before = g_installed;
    g_installed = p;
    return before;
}

} // namespace tf
