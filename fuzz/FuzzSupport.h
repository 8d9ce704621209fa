#pragma once
/// What the fuzz targets share: the way to state a law, a table over a file in memory, and second opinions on
/// lines and numbers, made in another way than the program's own.
///
/// A target is a source file *_fuzz.cpp that defines RequireLaws. A crash is only the crudest of the faults
/// that it can find.
#include "bench/NoDesktop.h"
#include "data/clsDatFile.h"
#include "platform/Runtime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Tries the laws of the target on any bytes whatever.
void RequireLaws(std::string_view pBytes);

/// Aborts the process and prints pLaw when pHolds is false.
void Require(bool pHolds, const char *pLaw);

std::string BytesOf(const std::string &pFile);

using Words = std::vector<std::string>;

Words WordsOf(const TextRow &pRow);

/// A table with a file of its own. The file is in memory: on a disk it would take most of the fuzzer's time.
struct TableProbe {
    TableProbe();

    /// Fills the file with pBytes and loads it. If that ends the program, returns the message that the user
    /// was shown, else nothing.
    std::optional<std::string> Load(std::int16_t pFmt, std::string_view pBytes);
    /// Saves the table and returns the file's bytes.
    std::string Save(std::int16_t pFmt);

    /// All cells, row by row.
    std::vector<Words> Cells() const;

    NoDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    clsDatFile table{runtime};
};

// Second opinions.

/// The lines of a text whose lines end in CR or CR LF.
std::vector<std::string_view> LinesOf(std::string_view pBytes);

/// pText without the blanks at both ends.
std::string WithoutOuterBlanks(std::string_view pText);

/// What a decimal number is made of. strtod alone would also take hexadecimal numbers and infinities, and
/// would skip leading line breaks.
inline constexpr const char *numberCharacters = "+-.0123456789eE";

/// What Val should return, by strtod.
double OtherVal(std::string_view pText);

/// The nearest whole number, a half to the even one; nothing when it is not in pLeast to pMost.
std::optional<double> OtherRounded(double pValue, double pLeast = -32768, double pMost = 32767);
