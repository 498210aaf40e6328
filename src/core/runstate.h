#pragma once
// What runs on the one thread at the moment.
//
// A paint or a filter gives way to the event loop in its long loops (DoEvents), and an
// animation draws its frames from the window's timer. Every handler
// that the loop can reach meanwhile asks `busy()` first and does nothing while it answers
// true, so that no command resizes or replaces the pictures under the running work. The Paint
// button is the one exception: while a paint runs it is the Stop button.
//
// The session owns the one RunState; the objects that need it borrow it.

namespace tf {

class RunState {
public:
    bool painting() const { return m_painting; }
    // FilterBusy: a filter runs.
    bool filtering() const { return m_filtering; }
    // An animation runs in the work picture (the tunnel): the window's timer draws its frames.
    bool animating() const { return m_animating; }
    bool busy() const { return m_painting || m_filtering || m_animating; }

    void setPainting(bool on) { m_painting = on; }
    void setFiltering(bool on) { m_filtering = on; }
    void setAnimating(bool on) { m_animating = on; }

private:
    bool m_painting = false;
    bool m_filtering = false;
    bool m_animating = false;
};

} // namespace tf
