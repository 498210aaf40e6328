#pragma once
// The one door to message boxes and questions.
//
// The GUI answers with a message box, the command line prints to stderr and takes the
// default answer, tests script the answers and read the exact texts. Engine routines that
// have no session at hand (a surface reporting a fault) use the installed prompter.

#include <QString>
#include <functional>
#include <vector>

namespace tf {

enum class Buttons { Ok, OkCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Answer { Ok, Cancel, Abort, Retry, Ignore, Yes, No };

struct Prompt {
    QString text;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    QString title;
    int defaultButton = 0; // 0 the first button, 1 the second, 2 the third
};

// The answer a prompt gets when nobody is asked: its default button.
Answer defaultAnswer(const Prompt &p);

class Prompter {
public:
    virtual ~Prompter() = default;
    virtual Answer ask(const Prompt &p) = 0;
};

// Prints the prompt to stderr and takes its default answer (or Yes/Ok with `assumeYes`).
class StderrPrompter : public Prompter {
public:
    explicit StderrPrompter(bool assumeYes = false) : m_assumeYes(assumeYes) {}
    Answer ask(const Prompt &p) override;

private:
    bool m_assumeYes;
};

// Records every prompt and answers from a script; once the script is used up, the default.
class ScriptedPrompter : public Prompter {
public:
    Answer ask(const Prompt &p) override;
    void script(std::vector<Answer> answers) { m_answers = std::move(answers); m_next = 0; }
    const std::vector<Prompt> &asked() const { return m_asked; }
    QString lastText() const { return m_asked.empty() ? QString() : m_asked.back().text; }
    void clear() { m_asked.clear(); }

private:
    std::vector<Prompt> m_asked;
    std::vector<Answer> m_answers;
    size_t m_next = 0;
};

// The installed prompter; a StderrPrompter until one is installed.
Prompter &currentPrompter();
// Installs `p` (nullptr restores the default); returns the one installed before.
Prompter *installPrompter(Prompter *p);

// Installs a prompter for the lifetime of this object.
class PrompterScope {
public:
    explicit PrompterScope(Prompter &p) : m_before(installPrompter(&p)) {}
    ~PrompterScope() { installPrompter(m_before); }
    PrompterScope(const PrompterScope &) = delete;
    PrompterScope &operator=(const PrompterScope &) = delete;

private:
    Prompter *m_before;
};

} // namespace tf
