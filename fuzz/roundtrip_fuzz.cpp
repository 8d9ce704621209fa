/// What was loaded from any file and is saved in any of the three forms comes back, all of it: loading has
/// dropped already what the forms can't keep (blanks around a cell, a CR). The first byte chooses the form
/// that the rest is loaded in.
#include "fuzz/FuzzSupport.h"

namespace {

constexpr std::int16_t forms[] = {TableProbe::fmtDat, TableProbe::fmtCsv, TableProbe::fmtCsvWithHeaders};

/// Without the first line, which is all that the forms differ in.
std::string_view Rows(std::int16_t pFmt, std::string_view pFile) {
    return pFmt == TableProbe::fmtCsv ? pFile : pFile.substr(pFile.find("\r\n") + 2);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    constexpr int mostCells = 2000; // A few bytes can announce a table that takes a second to save.
    static TableProbe first;
    static TableProbe second;
    if (pSize == 0 || first.Load(forms[pBytes[0] % 3], Text(pBytes + 1, pSize - 1))) {
        return 0;
    }
    const int rows = first.table.Rows();
    const int cols = first.table.Cols();
    if (rows == 0 || cols == 0 || rows * cols > mostCells) {
        return 0; // The editor saves no table without rows, and has no specification without columns.
    }
    const auto cells = first.Cells();
    const std::string plainRows = first.Save(TableProbe::fmtCsv);
    for (const std::int16_t fmt : forms) {
        const std::string file = first.Save(fmt);
        Require(Rows(fmt, file) == plainRows, "the rows are the same bytes in all forms");
        Require(!second.Load(fmt, file) && !second.HasFault(), "what was saved can be loaded");
        Require(second.table.Rows() == rows && second.table.Cols() == cols, "the size comes back");
        Require(second.Cells() == cells, "every cell comes back");
        Require(second.Save(fmt) == file, "saving again gives the same bytes");
    }
    return 0;
}
