#pragma once
// Giving way during long work. Long loops call the session's DoEvents; the GUI answers by
// processing pending events (at most every ~30 ms), which keeps Stop and repainting alive on
// the one thread; the command line answers by looking for Ctrl-C; tests by counting.

namespace tf {

class YieldHook {
public:
    virtual ~YieldHook() = default;
    // Lets pending input run. Answers true when the user asked to stop (Ctrl-C on a terminal).
    virtual bool yield() = 0;
};

class NoYield : public YieldHook {
public:
    bool yield() override { return false; }
};

} // namespace tf
