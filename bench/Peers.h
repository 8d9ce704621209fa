#pragma once
/// Other ways to read and write a .dat file, with which the program's own is compared on the same bytes. They
/// go from the least that any program must do to what one does that keeps its cells in the library's strings.
#include "bench/Tables.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Peers {

// Readers. Those that return rows return the first line as a row, too.

/// The bytes of a file as they were read.
struct Buffer {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

/// The file alone, into memory that nobody has cleared before. No reader can do less.
Buffer ReadWhole(const std::string &pFile);

/// The cells of a file, kept where they were read.
struct References {
    struct Cell {
        std::uint32_t at;
        std::uint32_t length;
    };
    Buffer buffer;
    std::vector<Cell> cells;

    Tables::Row Last(std::size_t pCells) const;
};

/// The bare loop: reads the file whole, looks for quotes by memchr, makes doubled quotes single in place and
/// keeps 8 bytes for each cell. It checks nothing and takes only what the tables here hold.
References SplitIntoReferences(const std::string &pFile);

/// The first idea that comes to mind: std::getline, and a vector of strings for each row.
std::vector<Tables::Row> ReadByGetline(const std::string &pFile);

/// libcsv, fed by blocks as its manual has it. Each cell becomes a string in the vector of its row.
std::vector<Tables::Row> ReadByLibcsv(const std::string &pFile);

/// The same, but the vector of each row has room from the start for as many cells as the row before it.
std::vector<Tables::Row> ReadByLibcsvWithRoom(const std::string &pFile);

// Writers. As the program does, each has the system flush the file to the disk before it closes it.

/// The finished bytes, in one go. No writer can do less.
void PlainWrite(const std::string &pFile, std::string_view pBytes);

/// Quotes cell after cell into a block, and writes the block when it is full.
void QuoteInBlocks(const std::string &pFile, Tables::Cells pCells);

/// libcsv's writer for files, csv_fwrite2.
void WriteByLibcsvFwrite(const std::string &pFile, Tables::Cells pCells);

/// libcsv's writer for memory, csv_write2, and fwrite. Its manual advises this to those who need to know how
/// much was written.
void WriteByLibcsvWrite(const std::string &pFile, Tables::Cells pCells);

} // namespace Peers
