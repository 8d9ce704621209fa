// The two writers. They share the form of a row, and differ only in what stands before row 0.
#include "data/clsDatFile.h"

#include "platform/Files.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// The next double quote from pFrom on; pEnd when there is none.
const char *NextQuote(const char *pFrom, const char *pEnd) {
    const auto length = static_cast<std::size_t>(pEnd - pFrom);
    const void *const found = length == 0 ? nullptr : std::memchr(pFrom, '"', length);
    return found == nullptr ? pEnd : static_cast<const char *>(found);
}

} // namespace

char *clsDatFile::Quote(std::string_view pField, bool pHasQuotes, const char *pReadableEnd, char *pTo) {
    *pTo++ = '"';
    if (!pHasQuotes) {
        pTo = CopyText(pField, pReadableEnd, pTo);
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

/// Room for the longest line, made before the file is touched: memory must not run out in the middle of it.
std::string clsDatFile::RoomForLines(const TextRow &pTitles) const {
    std::size_t most = pTitles.Run().size();
    for (const TextRow &row : myData) {
        most = std::max(most, row.Run().size());
    }
    return std::string(2 * most + 3 * static_cast<std::size_t>(myCols) + shortTextBytes, '\0');
}

void clsDatFile::PrintRow(TextOutput &pFile, const TextRow &pCells, std::string &pLine) const {
    const char *const end = pCells.Run().data() + pCells.Run().size();
    const char *quote = NextQuote(pCells.Run().data(), end); // Of the whole row: most cells have none.
    char *to = pLine.data();
    for (int place = 1; place <= myCols; ++place) {
        const std::string_view cell = pCells(place);
        const char *const cellEnd = cell.data() + cell.size();
        const bool hasQuotes = quote < cellEnd;
        to = Quote(cell, hasQuotes, end, to);
        quote = hasQuotes ? NextQuote(cellEnd, end) : quote;
        *to++ = ',';
    }
    to -= myCols > 0 ? 1 : 0; // Behind the last field there is none.
    pFile.PrintLine(std::string_view(pLine.data(), static_cast<std::size_t>(to - pLine.data())));
}

void clsDatFile::PrintRows(TextOutput &pFile, std::string &pLine) const {
    for (std::int16_t row = 0; row < myRows; ++row) {
        const bool isStored = std::cmp_less(row, myData.size());
        PrintRow(pFile, isStored ? myData[static_cast<std::size_t>(row)] : TextRow(), pLine);
    }
}

void clsDatFile::SaveDat() {
    if (myFn.empty()) {
        return;
    }
    std::string line = RoomForLines({});
    TextOutput file(myFn);
    file.PrintLine(FormatWhole(myRows) + "," + FormatWhole(myCols));
    PrintRows(file, line);
    Finish(file);
}

void clsDatFile::SaveCsv(bool pHasHeaders) {
    if (myFn.empty()) {
        return;
    }
    const TextRow titles(myHeaders); // A row takes of them as many as it has fields; those missing are empty.
    std::string line = RoomForLines(titles);
    TextOutput file(myFn);
    if (pHasHeaders) {
        PrintRow(file, titles, line);
    }
    PrintRows(file, line);
    Finish(file);
}

void clsDatFile::Finish(TextOutput &pFile) {
    const TextOutput::Fault fault = pFile.Close();
    if (fault.reason.empty()) {
        return;
    }
    Refuse(Fault::Kind::NotSaved,
           "can't be saved: " + fault.reason + ". The records are still in the list." +
               (fault.mayBeIncomplete ? " The file itself may now be incomplete." : ""));
}
