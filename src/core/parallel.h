#pragma once
// Spreading the rows of a kernel over threads.
//
// parallelRows and parallelChunks are for pure kernels: each row's result depends on the
// inputs alone, never on another row's result, random numbers or shared state, so the output
// does not depend on the thread count. parallelWavefront is for kernels that read what they
// wrote themselves in the rows above (an in-place 3 x 3 filter): a row follows the one above
// it at a distance, so every read sees exactly what the plain top-to-bottom loop would see.
//
// `maxThreads` above 0 limits the threads (1 runs on the calling thread alone). A body may
// throw; the first exception is rethrown on the calling thread after all threads have ended,
// and no further work is started once one has been thrown.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tf {

// The threads worth starting for `rows` rows of `workPerRow` units each: every core (at most
// 32, at most `maxThreads` when above 0), but none below `minWorkPerThread` units of work.
inline int threadsFor(int rows, int64_t workPerRow, int64_t minWorkPerThread, int maxThreads)
{
    if (rows <= 0) return 1;
    const int64_t work = int64_t(rows) * std::max<int64_t>(1, workPerRow);
    int64_t threads = std::min<int64_t>(std::max(1u, std::thread::hardware_concurrency()), 32);
    if (maxThreads > 0) threads = std::min<int64_t>(threads, maxThreads);
    threads = std::min<int64_t>(
        {threads, rows, std::max<int64_t>(1, work / std::max<int64_t>(1, minWorkPerThread))});
    return int(std::max<int64_t>(1, threads));
}

namespace detail {

// Tells the core that this thread is waiting in a loop.
inline void relax()
{
#if defined(__x86_64__) || defined(__i386__)
    __builtin_ia32_pause();
#endif
}

// Runs `work(isCaller)` on the calling thread and on threads-1 helpers, collects the first
// fault and sets `stop` when one occurs, so the others leave their loops.
template <typename Work> void runOnThreads(int threads, std::atomic<bool> &stop, Work &&work)
{
    std::exception_ptr fault;
    std::mutex faultLock;
    auto guardedWork = [&](bool isCaller) {
        try {
            work(isCaller);
        } catch (...) {
            const std::lock_guard<std::mutex> lock(faultLock);
            if (!fault) fault = std::current_exception();
            stop.store(true, std::memory_order_relaxed);
        }
    };
    std::vector<std::thread> helpers;
    helpers.reserve(size_t(std::max(0, threads - 1)));
    try {
        for (int t = 1; t < threads; ++t)
            helpers.emplace_back(guardedWork, false);
    } catch (...) {
        // No more threads to be had: those started and the calling thread do the work.
    }
    guardedWork(true);
    for (auto &h : helpers)
        h.join();
    if (fault) std::rethrow_exception(fault);
}

} // namespace detail

// Runs body(first, last) over rows 0 .. rows-1 in chunks, each handed to whichever thread
// is free next, so a thread the system holds back does not hold up the others. Chunks start
// large and shrink as the rows run out (never below `chunkRows`), so that the last ones,
// which the others may have to wait for, are short. `done(rowsDone)` is called on the
// calling thread after each chunk it finishes, with the rows all threads have finished.
template <typename Body, typename Done>
void parallelChunks(int rows, int chunkRows, int threads, Body &&body, Done &&done)
{
    if (rows <= 0) return;
    chunkRows = std::max(1, chunkRows);
    if (threads <= 1) {
        for (int first = 0; first < rows; first += chunkRows) {
            const int last = std::min(rows, first + chunkRows);
            body(first, last);
            done(last);
        }
        return;
    }
    std::atomic<int> next{0}, finished{0};
    std::atomic<bool> stop{false};
    detail::runOnThreads(threads, stop, [&](bool isCaller) {
        while (!stop.load(std::memory_order_relaxed)) {
            int first = next.load(std::memory_order_relaxed), last = 0;
            do {
                if (first >= rows) return;
                last = std::min(rows, first + std::max(chunkRows, (rows - first) / (threads * 4)));
            } while (!next.compare_exchange_weak(first, last, std::memory_order_relaxed));
            body(first, last);
            const int now = finished.fetch_add(last - first, std::memory_order_acq_rel) +
                            (last - first);
            if (isCaller) done(now);
        }
    });
}

