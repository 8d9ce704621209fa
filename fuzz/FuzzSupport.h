#pragma once
/// What the fuzz targets share: the way to state a law, a table with its file in memory, and other
/// implementations of the rules for lines and numbers, to compare the program with.
///
/// A target is a source file *_fuzz.cpp that defines RequireLaws. It finds broken laws as well as crashes.
#include "data/clsDatFile.h"
#include "system/System.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// Checks that the laws of the target hold for pBytes, which may be any bytes.
void RequireLaws(std::string_view pBytes);

/// Aborts the process and prints pLaw when pHolds is false.
inline void Require(bool pHolds, const char *pLaw) {
    if (!pHolds) {
        std::fprintf(stderr, "Broken law: %s\n", pLaw);
        std::abort();
    }
}

inline std::string BytesOf(const std::string &pFile) {
    std::ifstream file(pFile, std::ios::binary);
    Require(file.is_open(), "the fuzzer's own file can be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

using Words = std::vector<std::string>;

inline Words WordsOf(const TextRow &pRow) {
    Words words;
    for (int place = 1; place <= pRow.Count(); ++place) {
        words.emplace_back(pRow(place));
    }
    return words;
}

/// A name for a file of the fuzzer's own, in memory where the system has a folder for that: on a disk it
/// would take most of the time.
inline std::string OwnFile() {
    const std::filesystem::path memory = "/dev/shm";
    const std::filesystem::path folder =
        is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    return (folder / ("norvo_fuzz_" + std::to_string(std::random_device{}()))).string();
}

/// A table with a file of its own.
struct TableProbe {
    TableProbe() {
        table.FileName(OwnFile());
        table.Headers({"plain", "a \"quoted\", title", ""});
    }

    ~TableProbe() { os::RemoveFile(table.FileName()); }

    /// Fills the file with pBytes and loads it. If that ends the program, returns the message that the user
    /// was shown, else nothing.
    std::optional<std::string> Load(std::int16_t pFmt, std::string_view pBytes) {
        std::ofstream(table.FileName(), std::ios::binary) << pBytes;
        table.Fmt(pFmt);
        try {
            table.Load();
        } catch (const ProgramStopped &stop) {
            return stop.text;
        }
        return std::nullopt;
    }

    /// Saves the table and returns the file's bytes.
    std::string Save(std::int16_t pFmt) {
        table.Fmt(pFmt);
        table.Save();
        Require(table.Fault().empty(), "a table is saved without a fault");
        return BytesOf(table.FileName());
    }

    /// All cells, row by row.
    std::vector<Words> Cells() const {
        std::vector<Words> cells(static_cast<std::size_t>(table.Rows()));
        for (std::int16_t row = 0; row < table.Rows(); ++row) {
            for (std::int16_t col = 0; col < table.Cols(); ++col) {
                cells[static_cast<std::size_t>(row)].push_back(table.Data(row, col));
            }
        }
        return cells;
    }

    struct ProgramStopped {
        std::string text;
    };
    clsDatFile table{[](std::string_view pText) { throw ProgramStopped{std::string(pText)}; }};
};

// Other implementations of the program's rules.

/// The lines of a text whose lines end in CR or CR LF.
inline std::vector<std::string_view> LinesOf(std::string_view pBytes) {
    std::vector<std::string_view> lines;
    while (!pBytes.empty()) {
        const std::size_t length = std::min(pBytes.find('\r'), pBytes.size());
        lines.push_back(pBytes.substr(0, length));
        pBytes.remove_prefix(length);
        pBytes.remove_prefix(pBytes.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, pBytes.size()));
    }
    return lines;
}

/// pText without the blanks at both ends.
inline std::string WithoutOuterBlanks(std::string_view pText) {
    const std::size_t first = std::min(pText.find_first_not_of(' '), pText.size());
    return std::string(pText.substr(first, pText.find_last_not_of(' ') + 1 - first));
}

/// What a decimal number is made of. strtod alone would also take hexadecimal numbers and infinities, and
/// would skip leading line breaks.
inline constexpr const char *numberCharacters = "+-.0123456789eE";

/// What Val should return, by strtod.
inline double OtherVal(std::string_view pText) {
    std::string packed(pText);
    std::erase_if(packed, [](char pCharacter) { return pCharacter == ' ' || pCharacter == '\t'; });
    return std::strtod(packed.substr(0, packed.find_first_not_of(numberCharacters)).c_str(), nullptr);
}

/// The nearest whole number, a half to the even one; nothing when it is not in pLeast to pMost.
inline std::optional<double> OtherRounded(double pValue, double pLeast = -32768, double pMost = 32767) {
    const double below = std::floor(pValue);
    const double part = pValue - below;
    const bool goesUp = part > 0.5 || (part == 0.5 && std::fmod(below, 2) != 0);
    const double rounded = goesUp ? below + 1 : below;
    return rounded >= pLeast && rounded <= pMost ? std::optional(rounded) : std::nullopt;
}
