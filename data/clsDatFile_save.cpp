// The two writers. They share the form of a row, and differ only in the line before row 0.
#include "data/clsDatFile.h"

#include "text/CopyPart.h"
#include "text/Files.h"
#include "text/Numbers.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// The next double quote from pFrom on, or pEnd.
const char *NextQuote(const char *pFrom, const char *pEnd) {
    const auto length = static_cast<std::size_t>(pEnd - pFrom);
    const void *const found = length == 0 ? nullptr : std::memchr(pFrom, '"', length);
    return found == nullptr ? pEnd : static_cast<const char *>(found);
}

} // namespace

/// Writes pField, a part of pRow, to pTo in the form that fields have on disk, and returns the end of it. pTo
/// needs room for copySlack bytes more than that.
char *clsDatFile::Quote(std::string_view pField, bool pHasQuotes, std::string_view pRow, char *pTo) {
    *pTo++ = '"';
    if (!pHasQuotes) {
        pTo = CopyPart(pField, pRow, pTo);
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

/// The most bytes that any line needs: each byte of a cell may be doubled, and two quotes and a comma come
/// with it.
std::size_t clsDatFile::MostLineBytes(const TextRow &pTitles) const {
    std::size_t most = pTitles.Run().size();
    for (const TextRow &row : myData) {
        most = std::max(most, row.Run().size());
    }
    constexpr std::size_t sizes = 16; // the first line of the .dat form
    return std::max(sizes, 2 * most + 3 * static_cast<std::size_t>(myCols)) + copySlack;
}

void clsDatFile::PrintRow(TextOutput &pFile, const TextRow &pCells) const {
    const auto cols = static_cast<std::size_t>(myCols);
    const std::span<const TextRow::Place> ends = pCells.Ends().first(std::min(cols, pCells.Ends().size()));
    const std::string_view run = pCells.Run();
    const char *const end = run.data() + run.size();
    const char *cell = run.data();
    const char *quote = NextQuote(cell, end); // One search for the whole row: most cells have no quotes.
    char *to = pFile.BeginLine();
    for (const TextRow::Place place : ends) {
        const char *const cellEnd = run.data() + place;
        const bool hasQuotes = quote < cellEnd;
        to = Quote({cell, cellEnd}, hasQuotes, run, to);
        quote = hasQuotes ? NextQuote(cellEnd, end) : quote;
        *to++ = ',';
        cell = cellEnd;
    }
    for (std::size_t missing = ends.size(); missing < cols; ++missing) {
        to = Quote({}, false, {}, to);
        *to++ = ',';
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
    TextOutput file(myFn, MostLineBytes({}));
    file.PrintLine(FormatWhole(myRows) + "," + FormatWhole(myCols));
    PrintRows(file);
    Finish(file);
}

void clsDatFile::SaveCsv(bool pHasHeaders) {
    if (myFn.empty()) {
        return;
    }
    const TextRow titles(myHeaders); // PrintRow fills up missing titles and leaves out surplus ones.
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
        KeepFault("can't be saved: " + pFile.Fault() + ". The records are still in the list." +
                  (pFile.MayBeIncomplete() ? " The file itself may now be incomplete." : ""));
    }
}
