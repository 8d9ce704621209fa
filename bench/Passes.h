#pragma once
/// Times acts in fresh memory. The program opens a file once in a run, in memory that the process has not
/// touched yet, and much of what that costs is the system handing over pages. So each pass is timed on its
/// own; before it, the freed memory of the last one goes back to the system.
#include "bench/NoDesktop.h"
#include "platform/Runtime.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <vector>

namespace Passes {

using Clock = std::chrono::steady_clock;
inline constexpr int warmRepetitions = 5;
inline constexpr int freshRepetitions = 9;

using Benchmark = benchmark::internal::Benchmark;

/// The seconds that pAct takes.
template <typename Act> double SecondsOf(Act pAct) {
    const Clock::time_point start = Clock::now();
    pAct();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Gives all freed memory back to the system and begins to measure the peak anew. Returns what the process
/// holds now in megabytes of 10^6 bytes, or nan when the system can't tell.
double FreshMemory();
double KeptMegabytes();
double PeakMegabytes();

/// Runs pAct on the result of pPrepare, once for each iteration, and times pAct alone. The act has to leave
/// its result in the subject, so that it is destroyed outside the clock. pIsRight tells whether it is right:
/// a wrong result is no time. The counters extra_MB and kept_MB are the memory that the act needed at its
/// peak and the memory that it left in use.
template <typename Prepare, typename Act, typename IsRight>
void Measure(benchmark::State &pState, Prepare pPrepare, Act pAct, IsRight pIsRight) {
    bool isRight = true;
    for (auto _ : pState) {
        auto subject = pPrepare();
        const double before = FreshMemory();
        pState.SetIterationTime(SecondsOf([&] { pAct(subject); }));
        pState.counters["extra_MB"] = PeakMegabytes() - before;
        pState.counters["kept_MB"] = KeptMegabytes() - before;
        isRight = isRight && pIsRight(subject);
    }
    if (!isRight) {
        pState.SkipWithError("The result is wrong.");
    }
}

/// Has a benchmark run at each of the sizes, again and again. The least time counts: everything else that the
/// machine does only adds. This suits what is done often and so finds its memory warm.
void Configure(Benchmark *pBenchmark, const char *pSizeName, const std::vector<std::int64_t> &pSizes);

/// The same for Measure, in passes of one iteration. Benchmarks of one program can take turns with them (see
/// --benchmark_enable_random_interleaving).
void ConfigureRows(Benchmark *pBenchmark);
void ConfigureBytes(Benchmark *pBenchmark);

} // namespace Passes
