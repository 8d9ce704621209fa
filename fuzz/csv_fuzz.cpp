/// The CSV reader, with and without a header line, on any file. The table is made of the lines up to the
/// first ragged one. The .dat reader sees the same rows when a first line tells it their number.
#include "data/modGetWords.h"
#include "fuzz/FuzzSupport.h"

namespace {

/// Loads pBytes, whose row 0 is line pFirst. Returns the rows that the lines give.
std::vector<Words> LoadAndCompare(TableProbe &pProbe, std::int16_t pFmt, std::string_view pBytes,
                                  std::size_t pFirst) {
    const std::optional<std::string> end = pProbe.Load(pFmt, pBytes);
    const auto lines = LinesOf(pBytes);
    std::vector<Words> rows;
    for (std::size_t line = pFirst; line < lines.size(); ++line) {
        const Words words = WordsOf(modGetWords::GetWords(lines[line]));
        if (words.empty() || (!rows.empty() && words.size() != rows[0].size())) {
            break;
        }
        rows.push_back(words);
    }
    if (rows.empty() && lines.size() > pFirst) {
        Require(end == "clsDatFile.Cols out of bounds ( 0)", "a first row without words ends the program");
    } else {
        Require(!end && pProbe.table.Fault().empty(), "any other file is taken in");
        Require(pProbe.Cells() == rows, "the table is the rows up to the first ragged line");
    }
    return rows;
}

} // namespace

void RequireLaws(std::string_view pBytes) {
    static TableProbe probe;
    LoadAndCompare(probe, clsDatFile::fmtCsvWithHeaders, pBytes, 1);
    const std::vector<Words> rows = LoadAndCompare(probe, clsDatFile::fmtCsv, pBytes, 0);
    if (!rows.empty()) {
        std::string file = std::to_string(rows.size()) + "," + std::to_string(rows[0].size()) + "\r\n";
        Require(!probe.Load(clsDatFile::fmtDat, file.append(pBytes)), "no .dat file ends the program");
        Require(probe.Cells() == rows, "the .dat reader sees the same rows");
    }
}
