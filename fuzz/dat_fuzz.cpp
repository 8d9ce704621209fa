/// The .dat reader on any file. Each row is what its line says, up to a ragged line; the rest is empty.
#include "data/modGetWords.h"
#include "fuzz/FuzzSupport.h"

#include <algorithm>

void RequireLaws(std::string_view pBytes) {
    static TableProbe probe;
    Require(!probe.Load(clsDatFile::fmtDat, pBytes), "no .dat file ends the program");
    const clsDatFile &table = probe.table;
    Require(table.Rows() >= 0 && table.Cols() >= 0, "no size is negative");

    const auto lines = LinesOf(pBytes);
    std::int16_t came = 0;
    std::size_t line = 1;
    for (; line < lines.size() && came < table.Rows(); ++line, ++came) {
        const TextRow words = modGetWords::GetWords(lines[line]);
        if (words.Count() != table.Cols()) {
            break;
        }
        Require(WordsOf(table.Row(came)) == WordsOf(words), "the cells of a row are the words of its line");
    }
    const bool isOutOfLines = line >= lines.size();
    Require(came == table.Rows() || (!isOutOfLines && table.Fault().empty()),
            "rows are missing only after a ragged line");
    Require(came == table.Rows() || table.Row(came).Run().empty(), "the row of a ragged line is empty");
    Require(came == table.Rows() || table.Row(static_cast<std::int16_t>(table.Rows() - 1)).Run().empty(),
            "the last row after a ragged line is empty");

    // A first line as the program writes it.
    const std::string first(lines.empty() ? "" : lines[0]);
    int rows = -1;
    int cols = -1;
    std::sscanf(first.c_str(), "%5d,%5d", &rows, &cols);
    const bool isPlain = first == std::to_string(rows) + "," + std::to_string(cols);
    if (isPlain && std::min(rows, cols) >= 0 && std::max(rows, cols) <= 32767) {
        Require(table.Cols() == cols, "the columns are as announced");
        Require(table.Rows() == rows || (table.Rows() < rows && isOutOfLines && !table.Fault().empty()),
                "the rows are as announced, or the user is told why not");
    }
}
