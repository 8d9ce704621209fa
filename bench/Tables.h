#pragma once
/// The tables that everything here is measured on, and their files. They are the same bytes each time and on
/// each machine. Cells vary in length, and have about 10.7 bytes on average; some hold a comma, some a quote
/// that the file doubles, some a letter beyond ASCII. No cell begins or ends in a blank or holds a line end,
/// so that each reader finds the same cells.
///
/// The files are in a folder that goes when the program ends. It is made in memory (/dev/shm), where no disk
/// slows things down, or in the folder that NORVO_BENCH_FOLDER names.
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace Tables {

using Row = std::vector<std::string>;
using Cells = std::span<const Row>;

inline constexpr int limitCols = 80;
inline constexpr int limitRows = 32767;

/// The numbers of rows, and of bytes in a line or field, at which everything is measured. They show whether
/// the time grows as the size does.
inline const std::vector<std::int64_t> rowCounts{2048, 4096, 8192, 16384, limitRows};
inline const std::vector<std::int64_t> byteCounts{10'000, 60'000, 300'000, 1'800'000, 10'000'000};

/// Makes a table. A shorter table is the beginning of a longer one with as many columns.
std::vector<Row> Make(int pRows, int pCols);

/// The first pRows rows of the limit table, which is 32,767 by 80, 36 MB.
Cells Limit(std::int64_t pRows);

/// A table of one field of pBytes bytes, every eighth a quote.
Cells LongField(std::int64_t pBytes);

/// A specification for pCols columns, at most 100: text boxes that share the window's whole width.
std::vector<Row> Specification(int pCols);

/// "Column 1" and so on.
Row Titles(int pCols);

/// The first line of a .dat file.
std::string SizeLine(Cells pCells);

/// Adds a row to the text of a file: all fields in quotes, the line ended by CR LF.
void AppendRow(std::string &pText, const Row &pRow);

/// The whole file of a table. pFmt is one of clsDatFile's.
std::string FileText(std::int16_t pFmt, Cells pCells);

/// The path of that file. The first call writes the file. Later calls find it by the address of pCells, which
/// has to last.
std::string File(std::int16_t pFmt, Cells pCells);

/// The path for a new copy of a table. The last copy is removed.
std::string FreshCopy();
bool IsCopyOf(const std::string &pFile);

} // namespace Tables
