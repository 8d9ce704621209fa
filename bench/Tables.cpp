#include "bench/Tables.h"

#include "data/clsDatFile.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string_view>
#include <tuple>

#include <unistd.h>

namespace Tables {

namespace {

namespace fs = std::filesystem;

/// The standard fixes what the engine draws, but not what its distributions do.
std::string MakeCell(std::mt19937 &pEngine) {
    constexpr std::size_t shortest = 4;
    constexpr std::size_t lengths = 14;
    constexpr std::size_t kinds = 16;
    constexpr std::array<std::string_view, 6> middles{",", "\"\"", "é", "ж", " ", " "};
    std::string cell(shortest + pEngine() % lengths, ' ');
    for (char &character : cell) {
        character = static_cast<char>('a' + pEngine() % 26);
    }
    const std::size_t kind = pEngine() % kinds;
    if (kind < middles.size()) {
        cell.replace(cell.size() / 2, 1, middles[kind]);
    }
    return cell;
}

void AppendField(std::string &pText, const std::string &pCell) {
    std::size_t from = 0;
    pText += '"';
    for (std::size_t quote = pCell.find('"'); quote != std::string::npos; quote = pCell.find('"', from)) {
        pText.append(pCell, from, quote + 1 - from);
        pText += '"';
        from = quote + 1;
    }
    pText.append(pCell, from);
    pText += '"';
}

struct Folder {
    Folder() { fs::create_directory(path); }
    ~Folder() { fs::remove_all(path); }

    const char *wanted = std::getenv("NORVO_BENCH_FOLDER");
    fs::path path = fs::path(wanted ? wanted : "/dev/shm") / ("norvo_bench_" + std::to_string(getpid()));
};

std::string FileNamed(const std::string &pName) {
    static const Folder folder;
    return (folder.path / pName).string();
}

std::string Bytes(const std::string &pFile) {
    std::string bytes(fs::file_size(pFile), '\0');
    std::ifstream(pFile, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

} // namespace

std::vector<Row> Make(int pRows, int pCols) {
    std::mt19937 engine;
    // All room is made at once. Holes between the cells would slow the readers that come later.
    std::vector<Row> cells(static_cast<std::size_t>(pRows), Row(static_cast<std::size_t>(pCols)));
    for (Row &row : cells) {
        std::ranges::generate(row, [&] { return MakeCell(engine); });
    }
    return cells;
}

Cells Limit(std::int64_t pRows) {
    static const std::vector<Row> cells = Make(limitRows, limitCols);
    return Cells(cells).first(static_cast<std::size_t>(pRows));
}

Cells LongField(std::int64_t pBytes) {
    static std::map<std::int64_t, Row> fields;
    Row &row = fields[pBytes];
    row.resize(1);
    while (std::cmp_less(row[0].size(), pBytes)) {
        row[0] += "xxxx\"xxx";
    }
    return {&row, 1};
}

std::vector<Row> Specification(int pCols) {
    constexpr int percentOfAll = 100;
    std::vector<Row> rows;
    for (const std::string &title : Titles(pCols)) {
        // The first fields share what doesn't divide evenly.
        const bool isWider = static_cast<int>(rows.size()) < percentOfAll % pCols;
        rows.push_back({title, std::to_string(percentOfAll / pCols + (isWider ? 1 : 0)), "0", "-"});
    }
    return rows;
}

Row Titles(int pCols) {
    Row titles;
    for (int col = 1; col <= pCols; ++col) {
        titles.push_back("Column " + std::to_string(col));
    }
    return titles;
}

std::string SizeLine(Cells pCells) {
    return std::to_string(pCells.size()) + "," + std::to_string(pCells.front().size()) + "\r\n";
}

void AppendRow(std::string &pText, const Row &pRow) {
    for (const std::string &cell : pRow) {
        AppendField(pText, cell);
        pText += ',';
    }
    pText.back() = '\r'; // No comma stands after the last field.
    pText += '\n';
}

std::string FileText(std::int16_t pFmt, Cells pCells) {
    std::string text = pFmt == clsDatFile::fmtDat ? SizeLine(pCells) : "";
    if (pFmt == clsDatFile::fmtCsvWithHeaders) {
        AppendRow(text, Titles(static_cast<int>(pCells.front().size())));
    }
    for (const Row &row : pCells) {
        AppendRow(text, row);
    }
    return text;
}

std::string File(std::int16_t pFmt, Cells pCells) {
    static std::map<std::tuple<std::int16_t, const Row *, std::size_t>, std::string> files;
    std::string &file = files[{pFmt, pCells.data(), pCells.size()}];
    if (file.empty()) {
        file = FileNamed("table" + std::to_string(files.size()));
        std::ofstream(file, std::ios::binary) << FileText(pFmt, pCells);
    }
    return file;
}

std::string FreshCopy() {
    std::string file = FileNamed("copy");
    fs::remove(file);
    return file;
}

bool IsCopyOf(const std::string &pFile) {
    return Bytes(FileNamed("copy")) == Bytes(pFile);
}

} // namespace Tables
