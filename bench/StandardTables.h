#pragma once
/// The tables that everything here is measured on: the same bytes each time and on each machine, made from a
/// fixed seed. Their cells vary in length around 10.7 bytes; some hold a comma, some a quote that the file
/// doubles, some letters beyond ASCII. No cell begins or ends in a blank or holds a line end, so that each
/// reader that is compared gets the same cells from them.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace StandardTables {

/// Rows of cells, all of the same number.
using Cells = std::vector<std::vector<std::string>>;

/// A table that bears a name, such as "limit", in the files and in the results.
struct Named {
    const char *name;
    int rows;
    int cols;
};

inline constexpr Named typical{"typical", 500, 6}; ///< about 42 KB
inline constexpr Named limit{"limit", 32767, 80};  ///< about 36 MB
inline constexpr std::array<Named, 2> all{typical, limit};

/// The lengths at which a table of as many columns as the limit's is measured, to see that the time grows as
/// its bytes do.
inline constexpr std::array<int, 5> rowCounts{2048, 4096, 8192, 16384, 32767};

/// The lengths at which one line, or one field, is measured.
inline constexpr std::array<int, 5> byteCounts{10'000, 60'000, 300'000, 1'800'000, 10'000'000};

/// The three forms of a table file, numbered as the program numbers them.
enum class FileForm : std::int16_t { Dat = 0, Csv = 1, CsvWithHeaders = 2 };

/// The cells of a table. A shorter table is the beginning of a longer one with as many columns.
Cells MakeCells(int pRows, int pCols);

/// "Column 1" and so on.
std::vector<std::string> Titles(int pCols);

/// The file of MakeCells(pRows, pCols): all fields in quotes, each line ended by CR LF.
std::string FileText(FileForm pForm, int pRows, int pCols);

/// One line of that form without its line end, of at least pBytes bytes and at most one field more.
std::string Line(std::size_t pBytes);

/// The .dat file of one row of one field, which holds pBytes bytes, every eighth a quote.
std::string LongFieldText(std::size_t pBytes);

/// The specification file for a table of pCols columns, at most 100: text boxes that share the window's whole
/// width.
std::string SpecificationText(int pCols);

} // namespace StandardTables
