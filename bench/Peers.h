#pragma once
/// Other ways to read and write a .dat file, to compare the program with on the same bytes: libcsv, which
/// keeps each cell in a std::string and returns the first line as a row too, and the least that any program
/// must do. Like the program, writers flush the file to the disk before they close it.
#include "bench/Tables.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string_view>

#include <csv.h>
#include <unistd.h>

namespace Peers {

inline constexpr std::size_t blockBytes = 65536;

using FilePointer = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;

inline FilePointer Open(const std::string &pFile, const char *pMode) {
    FilePointer file(std::fopen(pFile.c_str(), pMode), std::fclose);
    std::setvbuf(file.get(), nullptr, _IOFBF, blockBytes);
    return file;
}

inline void Put(const FilePointer &pFile, std::string_view pBytes) {
    std::fwrite(pBytes.data(), 1, pBytes.size(), pFile.get());
}

inline void FlushToDisk(const FilePointer &pFile) {
    std::fflush(pFile.get());
    fsync(fileno(pFile.get()));
}

/// The bytes of a file as they were read.
struct Buffer {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

/// Reads the file and does nothing else; the memory for it isn't cleared first.
inline Buffer ReadWhole(const std::string &pFile) {
    const FilePointer file = Open(pFile, "rb");
    const std::size_t size = std::filesystem::file_size(pFile);
    Buffer buffer{std::make_unique_for_overwrite<char[]>(size), 0};
    buffer.size = std::fread(buffer.bytes.get(), 1, size, file.get());
    return buffer;
}

/// The cells of a file, kept where they were read.
struct References {
    struct Cell {
        std::uint32_t at;
        std::uint32_t length;
    };
    Buffer buffer;
    std::vector<Cell> cells;
};

/// Takes the field whose opening quote stands at pAt, and moves pAt past its closing quote.
inline References::Cell TakeField(char *&pAt, const Buffer &pBuffer) {
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
        if (*pAt != '"') { // A line end follows at least.
            return {static_cast<std::uint32_t>(field - pBuffer.bytes.get()),
                    static_cast<std::uint32_t>(to - field)};
        }
        *to++ = *pAt++;
    }
}

/// The bare loop: reads the file whole, looks for quotes by memchr, makes doubled quotes single in place and
/// keeps 8 bytes for each cell. It checks nothing and takes only what the tables here hold.
inline References SplitIntoReferences(const std::string &pFile) {
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

/// What libcsv has found so far.
struct Collector {
    std::vector<Tables::Row> rows;
    Tables::Row row;
};

inline void TakeLibcsvField(void *pText, std::size_t pLength, void *pCollector) {
    static_cast<Collector *>(pCollector)->row.emplace_back(static_cast<const char *>(pText), pLength);
}

inline void TakeLibcsvRow(int /*pCharacter*/, void *pCollector) {
    auto &collector = *static_cast<Collector *>(pCollector);
    collector.rows.push_back(std::move(collector.row));
    collector.row = {};
}

/// libcsv, fed by blocks as its manual says. Each cell becomes a string in the vector of its row.
inline std::vector<Tables::Row> ReadByLibcsv(const std::string &pFile) {
    const FilePointer file = Open(pFile, "rb");
    const auto block = std::make_unique_for_overwrite<char[]>(blockBytes);
    Collector collector;
    csv_parser parser;
    csv_init(&parser, 0);
    while (const std::size_t count = std::fread(block.get(), 1, blockBytes, file.get())) {
        csv_parse(&parser, block.get(), count, TakeLibcsvField, TakeLibcsvRow, &collector);
    }
    csv_fini(&parser, TakeLibcsvField, TakeLibcsvRow, &collector);
    csv_free(&parser);
    return std::move(collector.rows);
}

/// A table to write.
struct Table {
    Tables::Cells cells;
    std::string bytes; ///< the finished file
};

/// The finished bytes, in one go. No writer can do less.
inline void PlainWrite(const std::string &pFile, const Table &pTable) {
    const FilePointer file = Open(pFile, "wb");
    Put(file, pTable.bytes);
    FlushToDisk(file);
}

/// libcsv's writer for files, csv_fwrite2.
inline void WriteByLibcsv(const std::string &pFile, const Table &pTable) {
    const FilePointer file = Open(pFile, "wb");
    Put(file, Tables::SizeLine(pTable.cells));
    for (const Tables::Row &row : pTable.cells) {
        for (const std::string &cell : row) {
            if (&cell != &row.front()) {
                std::putc(',', file.get());
            }
            csv_fwrite2(file.get(), cell.data(), cell.size(), '"');
        }
        Put(file, "\r\n");
    }
    FlushToDisk(file);
}

} // namespace Peers
