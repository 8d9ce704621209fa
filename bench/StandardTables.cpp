#include "bench/StandardTables.h"

#include <string_view>

namespace StandardTables {

namespace {

constexpr std::uint64_t seed = 20011;
constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr std::array<std::string_view, 4> foreignLetters{"é", "ß", "λ", "ж"};

/// The library's distributions give other numbers from one maker to the next, so that the drawing is done
/// here.
class CellMaker {
public:
    std::string Next() {
        constexpr std::size_t shortest = 4;
        constexpr std::size_t longest = 17;
        constexpr int kinds = 16;
        std::string cell;
        const std::size_t length = shortest + Draw(longest - shortest + 1);
        while (cell.size() < length) {
            cell += letters[Draw(letters.size())];
        }
        const std::size_t middle = length / 2;
        switch (Draw(kinds)) {
        case 0:
            cell[middle] = ',';
            break;
        case 1:
            cell.insert(middle, "\"\"");
            break;
        case 2:
            cell.insert(middle, foreignLetters[Draw(foreignLetters.size())]);
            break;
        case 3:
        case 4:
            cell[middle] = ' ';
            break;
        default:
            break;
        }
        return cell;
    }

private:
    /// From 0 to pBelow - 1.
    std::size_t Draw(std::size_t pBelow) {
        constexpr int goodBits = 33; // The low ones repeat too soon.
        myState = myState * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::size_t>((myState >> goodBits) % pBelow);
    }

    std::uint64_t myState = seed;
};

void AppendField(std::string &pText, std::string_view pCell) {
    pText += '"';
    for (const char character : pCell) {
        if (character == '"') {
            pText += '"';
        }
        pText += character;
    }
    pText += '"';
}

void AppendRow(std::string &pText, const std::vector<std::string> &pCells) {
    for (std::size_t col = 0; col < pCells.size(); ++col) {
        if (col > 0) {
            pText += ',';
        }
        AppendField(pText, pCells[col]);
    }
    pText += "\r\n";
}

std::string SizeLine(int pRows, int pCols) {
    return std::to_string(pRows) + "," + std::to_string(pCols) + "\r\n";
}

} // namespace

Cells MakeCells(int pRows, int pCols) {
    CellMaker maker;
    Cells cells(static_cast<std::size_t>(pRows));
    for (std::vector<std::string> &row : cells) {
        row.reserve(static_cast<std::size_t>(pCols));
        for (int col = 0; col < pCols; ++col) {
            row.push_back(maker.Next());
        }
    }
    return cells;
}

std::vector<std::string> Titles(int pCols) {
    std::vector<std::string> titles;
    for (int col = 1; col <= pCols; ++col) {
        titles.push_back("Column " + std::to_string(col));
    }
    return titles;
}

std::string FileText(FileForm pForm, int pRows, int pCols) {
    std::string text;
    if (pForm == FileForm::Dat) {
        text = SizeLine(pRows, pCols);
    } else if (pForm == FileForm::CsvWithHeaders) {
        AppendRow(text, Titles(pCols));
    }
    for (const std::vector<std::string> &row : MakeCells(pRows, pCols)) {
        AppendRow(text, row);
    }
    return text;
}

std::string Line(std::size_t pBytes) {
    CellMaker maker;
    std::string line;
    AppendField(line, maker.Next());
    while (line.size() < pBytes) {
        line += ',';
        AppendField(line, maker.Next());
    }
    return line;
}

std::string LongFieldText(std::size_t pBytes) {
    constexpr std::size_t quoteDistance = 8;
    std::string field(pBytes, 'x');
    for (std::size_t at = quoteDistance / 2; at < pBytes; at += quoteDistance) {
        field[at] = '"';
    }
    std::string text = SizeLine(1, 1);
    AppendRow(text, {field});
    return text;
}

std::string SpecificationText(int pCols) {
    constexpr int percentOfAll = 100;
    constexpr int itemsOfField = 4;
    std::string text = SizeLine(pCols, itemsOfField);
    const std::vector<std::string> titles = Titles(pCols);
    for (int col = 0; col < pCols; ++col) {
        // What doesn't divide evenly goes to the first fields.
        const int width = percentOfAll / pCols + (col < percentOfAll % pCols ? 1 : 0);
        AppendRow(text, {titles[static_cast<std::size_t>(col)], std::to_string(width), "0", "-"});
    }
    return text;
}

} // namespace StandardTables
