#pragma once
// What the sub-commands share: output, usage errors, and the session's doors on a terminal.

#include "core/prompter.h"
#include "core/status.h"
#include "core/yield.h"

#include "core/colour.h"

#include <QString>
#include <QStringList>
#include <cstdio>
#include <map>
#include <stdexcept>

namespace tf::cli {

constexpr int ExitOk = 0;
constexpr int ExitFailed = 1;
constexpr int ExitUsage = 2;

void print(FILE *to, const QString &text);
// "tarvelle-forge: <message>" and a line break on stderr.
void printError(const QString &message);

// A mistake in the arguments: the command ends with its message and exit code 2.
struct UsageError : std::runtime_error {
    explicit UsageError(const QString &message);
    QString message;
};

// Reads the arguments of a command: options with a value, switches, positional words.
class Arguments {
public:
    explicit Arguments(QStringList args) : m_args(std::move(args)) {}
    bool atEnd() const { return m_next >= m_args.size(); }
    QString next() { return m_args.value(m_next++); }
    // The value of the option just read; a UsageError when it is missing.
    QString valueOf(const QString &option);

private:
    QStringList m_args;
    qsizetype m_next = 0;
};

// Prompts go to stderr and take their default answer; a reported fault (the exclamation or
// critical icon) is remembered, so that the command can end with exit code 1.
class CliPrompter : public StderrPrompter {
public:
    Answer ask(const Prompt &p) override;
    bool faultSeen() const { return m_faultSeen; }

private:
    bool m_faultSeen = false;
};

// The status bar on a terminal: texts are kept, the progress bar is drawn on stderr when it
// is a terminal.
class TerminalStatus : public RecordingStatus {
public:
    void setProgress(int value, int max) override;
};

// Ctrl-C during a paint asks it to stop. The handler is installed for the object's lifetime.
class InterruptYield : public YieldHook {
public:
    InterruptYield();
    ~InterruptYield() override;
    InterruptYield(const InterruptYield &) = delete;
    InterruptYield &operator=(const InterruptYield &) = delete;
    bool yield() override;
    bool interrupted() const;
};

// The sub-commands. `args` are the words after the command's name.
// "#RRGGBB" as a colour long; anything else is a usage error ("Ungültige Farbe: …").
ColorLong parseColour(const QString &text);

int runTypes(const QStringList &args);
int runControls(const QStringList &args);
int runPaint(const QStringList &args);
int runAnimate(const QStringList &args);
int runFilters(const QStringList &args);
int runFilter(const QStringList &args);
int runRecipe(const QStringList &args);
int runGallery(const QStringList &args);
int runTransform(const QStringList &args);
int runPassepartouts(const QStringList &args);
int runPassepartout(const QStringList &args);

} // namespace tf::cli
