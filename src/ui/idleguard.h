#pragma once
// The one guard of the window's handlers.
//
// A paint or a filter runs on the one thread and gives way to the event loop in its long loops,
// so menu commands, shortcuts, buttons and lists can fire in the middle of it. Every handler
// the loop can reach is connected through `whenIdle`: it does nothing while the session's
// RunState is busy. The Paint button (and F5) is the exception: while a paint runs it is Stop.

#include "paint/session.h"

#include <type_traits>
#include <utility>

namespace tf::ui {

inline bool isBusy(const Session &s)
{
    return s.runState().busy();
}

namespace detail {
// Calls a handler with the signal's arguments, or with none when it takes none.
template <typename Handler, typename... Args> void call(Handler &handler, Args &&...args)
{
    if constexpr (std::is_invocable_v<Handler &, Args...>)
        handler(std::forward<Args>(args)...);
    else
        handler();
}
} // namespace detail

// `handler`, run only while nothing runs.
template <typename Handler> auto whenIdle(const Session &s, Handler handler)
{
    return [&s, handler = std::move(handler)](auto &&...args) mutable {
        if (!isBusy(s)) detail::call(handler, std::forward<decltype(args)>(args)...);
    };
}

// The same, with `refused` run instead while something runs (a check box shows the state again).
template <typename Handler, typename Refusal>
auto whenIdle(const Session &s, Handler handler, Refusal refused)
{
    return
        [&s, handler = std::move(handler), refused = std::move(refused)](auto &&...args) mutable {
            if (isBusy(s))
                refused();
            else
                detail::call(handler, std::forward<decltype(args)>(args)...);
        };
}

} // namespace tf::ui
