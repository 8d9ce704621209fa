#include "data/clsDatFile.h"

#include "system/Files.h"
#include "system/Memory.h"
#include "text/Numbers.h"

#include <exception>
#include <utility>

namespace {

/// Room for the words of a fault beside the file's name: the system's reason, and our own.
constexpr std::size_t mostFaultBytes = Reason::mostBytes + 250;

constexpr std::string_view notEnoughMemory = "There is not enough memory for it";

std::string OutOfBounds(const std::string &pWhat, std::int16_t pValue) {
    return "clsDatFile." + pWhat + " out of bounds (" + Str(pValue) + ")";
}

} // namespace

void clsDatFile::FileName(std::string fn) {
    myFault.reserve(fn.size() + mostFaultBytes);
    myCause.reserve(mostFaultBytes);
    myFn = std::move(fn);
}

bool clsDatFile::Exists() const {
    return !myFn.empty() && !Dir(myFn).empty();
}

std::string clsDatFile::FileType() const {
    return HasFormat() && myFmt != fmtDat ? "csv" : "dat";
}

void clsDatFile::Rows(std::int16_t n) {
    if (n < 1) {
        Stop(OutOfBounds("Rows", n));
    }
    myRows = n;
}

void clsDatFile::Cols(std::int16_t n) {
    if (n < 1) {
        Stop(OutOfBounds("Cols", n));
    }
    myCols = n;
}

bool clsDatFile::IsStored(int pRow, int pCol) const {
    return pRow >= 0 && pRow < myRows && std::cmp_less(pRow, myData.size()) && pCol >= 0 && pCol < myCols &&
           pCol < myStoredCols;
}

void clsDatFile::Data(std::int16_t pRow, std::int16_t pCol, const std::string &pValue) {
    if (IsStored(pRow, pCol)) {
        myData[static_cast<std::size_t>(pRow)].Set(pCol + 1, pValue);
    }
}

std::string clsDatFile::Data(std::int16_t pRow, std::int16_t pCol) const {
    return IsStored(pRow, pCol) ? std::string(myData[static_cast<std::size_t>(pRow)](pCol + 1))
                                : std::string();
}

void clsDatFile::Row(std::int16_t pRow, TextRow pCells) {
    if (IsStored(pRow, 0)) {
        myData[static_cast<std::size_t>(pRow)] = std::move(pCells);
    }
}

TextRow clsDatFile::Row(std::int16_t pRow) const {
    return IsStored(pRow, 0) ? myData[static_cast<std::size_t>(pRow)] : TextRow();
}

std::vector<std::string> clsDatFile::Col(std::int16_t x) const {
    std::vector<std::string> column;
    for (std::int16_t row = 0; row < myRows; ++row) {
        column.push_back(Data(row, x));
    }
    return column;
}

void clsDatFile::MoveRowUp(std::int16_t pRow) {
    if (pRow < 1 || pRow >= myRows) {
        return;
    }
    const auto above = static_cast<std::int16_t>(pRow - 1);
    for (std::int16_t col = 0; col < myCols; ++col) {
        const std::string kept = Data(above, col);
        Data(above, col, Data(pRow, col));
        Data(pRow, col, kept);
    }
}

void clsDatFile::Clear() {
    myData.assign(static_cast<std::size_t>(myRows), {});
    myStoredCols = myCols;
}

bool clsDatFile::HasFormat() const {
    return myFmt == fmtDat || myFmt == fmtCsv || myFmt == fmtCsvWithHeaders;
}

void clsDatFile::Load() {
    if (!HasFormat()) {
        return;
    }
    myFault.clear();
    myCause.clear();
    myWasRead = true;
    const bool isDone = HasMemoryFor([this] {
        const Headroom headroom;
        return myFmt == fmtDat ? LoadDat() : LoadCsv(/*pHasHeaders=*/myFmt == fmtCsvWithHeaders);
    });
    if (!isDone) {
        GiveUpLoading();
    }
}

void clsDatFile::GiveUpLoading() {
    LeaveUnread("can't be read: ", {notEnoughMemory}, ".");
}

void clsDatFile::Save() {
    if (!HasFormat()) {
        return;
    }
    myFault.clear();
    myCause.clear();
    const bool isDone = HasMemoryFor(
        [this] { return myFmt == fmtDat ? SaveDat() : SaveCsv(/*pHasHeaders=*/myFmt == fmtCsvWithHeaders); });
    if (!isDone) {
        // The writers get all their memory before they touch the file.
        KeepFault("can't be saved: ", {notEnoughMemory}, {". The records are still in the list."});
    }
}

void clsDatFile::Stop(const std::string &pText) const {
    myStop(pText);
    std::terminate();
}

void clsDatFile::StopWithoutFileName() const {
    if (myFn.empty()) {
        Stop("clsDatFile.Load: Filename not set");
    }
}

/// Needs no memory: FileName has got it.
void clsDatFile::KeepFault(std::string_view pBefore, Pieces pCause, Pieces pAfter) {
    myCause.clear();
    for (const std::string_view piece : pCause) {
        myCause.append(piece);
    }
    myFault.assign("File ").append(myFn).append(" ").append(pBefore).append(myCause);
    for (const std::string_view piece : pAfter) {
        myFault.append(piece);
    }
}

void clsDatFile::LeaveUnread(std::string_view pBefore, Pieces pCause, std::string_view pAfter) {
    EmptyTable(0);
    myWasRead = false;
    KeepFault(pBefore, pCause, {pAfter});
}

bool clsDatFile::KeepFaultOf(const TextInput &pFile) {
    if (pFile.Fault().empty()) {
        return false;
    }
    LeaveUnread("can't be read: ", {pFile.Fault()}, ".");
    return true;
}

void clsDatFile::EmptyTable(int pCols) {
    myRows = 0;
    myCols = static_cast<std::int16_t>(pCols);
    Clear();
}
