#include "fuzz/FuzzSupport.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <sys/mman.h>

/// The fuzzer and the replay of the corpus call the target here.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    RequireLaws({reinterpret_cast<const char *>(pBytes), pSize});
    return 0;
}

void Require(bool pHolds, const char *pLaw) {
    if (!pHolds) {
        std::fprintf(stderr, "Broken law: %s\n", pLaw);
        std::abort();
    }
}

std::string BytesOf(const std::string &pFile) {
    std::ifstream file(pFile, std::ios::binary);
    Require(file.is_open(), "the fuzzer's own file can be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

Words WordsOf(const TextRow &pRow) {
    Words words;
    for (int place = 1; place <= pRow.Count(); ++place) {
        words.emplace_back(pRow(place));
    }
    return words;
}

TableProbe::TableProbe() {
    table.FileName("/proc/self/fd/" + std::to_string(memfd_create("norvo_fuzz", MFD_CLOEXEC)));
    table.Headers({"plain", "a \"quoted\", title", ""});
}

std::optional<std::string> TableProbe::Load(std::int16_t pFmt, std::string_view pBytes) {
    std::ofstream(table.FileName(), std::ios::binary) << pBytes;
    table.Fmt(pFmt);
    try {
        table.Load();
    } catch (const NoDesktop::ProgramEnded &end) {
        return end.what();
    }
    return std::nullopt;
}

std::string TableProbe::Save(std::int16_t pFmt) {
    table.Fmt(pFmt);
    table.Save();
    Require(table.Fault().empty(), "a table is saved without a fault");
    return BytesOf(table.FileName());
}

std::vector<Words> TableProbe::Cells() const {
    std::vector<Words> cells(static_cast<std::size_t>(table.Rows()));
    for (std::int16_t row = 0; row < table.Rows(); ++row) {
        for (std::int16_t col = 0; col < table.Cols(); ++col) {
            cells[static_cast<std::size_t>(row)].push_back(table.Data(row, col));
        }
    }
    return cells;
}

std::vector<std::string_view> LinesOf(std::string_view pBytes) {
    std::vector<std::string_view> lines;
    while (!pBytes.empty()) {
        const std::size_t length = std::min(pBytes.find('\r'), pBytes.size());
        lines.push_back(pBytes.substr(0, length));
        pBytes.remove_prefix(length);
        pBytes.remove_prefix(pBytes.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, pBytes.size()));
    }
    return lines;
}

std::string WithoutOuterBlanks(std::string_view pText) {
    const std::size_t first = std::min(pText.find_first_not_of(' '), pText.size());
    return std::string(pText.substr(first, pText.find_last_not_of(' ') + 1 - first));
}

double OtherVal(std::string_view pText) {
    std::string packed(pText);
    std::erase_if(packed, [](char pCharacter) { return pCharacter == ' ' || pCharacter == '\t'; });
    return std::strtod(packed.substr(0, packed.find_first_not_of(numberCharacters)).c_str(), nullptr);
}

std::optional<double> OtherRounded(double pValue, double pLeast, double pMost) {
    const double below = std::floor(pValue);
    const double part = pValue - below;
    const bool goesUp = part > 0.5 || (part == 0.5 && std::fmod(below, 2) != 0);
    const double rounded = goesUp ? below + 1 : below;
    return rounded >= pLeast && rounded <= pMost ? std::optional(rounded) : std::nullopt;
}
