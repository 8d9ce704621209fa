/// The words of one line, from 10 KB to 10 MB, for each kind of line that a file can hold. "fields" and
/// "plain" have the same cells, with and without quotes.
#include "bench/Passes.h"
#include "data/modGetWords.h"

namespace {

/// As many cells as make a line of about pBytes bytes in quotes.
Tables::Row CellsFor(std::int64_t pBytes) {
    constexpr std::int64_t bytesOfField = 14;
    return Tables::Make(1, static_cast<int>(pBytes / bytesOfField)).front();
}

std::string FieldsLine(std::int64_t pBytes) {
    std::string line;
    Tables::AppendRow(line, CellsFor(pBytes));
    return line.substr(0, line.find('\r'));
}

std::string PlainLine(std::int64_t pBytes) {
    std::string line;
    for (const std::string &cell : CellsFor(pBytes)) {
        line += cell + ",";
    }
    return line + "x"; // A line that ends in a comma has no words.
}

/// One field full of quotes.
std::string QuotesLine(std::int64_t pBytes) {
    return std::string(static_cast<std::size_t>(pBytes) / 2 * 2 + 2, '"');
}

/// One field of quotes with many blanks after them, so that each could be the last.
std::string BlanksLine(std::int64_t pBytes) {
    std::string line = "\"";
    while (std::cmp_less(line.size(), pBytes)) {
        line += '"' + std::string(200, ' ') + '"';
    }
    return line + '"';
}

void GetWords(benchmark::State &pState, std::string (*pLineOf)(std::int64_t)) {
    const std::string line = pLineOf(pState.range(0));
    for (auto _ : pState) {
        benchmark::DoNotOptimize(modGetWords::GetWords(line));
    }
}

} // namespace

BENCHMARK_CAPTURE(GetWords, fields, FieldsLine)->Apply(Passes::ConfigureBytes);
BENCHMARK_CAPTURE(GetWords, plain, PlainLine)->Apply(Passes::ConfigureBytes);
BENCHMARK_CAPTURE(GetWords, quotes, QuotesLine)->Apply(Passes::ConfigureBytes);
BENCHMARK_CAPTURE(GetWords, blanks, BlanksLine)->Apply(Passes::ConfigureBytes);
