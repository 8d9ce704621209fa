#pragma once
/// Times acts in fresh memory. The program opens a file once in a run, in memory that the process has not
/// touched yet. Much of that time goes to the system, which hands over the pages. So each pass is timed on
/// its own, after the freed memory of the last one has gone back to the system.
#include "bench/Tables.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <chrono>
#include <fstream>
#include <limits>

namespace Passes {

using Benchmark = benchmark::internal::Benchmark;

/// The seconds that pAct takes.
template <typename Act> double SecondsOf(Act pAct) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    pAct();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// A line of the process's own status in megabytes of 10^6 bytes, such as VmRSS, the memory in use, or VmHWM,
/// its peak. Not a number when the system can't tell.
inline double StatusMegabytes(const std::string &pName) {
    constexpr double megabytesOfKilobyte = 1024 / 1e6;
    double kilobytes = std::numeric_limits<double>::quiet_NaN();
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == pName + ":") {
            status >> kilobytes;
        }
    }
    return kilobytes * megabytesOfKilobyte;
}

/// Runs pAct on the subject that pPrepare returns, once for each iteration, and times pAct alone. The act has
/// to leave its result in the subject, so that destroying it isn't timed. pIsRight tells whether the result
/// is right; if not, the benchmark reports an error. The counters extra_MB and kept_MB are the memory that
/// the act needed at its peak and the memory that it left in use.
template <typename Prepare, typename Act, typename IsRight>
void Measure(benchmark::State &pState, Prepare pPrepare, Act pAct, IsRight pIsRight) {
    bool isRight = true;
    for (auto _ : pState) {
        auto subject = pPrepare();
        malloc_trim(0);                                // Gives all freed memory back to the system.
        std::ofstream("/proc/self/clear_refs") << "5"; // Starts to measure the peak.
        const double before = StatusMegabytes("VmRSS");
        pState.SetIterationTime(SecondsOf([&] { pAct(subject); }));
        pState.counters["extra_MB"] = StatusMegabytes("VmHWM") - before;
        pState.counters["kept_MB"] = StatusMegabytes("VmRSS") - before;
        isRight = isRight && pIsRight(subject);
    }
    if (!isRight) {
        pState.SkipWithError("The result is wrong.");
    }
}

/// Makes a benchmark run five times at each of the sizes. The least time counts, since other work on the
/// machine only adds to it. This suits acts that happen often and so find their memory warm.
inline void Configure(Benchmark *pBenchmark, const char *pSizeName, const std::vector<std::int64_t> &pSizes) {
    pBenchmark->ArgName(pSizeName)->ArgsProduct({pSizes})->Unit(benchmark::kMillisecond);
    pBenchmark->Repetitions(5)->DisplayAggregatesOnly(true);
}

/// The same, at the numbers of bytes.
inline void ConfigureBytes(Benchmark *pBenchmark) {
    Configure(pBenchmark, "bytes", Tables::byteCounts);
}

/// The same for Measure, at the numbers of rows: nine passes of one iteration. The passes of several
/// benchmarks can take turns (see --benchmark_enable_random_interleaving).
inline void ConfigureRows(Benchmark *pBenchmark) {
    Configure(pBenchmark, "rows", Tables::rowCounts);
    pBenchmark->UseManualTime()->Iterations(1)->Repetitions(9);
}

} // namespace Passes
