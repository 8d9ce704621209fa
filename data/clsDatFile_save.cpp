// The two writers. They write rows alike, and differ only in the line before the first row.
#include "data/clsDatFile.h"

#include "system/Files.h"
#include "text/Numbers.h"
#include "text/PartCopier.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view emptyField = R"("",)";

/// Writes pField, a part of pRow, to pTo as files hold it: in quotes, with its own quotes doubled. pHasQuotes
/// tells whether it has any. Returns the end of what it wrote; pTo needs room for copySlack bytes more.
char *Quote(std::string_view pField, bool pHasQuotes, const PartCopier &pRow, char *pTo) {
    *pTo++ = '"';
    if (!pHasQuotes) {
        pTo = pRow.Copy(pField, pTo);
    } else {
        for (const char character : pField) {
            *pTo = '"';
            pTo += character == '"' ? 1 : 0;
            *pTo++ = character;
        }
    }
    *pTo++ = '"';
    return pTo;
}

} // namespace

/// The most bytes that any line needs: each byte of a cell may be doubled, and each cell adds two quotes and
/// a comma.
std::size_t clsDatFile::MostLineBytes(const TextRow &pTitles) const {
    std::size_t most = pTitles.Run().size();
    for (const TextRow &row : myData) {
        most = std::max(most, row.Run().size());
    }
    constexpr std::size_t firstLine = 16; // of the .dat form, with the sizes
    return std::max(firstLine, 2 * most + 3 * static_cast<std::size_t>(myCols)) + copySlack;
}

void clsDatFile::PrintRow(TextOutput &pFile, const TextRow &pCells) const {
    const auto cols = static_cast<std::size_t>(myCols);
    const std::span<const TextRow::Offset> ends = pCells.Ends().first(std::min(cols, pCells.Ends().size()));
    const std::string_view run = pCells.Run();
    const PartCopier row(run);
    std::size_t quote = run.find('"'); // Searches across cells: most cells have no quotes.
    std::size_t from = 0;
    char *to = pFile.BeginLine();
    for (const TextRow::Offset end : ends) {
        const bool hasQuotes = quote < end;
        to = Quote({run.data() + from, end - from}, hasQuotes, row, to);
        quote = hasQuotes ? run.find('"', end) : quote;
        *to++ = ',';
        from = end;
    }
    for (std::size_t missing = ends.size(); missing < cols; ++missing) {
        to = std::copy(emptyField.begin(), emptyField.end(), to);
    }
    to -= cols > 0 ? 1 : 0; // No comma follows the last field.
    pFile.EndLine(to);
}

void clsDatFile::PrintRows(TextOutput &pFile) const {
    for (std::int16_t row = 0; row < myRows; ++row) {
        const bool isStored = std::cmp_less(row, myData.size());
        PrintRow(pFile, isStored ? myData[static_cast<std::size_t>(row)] : TextRow());
    }
}

void clsDatFile::SaveDat() {
    if (myFn.empty()) {
        return;
    }
    const std::string sizes = FormatWhole(myRows) + "," + FormatWhole(myCols); // before the file is touched
    TextOutput file(myFn, MostLineBytes({}));
    file.PrintLine(sizes);
    PrintRows(file);
    Finish(file);
}

void clsDatFile::SaveCsv(bool pHasHeaders) {
    if (myFn.empty()) {
        return;
    }
    const TextRow titles(myHeaders); // PrintRow writes missing titles as empty, and leaves out surplus ones.
    TextOutput file(myFn, MostLineBytes(titles));
    if (pHasHeaders) {
        PrintRow(file, titles);
    }
    PrintRows(file);
    Finish(file);
}

void clsDatFile::Finish(TextOutput &pFile) {
    pFile.Close();
    if (!pFile.Fault().empty()) {
        KeepFault("can't be saved: ", {pFile.Fault()},
                  {". The records are still in the list.",
                   pFile.MayBeIncomplete() ? " The file itself may now be incomplete." : ""});
    }
}
