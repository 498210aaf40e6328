#pragma once
// What the filters keep between runs in a session: the progress of the last run and how the
// work is spread over threads. FilterBusy, the re-entry guard, is the session's RunState.

#include <cstdint>

namespace tf {

struct FilterState {
    // The filter number last chosen by a menu entry; the filter dialog reads it when it opens.
    int FilterG = 0;
    // True while the main window's progress bar shows the running filter (not while the
    // filter dialog previews).
    bool FilterProgressOn = false;
    // The filter dialog is open: its previews leave the main window's progress bar alone.
    bool dialogOpen = false;
    // The percentage a filter last computed.
    int32_t FilterPercent = 0;
    // Threads a filter may use for its pure row loops; 0 means every core. Results do not
    // depend on it.
    int threads = 0;
};

} // namespace tf
