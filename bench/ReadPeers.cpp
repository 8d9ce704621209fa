#include "bench/ReadPeers.h"

#include <charconv>
#include <cstring>
#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ReadPeers {

namespace {

constexpr std::size_t lineEnd = 2; // CR LF

/// The inside of a quoted field that begins behind its quote. Gives what stands behind its closing quote.
char *TakeField(char *pFrom, const char *pEnd, const char *pBegin, Reference &pCell) {
    char *to = pFrom;
    char *from = pFrom;
    for (;;) {
        auto *quote = static_cast<char *>(std::memchr(from, '"', static_cast<std::size_t>(pEnd - from)));
        const auto length = static_cast<std::size_t>(quote - from);
        if (to != from) {
            std::memmove(to, from, length);
        }
        to += length;
        from = quote + 1;
        if (*from != '"') { // In front of a line end, if of nothing else.
            break;
        }
        *to++ = '"';
        ++from;
    }
    pCell = {static_cast<std::uint32_t>(pFrom - pBegin), static_cast<std::uint32_t>(to - pFrom)};
    return from;
}

/// The number of cells that the first line announces; pAt is put behind it.
std::size_t TakeSize(char *&pAt, const char *pEnd) {
    std::size_t rows = 0;
    std::size_t cols = 0;
    const char *comma = std::from_chars(pAt, pEnd, rows).ptr;
    const char *end = std::from_chars(comma + 1, pEnd, cols).ptr;
    pAt += static_cast<std::size_t>(end - pAt) + lineEnd;
    return rows * cols;
}

std::vector<std::string> RowOf(const std::string &pLine) {
    std::vector<std::string> row;
    std::string cell;
    bool isInQuotes = false;
    for (std::size_t at = 0; at < pLine.size(); ++at) {
        const char character = pLine[at];
        if (character == '"' && isInQuotes && at + 1 < pLine.size() && pLine[at + 1] == '"') {
            cell += '"';
            ++at;
        } else if (character == '"') {
            isInQuotes = !isInQuotes;
        } else if (character == ',' && !isInQuotes) {
            row.push_back(cell);
            cell.clear();
        } else if (character != '\r') {
            cell += character;
        }
    }
    row.push_back(cell);
    return row;
}

} // namespace

Buffer ReadWhole(const std::string &pFile) {
    const int file = open(pFile.c_str(), O_RDONLY);
    struct stat status {};
    fstat(file, &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    Buffer buffer{std::make_unique_for_overwrite<char[]>(size), 0};
    for (ssize_t count = 1; count > 0 && buffer.size < size;) {
        count = read(file, buffer.bytes.get() + buffer.size, size - buffer.size);
        buffer.size += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    close(file);
    return buffer;
}

References SplitIntoReferences(const std::string &pFile) {
    References result{ReadWhole(pFile), {}};
    const char *const begin = result.buffer.bytes.get();
    const char *const end = begin + result.buffer.size;
    char *at = result.buffer.bytes.get();
    result.cells.reserve(TakeSize(at, end));
    while (at < end) {
        Reference cell{};
        at = TakeField(at + 1, end, begin, cell);
        result.cells.push_back(cell);
        at += *at == ',' ? 1 : lineEnd;
    }
    return result;
}

StandardTables::Cells GetlineCells(const std::string &pFile) {
    StandardTables::Cells cells;
    std::ifstream file(pFile, std::ios::binary);
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        cells.push_back(RowOf(line));
    }
    return cells;
}

} // namespace ReadPeers
