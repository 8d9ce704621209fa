#include "bench/Passes.h"

#include "bench/StandardTables.h"

#include <fstream>
#include <limits>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace Passes {

namespace {

constexpr std::int64_t unknown = -1;

/// A line of the process's own status, in bytes.
std::int64_t StatusBytes(const std::string &pKey) {
    constexpr std::int64_t bytesOfKilobyte = 1024;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::int64_t kilobytes = 0;
        if (word == pKey && status >> kilobytes) {
            return kilobytes * bytesOfKilobyte;
        }
    }
    return unknown;
}

double Since(const std::string &pKey, std::int64_t pBefore) {
    constexpr double bytesOfMegabyte = 1e6;
    return pBefore == unknown ? std::numeric_limits<double>::quiet_NaN()
                              : static_cast<double>(StatusBytes(pKey) - pBefore) / bytesOfMegabyte;
}

} // namespace

void FreshMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

MemoryUse::MemoryUse() : myBefore(unknown) {
    // Makes the peak what the process holds now.
    std::ofstream reset("/proc/self/clear_refs");
    if (reset << "5" << std::flush) {
        myBefore = StatusBytes("VmRSS:");
    }
}

double MemoryUse::Peak() const {
    return Since("VmHWM:", myBefore);
}

double MemoryUse::Kept() const {
    return Since("VmRSS:", myBefore);
}

void Configure(benchmark::internal::Benchmark *pBenchmark) {
    constexpr int passes = 9;
    pBenchmark->UseManualTime()->Iterations(1)->Repetitions(passes)->DisplayAggregatesOnly(true)->Unit(
        benchmark::kMillisecond);
}

void ConfigureRows(benchmark::internal::Benchmark *pBenchmark) {
    Configure(pBenchmark);
    pBenchmark->ArgName("rows");
    for (const int rows : StandardTables::rowCounts) {
        pBenchmark->Arg(rows);
    }
}

void ConfigureBytes(benchmark::internal::Benchmark *pBenchmark) {
    Configure(pBenchmark);
    pBenchmark->ArgName("bytes");
    for (const int bytes : StandardTables::byteCounts) {
        pBenchmark->Arg(bytes);
    }
}

} // namespace Passes
