#pragma once
/// Other ways to write a .dat file, which the program's own is compared with: they give the same bytes. As
/// the program does, each has the system flush the file to the disk before it closes it.
#include "bench/StandardTables.h"

#include <string>
#include <string_view>

namespace WritePeers {

/// All that write by blocks use blocks of this size.
inline constexpr std::size_t blockBytes = 65536;

/// The first rows of a table.
struct Table {
    const StandardTables::Cells &cells;
    std::size_t rows;
};

/// The finished bytes, by one call of the system: less no writer can do.
void PlainWrite(const std::string &pFile, std::string_view pBytes);

/// Each cell quoted behind the one before it, and a block written when it is full.
void QuoteInBlocks(const std::string &pFile, const Table &pTable);

/// libcsv's writer for files, csv_fwrite2, on a file buffered by blocks.
/// This and the next are only there where the library is built with.
void LibcsvFwrite(const std::string &pFile, const Table &pTable);

/// libcsv's writer for memory, csv_write2, and fwrite, which its manual names for those who need to know how
/// much was written. On a file buffered by blocks, too.
void LibcsvWrite(const std::string &pFile, const Table &pTable);

} // namespace WritePeers