// Runs body(first, last) over rows 0 .. rows-1 in contiguous parts. Below `minWorkPerThread`
// units of work (rows * workPerRow) a part is not worth a thread.
template <typename Body>
void parallelRows(int rows, int64_t workPerRow, Body &&body, int64_t minWorkPerThread = 1 << 16,
                  int maxThreads = 0)
{
    if (rows <= 0) return;
    const int threads = threadsFor(rows, workPerRow, minWorkPerThread, maxThreads);
    parallelChunks(rows, threads > 1 ? std::max(1, rows / (threads * 32)) : rows, threads, body,
                   [](int) {});
}

// An in-place row loop whose row y reads row y-1 as already written, and row y+1 (and the
// rest of its own row) as not yet written. Row y handles its columns in chunks of `chunk`
// with body(y, x0, x1), and starts columns x0 .. x1-1 only when row y-1 has finished its
// first x1 + `lag` columns (or all of them), so each read sees what the plain loop, y outer
// and x inner, would see as long as the kernel reads no further than `lag` columns right of
// the pixel in the row above and no further than `lag` columns left of it in the row below.
// A body is never given more than `chunk` columns. Rows finish in order; `done(rowsDone)` is
// called on the calling thread after each of its rows.
template <typename Body, typename Done>
void parallelWavefront(int rows, int columns, int chunk, int lag, int threads, Body &&body,
                       Done &&done)
{
    if (rows <= 0 || columns <= 0) return;
    chunk = std::max(1, chunk);
    if (threads <= 1 || rows < 2) {
        for (int y = 0; y < rows; ++y) {
            for (int x0 = 0; x0 < columns; x0 += chunk)
                body(y, x0, std::min(columns, x0 + chunk));
            done(y + 1);
        }
        return;
    }
    // Columns finished in each row.
    const auto progress = std::make_unique<std::atomic<int>[]>(size_t(rows));
    for (int y = 0; y < rows; ++y)
        progress[size_t(y)].store(0, std::memory_order_relaxed);
    std::atomic<int> next{0};
    std::atomic<bool> stop{false};
    detail::runOnThreads(threads, stop, [&](bool isCaller) {
        // Waits that outlast a time slice: the thread above was held back by other work on
        // the machine. A helper that meets them leaves the rest to the others after its row,
        // so that on busy cores the loop falls back to fewer threads instead of waiting on
        // each other; on free cores no wait is that long.
        int heldBack = 0;
        for (;;) {
            const int y = next.fetch_add(1, std::memory_order_relaxed);
            if (y >= rows) return;
            for (int x0 = 0; x0 < columns; x0 += chunk) {
                const int x1 = std::min(columns, x0 + chunk);
                if (y > 0) {
                    const int need = std::min(columns, x1 + lag);
                    // The row above is being worked on by another thread that never waits for
                    // this one, so the wait ends. A short wait is spun out on the core; a
                    // long one gives the core away.
                    std::chrono::steady_clock::time_point since{};
                    for (int spins = 0;
                         progress[size_t(y - 1)].load(std::memory_order_acquire) < need; ++spins) {
                        if (stop.load(std::memory_order_relaxed)) return;
                        if (spins < 256) {
                            detail::relax();
                            continue;
                        }
                        if (spins == 256) since = std::chrono::steady_clock::now();
                        std::this_thread::yield();
                    }
                    if (since != std::chrono::steady_clock::time_point{} &&
                        std::chrono::steady_clock::now() - since > std::chrono::milliseconds(2))
                        ++heldBack;
                }
                if (stop.load(std::memory_order_relaxed)) return;
                body(y, x0, x1);
                progress[size_t(y)].store(x1, std::memory_order_release);
            }
            if (isCaller) done(y + 1);
            else if (heldBack >= 2) return;
        }
    });
}

} // namespace tf
