#pragma once
// The session: everything the main window owns, in plain objects, so that painters, filters,
// the command line and tests work without a window.
//
// It holds the workspace of named pictures with its undo and fixings, the option controls, the
// paint state with the table of painters it paints with, what runs at the moment (RunState),
// the random generator and the clock, and its doors: the prompter (questions and messages), the
// status sink (status bar, progress), the yield hook (giving way in long loops) and the view
// (the window that shows it, with the main window's routines the engine calls).
//
// What stays process-wide, in one place each: the installed prompter (core/prompter.h), which
// the routines below the session report their faults through — a session given a prompter
// (setPrompter) installs it until the session ends, a session without one (a preview's) leaves
// it alone; the control panel tables (paint/controls.h), constant data registered once at
// start; the catalogue and the settings store of the desktop program (core/settings.h).

#include "core/clock.h"
#include "core/fixings.h"
#include "core/prompter.h"
#include "core/random.h"
#include "core/runstate.h"
#include "core/status.h"
#include "core/workspace.h"
#include "core/yield.h"
#include "paint/animation.h"
#include "paint/colourstate.h"
#include "paint/controls.h"
#include "paint/filterstate.h"
#include "paint/grafdialog.h"
#include "paint/mondriantables.h"
#include "paint/painter.h"
#include "paint/paintrecord.h"
#include "paint/picsourcelist.h"
#include "paint/sessionview.h"
#include "paint/superformat.h"
#include "paint/textstate.h"
#include "paint/transparency.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace tf {

// What the paint driver owns besides the action string (which lives in the workspace, since
// Undo reads it).
struct PaintState {
    QString GrafKey;
    int GrafGroup = 1;                  // 1..10
    std::array<int, 11> GrafTypeMem{};  // per group, the list index of the type last painted
    bool StopPaint = false;
    bool AutoPaintRun = false;
    bool Timer1 = false;                // the main window's animation timer runs
    GrafDialogState dialog;             // the Paint button's caption, the type list's row
    int progress2Max = 0;               // the second progress bar's range, 0 while hidden
    int16_t CutMode = 0;                // the pattern of the cut-out borders, 0..2, one on each paint

    // The seed of the next paint; without one a paint takes a seed from the clock.
    std::optional<uint32_t> nextSeed;
    // The last paint that ran (see paintrecord.h).
    std::optional<PaintRecord> lastPaint;
};

// The hand tools of the mouse (tools/toolengine.h), which the session owns once they are made
// for it: the paint layer knows them only by this door.
class HandTools {
public:
    virtual ~HandTools() = default;
    // Releases the armed tool.
    virtual void disarm() = 0;
};

// Values that the start of the program sets for the painters that read them later.
struct StartValues {
    int TextBlockStep = 80; // the line step of the text blocks
    int DisplayTime = 3000; // how long a picture of a show stays, in milliseconds
};

class Session {
public:
    Session();
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    Workspace &workspace() { return *m_workspace; }
    const Workspace &workspace() const { return *m_workspace; }
    Fixings &fixings() { return *m_fixings; }
    const Fixings &fixings() const { return *m_fixings; }
    // What runs at the moment; handlers the event loop reaches during a paint ask it first.
    RunState &runState() { return m_run; }
    const RunState &runState() const { return m_run; }
    StartValues &startValues() { return m_startValues; }
    const StartValues &startValues() const { return m_startValues; }
    Controls &controls() { return m_controls; }
    const Controls &controls() const { return m_controls; }
    PaintState &paint() { return m_paint; }
    const PaintState &paint() const { return m_paint; }
    ColourState &colours() { return m_colours; }
    const ColourState &colours() const { return m_colours; }
    // TranspPercent and the paint target XBild, XUndo, XWork (Bild's until Set_BILD).
    TransparencyState &transparency() { return m_transparency; }
    FilterState &filters() { return m_filters; }
    // The frame tables of the Mondrian family, kept from one paint to the next.
    MondrianTables &mondrian() { return m_mondrian; }
    const MondrianTables &mondrian() const { return m_mondrian; }
    // The photo sources of the mosaic, the cube and the show, with the scanned list.
    PicSourceList &picSources() { return m_picSources; }
    const PicSourceList &picSources() const { return m_picSources; }
    // The Superformat surfaces and the kept former picture (see superformat.h).
    SuperformatSurfaces &superformat() { return *m_superformat; }
    const SuperformatSurfaces &superformat() const { return *m_superformat; }
    // The text types' state between paints, the system's fonts and the text placing mode.
    TextState &text() { return m_text; }
    const TextState &text() const { return m_text; }
    // The animation in the work picture (the tunnel) and its stop request.
    AnimationState &animation() { return m_animation; }
    const TransparencyState &transparency() const { return m_transparency; }

    // The painters this session paints with, one entry per type key (borrowed; it must outlive
    // the session). A new session has none: every type says that its painter is not built in.
    void setPainters(std::span<const PainterEntry> table) { m_painters = table; }
    std::span<const PainterEntry> painters() const { return m_painters; }

    // The hand tools (null until made); the session owns them from then on and drops them
    // before its workspace.
    HandTools *handTools() { return m_handTools.get(); }
    void setHandTools(std::unique_ptr<HandTools> tools);

    // The doors. Each setter takes a borrowed object (null restores the default).
    Prompter &prompter() { return *m_prompter; }
    void setPrompter(Prompter *p);
    StatusSink &status() { return m_statusDoor; }
    void setStatus(StatusSink *s) { m_statusDoor.setTarget(s ? *s : m_defaultStatus); }
    void setYieldHook(YieldHook *y) { m_yield = y ? y : &m_noYield; }
    SessionView &view() { return *m_view; }
    void setView(SessionView *view);

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
    RecordingStatus m_defaultStatus;
    StatusDoor m_statusDoor{m_defaultStatus};
    RunState m_run;
    std::unique_ptr<Fixings> m_fixings;
    StartValues m_startValues;
    std::span<const PainterEntry> m_painters;
    Controls m_controls;
    PaintState m_paint;
    ColourState m_colours;
    TransparencyState m_transparency;
    FilterState m_filters;
    MondrianTables m_mondrian;
    PicSourceList m_picSources;
    std::unique_ptr<SuperformatSurfaces> m_superformat;
    TextState m_text;
    AnimationState m_animation;
    Random m_random;
    SessionClock m_clock;

    StderrPrompter m_defaultPrompter;
    NoYield m_noYield;
    SessionView m_noView;
    Prompter *m_prompter = &m_defaultPrompter;
    YieldHook *m_yield = &m_noYield;
    SessionView *m_view = &m_noView;
    Prompter *m_prompterBefore = nullptr;
    bool m_installedPrompter = false; // setPrompter made this session's prompter the process's
    std::unique_ptr<HandTools> m_handTools;
};

} // namespace tf
