/// The words of one line, from 10 KB to 10 MB, of the kinds of lines that a file can bring: many fields; one
/// field full of quotes; and quotes with so many blanks behind them that each could be the last.
#include "bench/StandardTables.h"
#include "data/modGetWords.h"

#include <benchmark/benchmark.h>

namespace {

std::string FieldsLine(std::size_t pBytes) {
    return StandardTables::Line(pBytes);
}

std::string QuotesLine(std::size_t pBytes) {
    return '"' + std::string(pBytes / 2 * 2, '"') + '"';
}

/// A quote, and behind the blanks another one that makes all of it the word's own.
std::string BlanksLine(std::size_t pBytes) {
    constexpr std::size_t blanks = 200;
    std::string line = "\"";
    while (line.size() < pBytes) {
        line += '"' + std::string(blanks, ' ') + '"';
    }
    return line + '"';
}

void GetWords(benchmark::State &pState, std::string (*pLineOf)(std::size_t)) {
    const std::string line = pLineOf(static_cast<std::size_t>(pState.range(0)));
    for (auto _ : pState) {
        benchmark::DoNotOptimize(modGetWords::GetWords(line));
    }
    pState.SetBytesProcessed(static_cast<std::int64_t>(line.size()) * pState.iterations());
}

void Configure(benchmark::internal::Benchmark *pBenchmark) {
    constexpr int repetitions = 5;
    pBenchmark->ArgName("bytes")->Unit(benchmark::kMillisecond);
    pBenchmark->Repetitions(repetitions)->MinTime(0.05)->DisplayAggregatesOnly(true);
    for (const int bytes : StandardTables::byteCounts) {
        pBenchmark->Arg(bytes);
    }
}

} // namespace

BENCHMARK_CAPTURE(GetWords, fields, FieldsLine)->Apply(Configure);
BENCHMARK_CAPTURE(GetWords, quotes, QuotesLine)->Apply(Configure);
BENCHMARK_CAPTURE(GetWords, blanks, BlanksLine)->Apply(Configure);
