#include "data/SpecColumns.h"

#include "data/clsDatFile.h"
#include "system/Files.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <optional>

namespace {

/// The columns of a specification.
constexpr std::int16_t specCols = 4;
constexpr std::int16_t headingCol = 0;
constexpr std::int16_t widthCol = 1;
constexpr std::int16_t modeCol = 2;
constexpr std::int16_t listCol = 3;

bool IsEmptyRow(const clsDatFile &pSpec, std::int16_t pRow) {
    bool isEmpty = true;
    for (std::int16_t col = 0; col < specCols; ++col) {
        isEmpty = isEmpty && pSpec.Data(pRow, col).empty();
    }
    return isEmpty;
}

/// The fault of the table as a whole; empty when it has none.
std::string TableFault(const clsDatFile &pSpec) {
    if (!pSpec.WasRead()) {
        return pSpec.Fault();
    }
    if (pSpec.Cols() != specCols) {
        return "It should have 4 columns.";
    }
    if (!pSpec.Fault().empty()) {
        return pSpec.Fault();
    }
    return pSpec.Rows() < 1 ? "It has no rows." : "";
}

/// Reads row pRow into pColumn, whose place is set already. Returns the fault of the row, or an empty text.
std::string ReadRow(const clsDatFile &pSpec, std::int16_t pRow, SpecColumn &pColumn) {
    const std::string row = "Row " + std::to_string(pRow + 1) + " ";
    if (IsEmptyRow(pSpec, pRow)) {
        return row + "is empty: its fields are, or its line or one before it doesn't have 4 fields.";
    }
    const std::string width = pSpec.Data(pRow, widthCol);
    const std::optional<std::int16_t> listPercent = WholeTextInteger(width);
    if (!listPercent) {
        return row + "has the width " + Quoted(width) + ", which is not a number from -32768 to 32767.";
    }
    pColumn.heading = pSpec.Data(pRow, headingCol);
    pColumn.listPercent = *listPercent;
    pColumn.percent = Val(width);
    pColumn.listFile = pSpec.Data(pRow, listCol);
    pColumn.isTextBox = pColumn.listFile == "-";
    if (pColumn.isTextBox) {
        return {};
    }
    const std::string mode = pSpec.Data(pRow, modeCol);
    const std::optional<std::int16_t> modeNumber = Integer16(Val(mode));
    pColumn.mode = modeNumber.value_or(0);
    return modeNumber ? "" : row + "has the mode " + Quoted(mode) + ", which is beyond -32768 to 32767.";
}

} // namespace

std::string SpecColumn::ListPath(const std::string &pProgramFolder) const {
    return NamedOrBeside(listFile, pProgramFolder);
}

SpecColumns::SpecColumns(const clsDatFile &pSpec) : myFault(TableFault(pSpec)) {
    std::int16_t place = 0;
    for (std::int16_t row = 0; row < pSpec.Rows() && myFault.empty(); ++row) {
        SpecColumn column;
        column.place = place;
        myFault = ReadRow(pSpec, row, column);
        const std::optional<std::int16_t> next = Integer16(place + column.percent);
        if (myFault.empty() && !next) {
            myFault =
                "Row " + std::to_string(row + 1) + " brings the sum of the widths beyond -32768 to 32767.";
        }
        place = next.value_or(0);
        myColumns.push_back(std::move(column));
    }
}
