#pragma once
// The session: everything the main window owns, in plain objects, so that painters, filters,
// the command line and tests work without a window.
//
// It holds the workspace of named pictures with its undo, the option controls, the paint
// state, the random generator and the clock, and the three doors to the user: the prompter
// (questions and messages), the status sink (status bar, progress) and the yield hook (giving
// way in long loops). A session given a prompter (setPrompter) installs it as the process's
// current prompter until the session ends, so that faults reported deep in the engine reach
// the same door; a session without one (a preview's) leaves the installed prompter alone.

#include "core/clock.h"
#include "core/prompter.h"
#include "core/random.h"
#include "core/status.h"
#include "core/workspace.h"
#include "core/yield.h"
#include "paint/colourstate.h"
#include "paint/controls.h"
#include "paint/filterstate.h"
#include "paint/grafdialog.h"
#include "paint/paintrecord.h"
#include "paint/transparency.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace tf {

// What the paint driver owns besides the action string (which lives in the workspace, since
// Undo reads it).
struct PaintState {
    QString GrafKey;
    int GrafGroup = 1;                  // 1..10
    std::array<int, 11> GrafTypeMem{};  // per group, the list index of the type last painted
    bool StopPaint = false;
    bool AutoPaintRun = false;
    bool running = false;               // a paint is under way
    bool Timer1 = false;                // the main window's animation timer runs
    GrafDialogState dialog;             // the Paint button's caption, the type list's row
    int progress2Max = 0;               // the second progress bar's range, 0 while hidden

    // The seed of the next paint; without one a paint takes a seed from the clock.
    std::optional<uint32_t> nextSeed;
    // The last paint that ran (see paintrecord.h).
    std::optional<PaintRecord> lastPaint;

    // The main window's routines that a paint calls; each may be left empty. Set_Toolbarstatus
    // and Set_Fontstatus write their status panels when empty.
    struct Hooks {
        std::function<void()> reset_imgButtons;     // release the mouse tools
        std::function<void()> clr_DrawStyleButtons; // clear the draw-style toggles
        std::function<void(const QString &)> Set_Toolbarstatus;
        std::function<void(const QString &)> Set_Fontstatus;
        std::function<void(bool)> Set_Fixstatus;
        std::function<void()> Handle_Formobjects;   // the option panels follow GrafKey
    } hooks;
};

class Session {
public:
    Session();
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    Workspace &workspace() { return *m_workspace; }
    const Workspace &workspace() const { return *m_workspace; }
    Controls &controls() { return m_controls; }
    const Controls &controls() const { return m_controls; }
    PaintState &paint() { return m_paint; }
    const PaintState &paint() const { return m_paint; }
    ColourState &colours() { return m_colours; }
    const ColourState &colours() const { return m_colours; }
    // TranspPercent and the paint target XBild, XUndo, XWork (Bild's until Set_BILD).
    TransparencyState &transparency() { return m_transparency; }
    FilterState &filters() { return m_filters; }
    const TransparencyState &transparency() const { return m_transparency; }

    // The doors. Each setter takes a borrowed object (null restores the default).
    Prompter &prompter() { return *m_prompter; }
    void setPrompter(Prompter *p);
    StatusSink &status() { return *m_status; }
    void setStatus(StatusSink *s) { m_status = s ? s : &m_defaultStatus; }
    void setYieldHook(YieldHook *y) { m_yield = y ? y : &m_noYield; }

    // Asks a question through the prompter.
    Answer ask(const QString &text, Buttons buttons = Buttons::Ok, Icon icon = Icon::None,
               const QString &title = QString());

    // Gives way to pending input; a stop request of the hook sets StopPaint.
    void DoEvents();

    // The random generator and the clock. `seed` makes both deterministic: the generator starts
    // from a state drawn from the seed, and Timer reads the seeded clock.
    Random &random() { return m_random; }
    Single Rnd() { return m_random.Rnd(); }
    Single Timer() { return m_clock.Timer(); }
    void Randomize() { m_random.Randomize(double(Timer())); }
    void seed(uint32_t seed);
    void unseed() { m_clock.useWallClock(); }
    SessionClock &clock() { return m_clock; }

private:
    std::unique_ptr<Workspace> m_workspace;
    Controls m_controls;
    PaintState m_paint;
    ColourState m_colours;
    TransparencyState m_transparency;
    FilterState m_filters;
    Random m_random;
    SessionClock m_clock;

    StderrPrompter m_defaultPrompter;
    RecordingStatus m_defaultStatus;
    NoYield m_noYield;
    Prompter *m_prompter = &m_defaultPrompter;
    StatusSink *m_status = &m_defaultStatus;
    YieldHook *m_yield = &m_noYield;
    Prompter *m_prompterBefore = nullptr;
    bool m_installedPrompter = false; // setPrompter made this session's prompter the process's
};

} // namespace tf
