#include "bench/Passes.h"

#include "bench/Tables.h"

#include <fstream>
#include <limits>
#include <string>

#include <malloc.h>

namespace Passes {

namespace {

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

/// A line of the process's own status.
double StatusMegabytes(const std::string &pKey) {
    constexpr double megabytesOfKilobyte = 1024 / 1e6;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == pKey && status >> kilobytes) {
            return kilobytes * megabytesOfKilobyte;
        }
    }
    return unknown;
}

} // namespace

double FreshMemory() {
    malloc_trim(0);
    std::ofstream peak("/proc/self/clear_refs");
    return peak << "5" << std::flush ? KeptMegabytes() : unknown;
}

double KeptMegabytes() {
    return StatusMegabytes("VmRSS:");
}

double PeakMegabytes() {
    return StatusMegabytes("VmHWM:");
}

void Configure(Benchmark *pBenchmark, const char *pSizeName, const std::vector<std::int64_t> &pSizes) {
    pBenchmark->ArgName(pSizeName)->ArgsProduct({pSizes})->Unit(benchmark::kMillisecond);
    pBenchmark->Repetitions(warmRepetitions)->DisplayAggregatesOnly(true);
}

void ConfigureRows(Benchmark *pBenchmark) {
    Configure(pBenchmark, "rows", Tables::rowCounts);
    pBenchmark->UseManualTime()->Iterations(1)->Repetitions(freshRepetitions);
}

void ConfigureBytes(Benchmark *pBenchmark) {
    Configure(pBenchmark, "bytes", Tables::byteCounts);
    pBenchmark->UseManualTime()->Iterations(1)->Repetitions(freshRepetitions);
}

} // namespace Passes
