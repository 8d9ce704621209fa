// The two readers. They differ in how they learn the table's size and in what a ragged line leaves: the .dat
// reader keeps the announced number of rows, the rest of them empty; the CSV reader has just the rows before.
#include "data/clsDatFile.h"

#include "data/modGetWords.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace {

using modGetWords::GetWords;

/// A number of rows from here on says nothing to a reader. It may have hundreds of digits, or be an infinity.
constexpr double mostShownRows = 1e9;

/// One of the two numbers on the first line. Text that isn't numeric counts as 0.
double SizeItem(std::string_view pItem) {
    return WholeNumber(pItem).value_or(0);
}

std::size_t WordCount(const std::vector<std::string> &pWords) {
    return pWords.size() - 1;
}

} // namespace

std::vector<std::string> clsDatFile::NextRow(TextInput &pFile) {
    return GetWords(pFile.LineInput());
}

void clsDatFile::StoreRow(int pRow, std::vector<std::string> pWords) {
    std::vector<std::string> &row = myData[static_cast<std::size_t>(pRow)];
    row.assign(std::make_move_iterator(pWords.begin() + 1), std::make_move_iterator(pWords.end()));
}

void clsDatFile::TakeSizeFrom(TextInput &pFile) {
    const std::optional<std::string_view> rowsItem = pFile.InputItem();
    const std::optional<std::string_view> colsItem = pFile.InputItem();
    pFile.LineInput(); // Whatever else the first line holds.
    const std::optional<std::int16_t> fittingCols = colsItem ? Integer16(SizeItem(*colsItem)) : std::nullopt;
    if (!rowsItem || !fittingCols || *fittingCols < 0) {
        EmptyTable(0);
        return;
    }
    const double rows = SizeItem(*rowsItem);
    const std::optional<std::int16_t> fittingRows = Integer16(rows);
    if (!fittingRows && rows > mostRows) {
        EmptyTable(static_cast<std::size_t>(*fittingCols));
        const std::string announced = rows < mostShownRows ? FormatWhole(rows) : "far too many";
        Refuse(Fault::Kind::WrongSize, "announces " + announced + " records. A table holds at most " +
                                           std::to_string(mostRows) + ", so none were read.");
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
        // An empty list without a word would be taken for the file, and saved over it.
        Refuse(Fault::Kind::WrongSize, "doesn't begin with the number of its records, so none were read.");
    }
}

void clsDatFile::LoadDat() {
    StopWithoutFileName();
    TextInput file(myFn);
    if (TakeFaultOf(file)) {
        return;
    }
    TakeSizeFrom(file);
    for (std::int16_t row = 0; row < myRows; ++row) {
        if (file.AtEnd()) {
            Refuse(Fault::Kind::WrongSize, "is too short. Its first line announces " +
                                               std::to_string(myRows) + " records, but it holds only " +
                                               std::to_string(row) + ".");
            myRows = row;
            myData.resize(static_cast<std::size_t>(row));
            return;
        }
        std::vector<std::string> words = NextRow(file);
        if (WordCount(words) != static_cast<std::size_t>(myCols)) {
            return; // The rows from here on stay empty, and myRows stays as announced.
        }
        StoreRow(row, std::move(words));
    }
}

std::vector<std::vector<std::string>> clsDatFile::RowsFrom(std::vector<std::string> pFirst,
                                                           TextInput &pFile) {
    std::vector<std::vector<std::string>> rows;
    rows.push_back(std::move(pFirst));
    while (!pFile.AtEnd() && std::cmp_less_equal(rows.size(), mostRows)) {
        std::vector<std::string> words = NextRow(pFile);
        if (words.size() != rows.front().size()) {
            break; // The table ends before this line.
        }
        rows.push_back(std::move(words));
    }
    return rows;
}

void clsDatFile::LoadCsv(bool pHasHeaders) {
    StopWithoutFileName();
    TextInput file(myFn);
    if (TakeFaultOf(file)) {
        return;
    }
    if (pHasHeaders) {
        file.LineInput();
    }
    if (file.AtEnd()) {
        EmptyTable(std::min(myHeaders.size(), modGetWords::mostWords));
        return;
    }
    std::vector<std::string> first = NextRow(file);
    const std::size_t cols = WordCount(first);
    if (cols > modGetWords::mostWords) {
        EmptyTable(0);
        Refuse(Fault::Kind::NotRead,
               "has too many columns. A table holds at most " + std::to_string(modGetWords::mostWords) + ".");
        return;
    }
    Cols(static_cast<std::int16_t>(cols));
    std::vector<std::vector<std::string>> rows = RowsFrom(std::move(first), file);
    if (std::cmp_greater(rows.size(), mostRows)) {
        EmptyTable(0);
        Refuse(Fault::Kind::NotRead, "has too many records. A table holds at most " +
                                         std::to_string(mostRows) + ", so none were read.");
        return;
    }
    Rows(static_cast<std::int16_t>(rows.size()));
    Clear();
    for (int row = 0; row < myRows; ++row) {
        StoreRow(row, std::move(rows[static_cast<std::size_t>(row)]));
    }
}
