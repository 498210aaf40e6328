#pragma once
// The long-running figures (rosettes, spirals, the rotating lines): they give way to input
// after each figure and end early on Stop.
//
// `Yield_IfInput` counts its calls (the count wraps to 0 above 32000) and gives way to the
// session's yield hook; the hook decides how often it really processes events (the window
// at most every ~30 ms), so a call per figure does not slow the drawing down.
//
// A `StopRule` brackets one such paint: it shows "STO&PP !" on the Paint button; `next()`
// after each figure yields and, when a Stop has come, shows "Stopped - Wait!" and answers
// false so that the loop ends with what is painted. The paint driver puts "Paint <F5>" back
// when the painter returns.

#include <cstdint>

namespace tf {

struct PaintContext;

class StopRule {
public:
    explicit StopRule(PaintContext &ctx);
    // Yield_IfInput, then true while no Stop has come.
    bool next();
    bool stopped() const { return m_stopped; }
    int32_t calls() const { return m_calls; }

private:
    void Yield_IfInput();

    PaintContext &m_ctx;
    int32_t m_calls = 0;
    bool m_stopped = false;
};

} // namespace tf
