#include "bench/Peers.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <csv.h>
#include <unistd.h>

namespace Peers {

namespace {

constexpr std::size_t blockBytes = 65536;

using FilePointer = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;

FilePointer Open(const std::string &pFile, const char *pMode) {
    FilePointer file(std::fopen(pFile.c_str(), pMode), std::fclose);
    std::setvbuf(file.get(), nullptr, _IOFBF, blockBytes);
    return file;
}

void Put(const FilePointer &pFile, std::string_view pBytes) {
    std::fwrite(pBytes.data(), 1, pBytes.size(), pFile.get());
}

void FlushToDisk(const FilePointer &pFile) {
    std::fflush(pFile.get());
    fsync(fileno(pFile.get()));
}

/// Takes the field whose opening quote stands at pAt, and moves pAt past its closing quote.
References::Cell TakeField(char *&pAt, const Buffer &pBuffer) {
    const char *const end = pBuffer.bytes.get() + pBuffer.size;
    const char *const field = ++pAt;
    char *to = pAt;
    for (;;) {
        auto *quote = static_cast<char *>(std::memchr(pAt, '"', static_cast<std::size_t>(end - pAt)));
        const auto length = static_cast<std::size_t>(quote - pAt);
        if (to != pAt) {
            std::memmove(to, pAt, length);
        }
        to += length;
        pAt = quote + 1;
        if (*pAt != '"') { // There is a line end at least.
            return {static_cast<std::uint32_t>(field - pBuffer.bytes.get()),
                    static_cast<std::uint32_t>(to - field)};
        }
        *to++ = *pAt++;
    }
}

Tables::Row RowOf(const std::string &pLine) {
    Tables::Row row(1);
    bool isInQuotes = false;
    char before = ',';
    for (const char character : pLine) {
        if (character == '"') {
            row.back().append(!isInQuotes && before == '"' ? 1 : 0, '"');
            isInQuotes = !isInQuotes;
        } else if (character == ',' && !isInQuotes) {
            row.emplace_back();
        } else if (character != '\r') {
            row.back() += character;
        }
        before = character;
    }
    return row;
}

/// What libcsv has found so far.
struct Collector {
    bool makesRoom;
    std::vector<Tables::Row> rows;
    Tables::Row row;
};

void TakeLibcsvField(void *pText, std::size_t pLength, void *pCollector) {
    static_cast<Collector *>(pCollector)->row.emplace_back(static_cast<const char *>(pText), pLength);
}

void TakeLibcsvRow(int /*pCharacter*/, void *pCollector) {
    auto &collector = *static_cast<Collector *>(pCollector);
    const std::size_t room = collector.makesRoom ? collector.row.size() : 0;
    collector.rows.push_back(std::move(collector.row));
    collector.row = {};
    collector.row.reserve(room);
}

std::vector<Tables::Row> Collect(const std::string &pFile, bool pMakesRoom) {
    const FilePointer file = Open(pFile, "rb");
    const auto block = std::make_unique_for_overwrite<char[]>(blockBytes);
    Collector collector{pMakesRoom, {}, {}};
    csv_parser parser;
    csv_init(&parser, 0);
    while (const std::size_t count = std::fread(block.get(), 1, blockBytes, file.get())) {
        csv_parse(&parser, block.get(), count, TakeLibcsvField, TakeLibcsvRow, &collector);
    }
    csv_fini(&parser, TakeLibcsvField, TakeLibcsvRow, &collector);
    csv_free(&parser);
    return std::move(collector.rows);
}

/// Writes the table, each cell by pWriteCell.
template <typename WriteCell>
void WriteCells(const std::string &pFile, Tables::Cells pCells, WriteCell pWriteCell) {
    const FilePointer file = Open(pFile, "wb");
    Put(file, Tables::SizeLine(pCells));
    for (const Tables::Row &row : pCells) {
        for (const std::string &cell : row) {
            if (&cell != &row.front()) {
                std::putc(',', file.get());
            }
            pWriteCell(file, cell);
        }
        Put(file, "\r\n");
    }
    FlushToDisk(file);
}

} // namespace

Buffer ReadWhole(const std::string &pFile) {
    const FilePointer file = Open(pFile, "rb");
    const std::size_t size = std::filesystem::file_size(pFile);
    Buffer buffer{std::make_unique_for_overwrite<char[]>(size), 0};
    buffer.size = std::fread(buffer.bytes.get(), 1, size, file.get());
    return buffer;
}

Tables::Row References::Last(std::size_t pCells) const {
    Tables::Row row;
    for (const Cell &cell : std::span(cells).last(pCells)) {
        row.emplace_back(buffer.bytes.get() + cell.at, cell.length);
    }
    return row;
}

References SplitIntoReferences(const std::string &pFile) {
    constexpr std::size_t lineEnd = 2; // CR LF
    constexpr int decimal = 10;
    References result{ReadWhole(pFile), {}};
    char *at = result.buffer.bytes.get();
    const char *const end = at + result.buffer.size;
    const std::size_t rows = std::strtoul(at, &at, decimal);
    result.cells.reserve(rows * std::strtoul(at + 1, &at, decimal));
    at += lineEnd;
    while (at < end) {
        result.cells.push_back(TakeField(at, result.buffer));
        at += *at == ',' ? 1 : lineEnd;
    }
    return result;
}

std::vector<Tables::Row> ReadByGetline(const std::string &pFile) {
    std::vector<Tables::Row> rows;
    std::ifstream file(pFile, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        rows.push_back(RowOf(line));
    }
    return rows;
}

std::vector<Tables::Row> ReadByLibcsv(const std::string &pFile) {
    return Collect(pFile, false);
}

std::vector<Tables::Row> ReadByLibcsvWithRoom(const std::string &pFile) {
    return Collect(pFile, true);
}

void PlainWrite(const std::string &pFile, std::string_view pBytes) {
    const FilePointer file = Open(pFile, "wb");
    Put(file, pBytes);
    FlushToDisk(file);
}

void QuoteInBlocks(const std::string &pFile, Tables::Cells pCells) {
    const FilePointer file = Open(pFile, "wb");
    std::string block = Tables::SizeLine(pCells);
    for (const Tables::Row &row : pCells) {
        Tables::AppendRow(block, row);
        if (block.size() >= blockBytes) {
            Put(file, block);
            block.clear();
        }
    }
    Put(file, block);
    FlushToDisk(file);
}

void WriteByLibcsvFwrite(const std::string &pFile, Tables::Cells pCells) {
    WriteCells(pFile, pCells, [](const FilePointer &pTo, const std::string &pCell) {
        csv_fwrite2(pTo.get(), pCell.data(), pCell.size(), '"');
    });
}

void WriteByLibcsvWrite(const std::string &pFile, Tables::Cells pCells) {
    std::string field;
    WriteCells(pFile, pCells, [&field](const FilePointer &pTo, const std::string &pCell) {
        field.resize(2 * pCell.size() + 2); // Each character may be a quote.
        const std::size_t length = csv_write2(field.data(), field.size(), pCell.data(), pCell.size(), '"');
        Put(pTo, {field.data(), length});
    });
}

} // namespace Peers
