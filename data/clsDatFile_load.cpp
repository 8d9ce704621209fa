// The two readers. The .dat reader takes the size from the first line; the CSV reader counts. Both stop at a
// ragged line, one with the wrong number of words. The .dat reader then keeps the announced number of rows,
// the remaining ones empty; the CSV reader keeps the rows before that line.
#include "data/clsDatFile.h"

#include "data/modGetWords.h"
#include "system/Files.h"
#include "text/Numbers.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

/// Messages don't spell out a number of rows from here up: it may have hundreds of digits, or be infinite.
constexpr double mostShownRows = 1e9;

/// One of the two numbers of the first line. Text that is not a number counts as 0.
double SizeItem(std::string_view pItem) {
    return WholeNumber(pItem).value_or(0);
}

} // namespace

void clsDatFile::ReadSizeFrom(TextInput &pFile) {
    const std::optional<std::string_view> rowsItem = pFile.InputItem();
    const std::optional<std::string_view> colsItem = pFile.InputItem();
    const std::optional<std::int16_t> fittingCols = colsItem ? Integer16(SizeItem(*colsItem)) : std::nullopt;
    if (!rowsItem || !fittingCols || *fittingCols < 0) {
        EmptyTable(0);
        return;
    }
    const double rows = SizeItem(*rowsItem);
    const std::optional<std::int16_t> fittingRows = Integer16(rows);
    if (!fittingRows && rows > mostRows) {
        EmptyTable(*fittingCols);
        const std::string announced = rows < mostShownRows ? FormatWhole(rows) : "far too many";
        KeepFault("", {"announces ", announced, " records. A table holds at most ", std::to_string(mostRows),
                       ", so none were read."});
        return;
    }
    if (!fittingRows || *fittingRows < 0) {
        EmptyTable(0);
        return;
    }
    myRows = *fittingRows;
    myCols = *fittingCols;
    Clear();
    if (!WholeNumber(*rowsItem)) {
        // Without a message the user would take the empty list for the file, and save over it.
        KeepFault("", {"doesn't begin with the number of its records, so none were read."});
    }
}

void clsDatFile::LoadDat() {
    StopWithoutFileName();
    TextInput file(myFn);
    ReadSizeFrom(file);
    file.LineInput(); // The first line may hold more than the two numbers.
    ReadAnnouncedRowsFrom(file);
    KeepFaultOf(file);
}

void clsDatFile::ReadAnnouncedRowsFrom(TextInput &pFile) {
    TextRowRoom room;
    for (std::int16_t row = 0; row < myRows; ++row) {
        if (pFile.AtEnd()) {
            KeepFault("", {"is too short. Its first line announces ", std::to_string(myRows),
                           " records, but it holds only ", std::to_string(row), "."});
            myRows = row;
            myData.resize(static_cast<std::size_t>(row));
            return;
        }
        TextRow words = modGetWords::GetWords(pFile.LineInput(), room);
        if (words.Count() != myCols) {
            return; // The remaining rows stay empty, and myRows stays as announced.
        }
        myData[static_cast<std::size_t>(row)] = std::move(words);
    }
}

void clsDatFile::ReadRowsUpToARaggedOne(TextInput &pFile) {
    TextRowRoom room;
    const int cols = myData.front().Count();
    while (!pFile.AtEnd() && std::cmp_less_equal(myData.size(), mostRows)) {
        TextRow words = modGetWords::GetWords(pFile.LineInput(), room);
        if (words.Count() != cols) {
            break; // The table ends before this line.
        }
        myData.push_back(std::move(words));
    }
}

void clsDatFile::LoadCsv(bool pHasHeaders) {
    StopWithoutFileName();
    TextInput file(myFn);
    if (pHasHeaders) {
        file.LineInput();
    }
    if (file.AtEnd()) {
        EmptyTable(static_cast<int>(std::min<std::size_t>(myHeaders.size(), modGetWords::mostWords)));
        KeepFaultOf(file);
        return;
    }
    const TextRow first = modGetWords::GetWords(file.LineInput());
    if (KeepFaultOf(file)) {
        return;
    }
    if (first.Count() > modGetWords::mostWords) {
        LeaveUnread("", {"has too many columns. A table holds at most ",
                         std::to_string(modGetWords::mostWords), "."});
        return;
    }
    Cols(static_cast<std::int16_t>(first.Count()));
    myStoredCols = myCols;
    myData.assign(1, first);
    ReadRowsUpToARaggedOne(file);
    if (KeepFaultOf(file)) {
        return;
    }
    if (std::cmp_greater(myData.size(), mostRows)) {
        LeaveUnread("", {"has too many records. A table holds at most ", std::to_string(mostRows),
                         ", so none were read."});
        return;
    }
    Rows(static_cast<std::int16_t>(myData.size()));
}
