#pragma once
/// Other ways to take in a .dat file, which the program's own is compared with on the same bytes: from the
/// least that any reader must do to what a program does that keeps its cells in the library's strings.
#include "bench/StandardTables.h"

#include <memory>
#include <string>
#include <string_view>

namespace ReadPeers {

/// The bytes of a file as they were read.
struct Buffer {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

/// The file alone, into memory that nobody has cleared before: less no reader can do.
Buffer ReadWhole(const std::string &pFile);

/// Where a cell lies.
struct Reference {
    std::uint32_t at;
    std::uint32_t length;
};

/// The cells of a file, which are kept where they were read, their doubled quotes made single in place.
struct References {
    Buffer buffer;
    std::vector<Reference> cells;

    std::string_view Cell(std::size_t pIndex) const {
        return {buffer.bytes.get() + cells[pIndex].at, cells[pIndex].length};
    }
};

/// The bare loop: reads the file whole, looks for the quotes by memchr and keeps 8 bytes for each cell, in a
/// vector whose room is made once by the size that the first line announces. It checks nothing and takes only
/// what the standard tables hold.
References SplitIntoReferences(const std::string &pFile);

/// What comes to mind first: std::getline, and a vector of strings for each row. The first line makes no row.
StandardTables::Cells GetlineCells(const std::string &pFile);

/// What libcsv finds, fed by blocks as its manual has it, each cell kept as a string in a vector of its row.
/// This and the next are only there where the library is built with. The first line is the first row.
StandardTables::Cells LibcsvCells(const std::string &pFile);

/// The same, and each row's vector has room for as many cells as the row before it from the start.
StandardTables::Cells LibcsvCellsWithRoom(const std::string &pFile);

} // namespace ReadPeers
