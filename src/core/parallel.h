#pragma once
// Splitting the rows of a data-parallel kernel over threads.
//
// Only for pure kernels: each row's result depends on the inputs alone, never on another
// row's result, random numbers or shared state, so the output does not depend on the thread
// count. `maxThreads` above 0 limits the threads (1 runs on the calling thread alone).
// `body(first, last)` handles rows first .. last-1 and may throw; the first exception
// is rethrown on the calling thread after all threads have ended.

#include <algorithm>
#include <cstdint>
#include <exception>
#include <thread>
#include <vector>

namespace tf {

// Runs body over rows 0 .. rows-1 in contiguous bands, one thread a band. Below
// `minWorkPerThread` units of work (rows * workPerRow) a band is not worth a thread.
template <typename Body>
void parallelRows(int rows, int64_t workPerRow, Body &&body, int64_t minWorkPerThread = 1 << 16,
                  int maxThreads = 0)
{
    if (rows <= 0)
        return;
    const int64_t work = int64_t(rows) * std::max<int64_t>(1, workPerRow);
    int64_t threads = std::min<int64_t>(std::max(1u, std::thread::hardware_concurrency()), 32);
    if (maxThreads > 0) threads = std::min<int64_t>(threads, maxThreads);
    threads = std::min<int64_t>({threads, rows, std::max<int64_t>(1, work / minWorkPerThread)});
    if (threads <= 1) {
        body(0, rows);
        return;
    }
    std::vector<std::exception_ptr> faults(static_cast<size_t>(threads));
    std::vector<std::thread> pool;
    pool.reserve(size_t(threads - 1));
    auto band = [&](int64_t t) {
        const int first = int(rows * t / threads), last = int(rows * (t + 1) / threads);
        try {
            body(first, last);
        } catch (...) {
            faults[size_t(t)] = std::current_exception();
        }
    };
    int64_t next = 1; // the first band not handed to a thread
    try {
        for (; next < threads; ++next)
            pool.emplace_back(band, next);
    } catch (...) {
        // No more threads to be had: the calling thread does the rest.
    }
    band(0);
    for (int64_t t = next; t < threads; ++t)
        band(t);
    for (auto &th : pool)
        th.join();
    for (auto &f : faults)
        if (f)
            std::rethrow_exception(f);
}

} // namespace tf
