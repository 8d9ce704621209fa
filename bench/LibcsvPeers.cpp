// The peers that libcsv does the work of. Only here is its header known.
#include "bench/ReadPeers.h"
#include "bench/WritePeers.h"

#include <cstdio>
#include <memory>

#include <csv.h>
#include <unistd.h>

namespace {

using FilePointer = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;

FilePointer Open(const std::string &pFile, const char *pMode) {
    FilePointer file(std::fopen(pFile.c_str(), pMode), std::fclose);
    std::setvbuf(file.get(), nullptr, _IOFBF, WritePeers::blockBytes);
    return file;
}

struct Collector {
    StandardTables::Cells cells;
    std::vector<std::string> row;
    bool makesRoom = false; ///< whether a row begins with room for as many cells as the one before it has

    static void TakeField(void *pText, std::size_t pLength, void *pSelf) {
        static_cast<Collector *>(pSelf)->row.emplace_back(static_cast<const char *>(pText), pLength);
    }
    static void TakeRow(int /*pCharacter*/, void *pSelf) {
        auto &self = *static_cast<Collector *>(pSelf);
        const std::size_t room = self.makesRoom ? self.row.size() : 0;
        self.cells.push_back(std::move(self.row));
        self.row = {};
        self.row.reserve(room);
    }
};

/// Writes the table, each cell by pWriteCell.
template <typename WriteCell>
void WriteTable(const std::string &pFile, const WritePeers::Table &pTable, WriteCell pWriteCell) {
    const FilePointer file = Open(pFile, "wb");
    std::fprintf(file.get(), "%zu,%zu\r\n", pTable.rows, pTable.cells.front().size());
    for (std::size_t row = 0; row < pTable.rows; ++row) {
        for (std::size_t col = 0; col < pTable.cells[row].size(); ++col) {
            if (col > 0) {
                std::putc(',', file.get());
            }
            pWriteCell(file.get(), pTable.cells[row][col]);
        }
        std::fwrite("\r\n", 1, 2, file.get());
    }
    std::fflush(file.get());
    fsync(fileno(file.get()));
}

StandardTables::Cells Collect(const std::string &pFile, bool pMakesRoom) {
    const FilePointer file = Open(pFile, "rb");
    const auto block = std::make_unique_for_overwrite<char[]>(WritePeers::blockBytes);
    csv_parser parser;
    csv_init(&parser, 0);
    Collector collector;
    collector.makesRoom = pMakesRoom;
    while (const std::size_t count = std::fread(block.get(), 1, WritePeers::blockBytes, file.get())) {
        csv_parse(&parser, block.get(), count, Collector::TakeField, Collector::TakeRow, &collector);
    }
    csv_fini(&parser, Collector::TakeField, Collector::TakeRow, &collector);
    csv_free(&parser);
    return std::move(collector.cells);
}

} // namespace

StandardTables::Cells ReadPeers::LibcsvCells(const std::string &pFile) {
    return Collect(pFile, false);
}

StandardTables::Cells ReadPeers::LibcsvCellsWithRoom(const std::string &pFile) {
    return Collect(pFile, true);
}

void WritePeers::LibcsvFwrite(const std::string &pFile, const Table &pTable) {
    WriteTable(pFile, pTable, [](std::FILE *pTo, const std::string &pCell) {
        csv_fwrite2(pTo, pCell.data(), pCell.size(), '"');
    });
}

void WritePeers::LibcsvWrite(const std::string &pFile, const Table &pTable) {
    std::string field;
    WriteTable(pFile, pTable, [&field](std::FILE *pTo, const std::string &pCell) {
        field.resize(2 * pCell.size() + 2); // Each character may be a quote.
        const std::size_t length = csv_write2(field.data(), field.size(), pCell.data(), pCell.size(), '"');
        std::fwrite(field.data(), 1, length, pTo);
    });
}
