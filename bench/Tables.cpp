#include "bench/Tables.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

#include <unistd.h>

namespace Tables {

namespace {

namespace fs = std::filesystem;

/// Draws the cells. The library's distributions would give other numbers with another compiler.
class CellMaker {
public:
    std::string Next() {
        constexpr std::size_t shortest = 4;
        constexpr std::size_t longest = 17;
        constexpr std::size_t kinds = 16;
        std::string cell(shortest + Draw(longest - shortest + 1), ' ');
        for (char &character : cell) {
            character = letters[Draw(letters.size())];
        }
        const std::size_t middle = cell.size() / 2;
        const std::size_t kind = Draw(kinds);
        if (kind == 1) {
            cell.insert(middle, "\"\"");
        } else if (kind == 2) {
            cell.insert(middle, foreignLetters[Draw(foreignLetters.size())]);
        } else if (kind <= 4) {
            cell[middle] = kind == 0 ? ',' : ' ';
        }
        return cell;
    }

private:
    static constexpr std::string_view letters =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    static constexpr std::array<std::string_view, 4> foreignLetters{"é", "ß", "λ", "ж"};

    /// From 0 to pBelow - 1.
    std::size_t Draw(std::size_t pBelow) {
        constexpr int goodBits = 33; // The low ones repeat too soon.
        myState = myState * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::size_t>((myState >> goodBits) % pBelow);
    }

    std::uint64_t myState = 20011;
};

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
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    const char *wanted = std::getenv("NORVO_BENCH_FOLDER");
    fs::path path = fs::path(wanted ? wanted : "/dev/shm") / ("norvo_bench_" + std::to_string(getpid()));
};

std::string FileNamed(const std::string &pName) {
    static const Folder folder;
    return (folder.path / pName).string();
}

template <typename MakeCells> std::string Made(const std::string &pName, std::int16_t pFmt, MakeCells pMake) {
    std::string file = FileNamed(pName);
    if (!fs::exists(file)) {
        Write(file, FileText(pFmt, pMake()));
    }
    return file;
}

} // namespace

std::vector<Row> MakeCells(int pRows, int pCols) {
    CellMaker maker;
    std::vector<Row> cells(static_cast<std::size_t>(pRows), Row(static_cast<std::size_t>(pCols)));
    for (Row &row : cells) {
        for (std::string &cell : row) {
            cell = maker.Next();
        }
    }
    return cells;
}

Cells LimitCells(std::int64_t pRows) {
    static const std::vector<Row> cells = MakeCells(limitRows, limitCols);
    return Cells(cells).first(static_cast<std::size_t>(pRows));
}

std::vector<Row> LongField(std::size_t pBytes) {
    constexpr std::size_t quoteDistance = 8;
    std::string field(pBytes, 'x');
    for (std::size_t at = quoteDistance / 2; at < pBytes; at += quoteDistance) {
        field[at] = '"';
    }
    return {{field}};
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

std::string TableFile(std::int16_t pFmt, std::int64_t pRows) {
    const std::string name = "table" + std::to_string(pFmt) + "_" + std::to_string(pRows);
    return Made(name, pFmt, [&] { return LimitCells(pRows); });
}

std::string LongFieldFile(std::size_t pBytes) {
    return Made("field" + std::to_string(pBytes), clsDatFile::fmtDat, [&] { return LongField(pBytes); });
}

std::string SpecificationFile() {
    return Made("specification", clsDatFile::fmtDat, [] { return Specification(limitCols); });
}

std::string FreshCopy() {
    std::string file = FileNamed("copy");
    fs::remove(file);
    return file;
}

bool IsCopyOf(const std::string &pFile) {
    return Bytes(FileNamed("copy")) == Bytes(pFile);
}

std::string Bytes(const std::string &pFile) {
    std::string bytes(fs::file_size(pFile), '\0');
    std::ifstream(pFile, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

void Write(const std::string &pFile, const std::string &pBytes) {
    std::ofstream file(pFile, std::ios::binary);
    if (!(file << pBytes << std::flush)) {
        std::fprintf(stderr, "%s can't be written\n", pFile.c_str());
        std::exit(EXIT_FAILURE);
    }
}

} // namespace Tables
