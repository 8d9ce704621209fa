#pragma once
/// Times acts on memory that is not warm. A file is opened once in a run of the program, in memory that the
/// process has not touched yet, and much of what that costs is the system handing over fresh pages. So what a
/// pass leaves is destroyed outside the clock, the freed memory is given back, and each pass is timed on its
/// own.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>

namespace Passes {

/// Gives all freed memory back to the system, where the C library can.
void FreshMemory();

/// What the process holds in memory beyond what it held when this was made, in megabytes of 10^6 bytes; nan
/// when the system can't tell.
class MemoryUse {
public:
    MemoryUse();
    /// At most, since then.
    double Peak() const;
    /// Now.
    double Kept() const;

private:
    std::int64_t myBefore;
};

/// Runs pAct on what pPrepare gives, once for each iteration, and times pAct alone. What the act has made has
/// to lie in its subject, so that it is destroyed outside the clock. pCheck tells whether it is right: a
/// wrong result is no time. The counters extra_MB and kept_MB are the memory that the act needed at its peak,
/// and that it left in use.
template <typename Prepare, typename Act, typename Check>
void Measure(benchmark::State &pState, Prepare pPrepare, Act pAct, Check pCheck) {
    using Clock = std::chrono::steady_clock;
    bool isRight = true;
    for (auto _ : pState) {
        auto subject = pPrepare();
        FreshMemory();
        const MemoryUse memory;
        const Clock::time_point start = Clock::now();
        pAct(subject);
        const Clock::time_point end = Clock::now();
        pState.counters["extra_MB"] = memory.Peak();
        pState.counters["kept_MB"] = memory.Kept();
        isRight = isRight && pCheck(subject);
        pState.SetIterationTime(std::chrono::duration<double>(end - start).count());
    }
    if (!isRight) {
        pState.SkipWithError("The result is wrong.");
    }
}

/// Passes of one iteration each, so that programs of the same run can take turns (see
/// --benchmark_enable_random_interleaving). The least counts: whatever else the machine does only adds.
void Configure(benchmark::internal::Benchmark *pBenchmark);

/// Configure, at the five lengths of a table.
void ConfigureRows(benchmark::internal::Benchmark *pBenchmark);

/// Configure, at five numbers of bytes from 10 KB to 10 MB.
void ConfigureBytes(benchmark::internal::Benchmark *pBenchmark);

} // namespace Passes
