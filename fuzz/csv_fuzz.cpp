/// The CSV reader, with and without a header line, on any file: the table is made of the lines up to the
/// first ragged one, and the .dat reader sees the same rows when it is told their number.
#include "data/modGetWords.h"
#include "fuzz/FuzzSupport.h"

namespace {

using Table = std::vector<std::vector<std::string>>;

/// The rows that pLines should give, each with its words.
Table RowsOf(const std::vector<std::string_view> &pLines, std::size_t pFirst) {
    Table rows;
    for (std::size_t line = pFirst; line < pLines.size(); ++line) {
        std::vector<std::string> words = Texts(modGetWords::GetWords(pLines[line]));
        if (words.empty() || (!rows.empty() && words.size() != rows[0].size())) {
            break;
        }
        rows.push_back(std::move(words));
    }
    return rows;
}

void LoadAndCompare(TableProbe &pProbe, std::int16_t pFmt, std::string_view pBytes, std::size_t pFirst) {
    const auto lines = LinesOf(pBytes);
    const Table rows = RowsOf(lines, pFirst);
    const std::optional<std::string> end = pProbe.Load(pFmt, pBytes);
    if (rows.empty() && lines.size() > pFirst) {
        Require(end == "clsDatFile.Cols out of bounds ( 0)", "a first row without words ends the program");
        return;
    }
    Require(!end && !pProbe.HasFault(), "any other file is taken in");
    Require(pProbe.Cells() == rows, "the rows up to the first ragged line are the table");
    Require(rows.empty() || pProbe.table.Cols() == static_cast<int>(rows[0].size()),
            "the first row sets the columns");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    static TableProbe probe;
    const std::string bytes(Text(pBytes, pSize));
    LoadAndCompare(probe, TableProbe::fmtCsvWithHeaders, bytes, 1);
    LoadAndCompare(probe, TableProbe::fmtCsv, bytes, 0);

    const Table rows = RowsOf(LinesOf(bytes), 0);
    if (!rows.empty()) {
        const std::string size = std::to_string(rows.size()) + "," + std::to_string(rows[0].size());
        Require(!probe.Load(TableProbe::fmtDat, size + "\r\n" + bytes) && probe.Cells() == rows,
                "the .dat reader sees the same rows");
    }
    return 0;
}
