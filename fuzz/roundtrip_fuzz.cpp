/// A table that was loaded from any file comes back whole after it was saved in any of the three forms.
/// Loading has already dropped what the forms can't keep: blanks around a cell, and a CR. The first byte
/// chooses the form in which the rest is loaded.
#include "fuzz/FuzzSupport.h"

namespace {

constexpr std::int16_t forms[] = {clsDatFile::fmtDat, clsDatFile::fmtCsv, clsDatFile::fmtCsvWithHeaders};

/// Without the first line, which is all that the forms differ in.
std::string Rows(std::int16_t pFmt, const std::string &pFile) {
    return pFmt == clsDatFile::fmtCsv ? pFile : pFile.substr(pFile.find("\r\n") + 2);
}

} // namespace

void RequireLaws(std::string_view pBytes) {
    constexpr int mostCells = 2000; // A few bytes can announce a table that takes a second to save.
    static TableProbe first;
    static TableProbe second;
    if (pBytes.empty() || first.Load(forms[static_cast<unsigned char>(pBytes[0]) % 3], pBytes.substr(1))) {
        return;
    }
    const int rows = first.table.Rows();
    const int cols = first.table.Cols();
    if (rows == 0 || cols == 0 || rows * cols > mostCells) {
        return; // The editor saves no table without rows, and has no specification without columns.
    }
    const auto cells = first.Cells();
    const std::string plainRows = first.Save(clsDatFile::fmtCsv);
    for (const std::int16_t fmt : forms) {
        const std::string file = first.Save(fmt);
        Require(Rows(fmt, file) == plainRows, "the rows are the same bytes in all forms");
        Require(!second.Load(fmt, file) && second.table.Fault().empty(), "a saved table can be loaded");
        Require(second.Cells() == cells, "every cell comes back");
        Require(second.Save(fmt) == file, "saving again gives the same bytes");
    }
}
