/// The .dat reader on any file: what it takes in is what the file's lines say, and the rest is empty.
#include "data/modGetWords.h"
#include "fuzz/FuzzSupport.h"

#include <charconv>

namespace {

/// The two numbers of a first line as the program itself writes it; nothing for any other line.
std::optional<std::pair<int, int>> PlainSize(std::string_view pLine) {
    std::pair<int, int> size;
    const char *const end = pLine.data() + pLine.size();
    const auto rows = std::from_chars(pLine.data(), end, size.first);
    if (rows.ec != std::errc() || rows.ptr == end || *rows.ptr != ',') {
        return std::nullopt;
    }
    const auto cols = std::from_chars(rows.ptr + 1, end, size.second);
    const bool fits = size.first >= 0 && size.first <= 32767 && size.second >= 0 && size.second <= 32767;
    return cols.ec == std::errc() && cols.ptr == end && fits ? std::optional(size) : std::nullopt;
}

/// How many rows the lines behind the first give, all cells of which were compared.
int RowsThatCame(const clsDatFile &pTable, const std::vector<std::string_view> &pLines) {
    int row = 0;
    for (; row < pTable.Rows() && static_cast<std::size_t>(row) + 1 < pLines.size(); ++row) {
        const TextRow words = modGetWords::GetWords(pLines[static_cast<std::size_t>(row) + 1]);
        if (words.Count() != pTable.Cols()) {
            break;
        }
        for (std::int16_t col = 0; col < pTable.Cols(); ++col) {
            Require(pTable.Data(static_cast<std::int16_t>(row), col) == words(col + 1),
                    "a cell is the word of its line");
        }
    }
    return row;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    static TableProbe probe;
    const std::string_view bytes = Text(pBytes, pSize);
    Require(!probe.Load(TableProbe::fmtDat, bytes), "no .dat file ends the program");
    const clsDatFile &table = probe.table;
    Require(table.Rows() >= 0 && table.Cols() >= 0, "no size is negative");

    const auto lines = LinesOf(bytes);
    const int came = RowsThatCame(table, lines);
    const bool isOutOfLines = static_cast<std::size_t>(came) + 1 >= lines.size();
    Require(came == table.Rows() || (!isOutOfLines && !probe.HasFault()),
            "rows are missing only behind a ragged line");
    for (const int row : {came, table.Rows() - 1}) {
        for (const int col : {0, table.Cols() - 1}) {
            Require(row < came ||
                        table.Data(static_cast<std::int16_t>(row), static_cast<std::int16_t>(col)).empty(),
                    "behind a ragged line all cells are empty");
        }
    }
    if (const auto size = lines.empty() ? std::nullopt : PlainSize(lines[0])) {
        Require(table.Cols() == size->second, "the columns are as announced");
        Require(table.Rows() == size->first ||
                    (table.Rows() < size->first && isOutOfLines && probe.HasFault()),
                "the rows are as announced, or the user is told why not");
    }
    return 0;
}
