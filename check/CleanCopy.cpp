#include "check/CleanCopy.h"

#include "check/MeantCells.h"
#include "data/clsDatFile.h"
#include "data/modGetWords.h"
#include "system/Files.h"
#include "system/Memory.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace {

/// pCell as the editor can keep it: a line break would end its line, and blanks at its ends would go.
std::string Kept(const std::string &pCell) {
    return std::string(Trim(WithoutNewLineBreaks("", pCell)));
}

bool HasLineBreak(const std::string &pCell) {
    return pCell.find_first_of("\r\n") != std::string::npos;
}

bool IsSame(const TextRow &pOne, const TextRow &pOther) {
    const std::span<const TextRow::Offset> ends = pOne.Ends();
    const std::span<const TextRow::Offset> others = pOther.Ends();
    return std::equal(ends.begin(), ends.end(), others.begin(), others.end()) && pOne.Run() == pOther.Run();
}

std::string ActText(CleanCopy::Act pAct, std::size_t pLines) {
    const std::string lines = Counted(pLines, "line");
    switch (pAct) {
    case CleanCopy::Act::DropByteOrderMark:
        return "the byte-order mark is left out";
    case CleanCopy::Act::EndLines:
        return lines + " got the line end CR LF";
    case CleanCopy::Act::Separate:
        return lines + " got commas between the fields";
    case CleanCopy::Act::Reorder:
        return "the columns are put into the specification's order, in " + lines;
    case CleanCopy::Act::CountRecords:
        return "the numbers of records and columns are counted";
    case CleanCopy::Act::LeaveOutBlankLines:
        return lines + " without text left out";
    case CleanCopy::Act::Fill:
        return lines + " with too few fields filled with empty ones";
    case CleanCopy::Act::DropEmptyFields:
        return lines + " with too many fields lost empty ones at the end";
    case CleanCopy::Act::JoinLines:
        return "line breaks inside cells made blanks, in " + lines;
    default:
        return "blanks at the ends of cells left out, in " + lines;
    }
}

} // namespace

void CleanCopy::Note(Act pAct, std::size_t pLine, std::size_t pLines) {
    Done &done = myDone[static_cast<std::size_t>(pAct)];
    done.firstLine = done.lines == 0 ? pLine : done.firstLine;
    done.lines += pLines;
}

void CleanCopy::Refuse(std::size_t pLine, const std::string &pWhy) {
    if (myFault.empty()) {
        myFault = (pLine > 0 ? "line " + std::to_string(pLine) + " of the file: " : "") + pWhy;
    }
}

/// Brings pCells into the form and the number that the copy has. False when it can't.
bool CleanCopy::MakeFit(std::size_t pLine, std::vector<std::string> &pCells) {
    if (std::any_of(pCells.begin(), pCells.end(), HasLineBreak)) {
        Note(Act::JoinLines, pLine);
    }
    std::transform(pCells.begin(), pCells.end(), pCells.begin(), Kept);
    const std::size_t fields = pCells.size();
    if (fields < myCols) {
        Note(Act::Fill, pLine);
    } else if (fields > myCols) {
        const bool areEmpty = std::all_of(pCells.begin() + static_cast<std::ptrdiff_t>(myCols), pCells.end(),
                                          [](const std::string &pCell) { return pCell.empty(); });
        if (!areEmpty) {
            Refuse(pLine, Counted(fields, "field") + ", not " + std::to_string(myCols) +
                              ", and those at the end are not empty");
            return false;
        }
        Note(Act::DropEmptyFields, pLine);
    }
    pCells.resize(myCols);
    return true;
}

bool CleanCopy::HasRoom(std::size_t pLine) {
    if (std::cmp_equal(myRows.size(), clsDatFile::mostRows)) {
        Refuse(pLine, "a table holds at most " + std::to_string(clsDatFile::mostRows) + " records");
    }
    if (std::cmp_greater(myCols, modGetWords::mostWords)) {
        Refuse(pLine, "a table holds at most " + std::to_string(modGetWords::mostWords) + " columns");
    }
    return myFault.empty();
}

void CleanCopy::Header(std::size_t pLine, const MeantCells &pTitles) {
    myTitles = pTitles.All();
    myTitlesLine = pLine;
    myCols = myWanted.empty() ? myTitles.size() : myWanted.size();
    if (!MakeFit(pLine, myTitles)) {
        return;
    }
    myOrder = OrderOf(myWanted, myTitles);
    if (!myOrder.empty()) {
        myTitles = TitlesOf(myWanted);
        Note(Act::Reorder, pLine);
    }
}

void CleanCopy::Cols(std::size_t pCols) {
    myCols = pCols;
    if (myTitlesLine > 0 && myTitles.size() < myCols) {
        Note(Act::Fill, myTitlesLine);
        myTitles.resize(myCols);
    }
}

TextRow CleanCopy::InOrder(const std::vector<std::string> &pCells) const {
    std::vector<std::string> cells;
    for (const std::size_t from : myOrder) {
        cells.push_back(pCells[from]);
    }
    return TextRow(myOrder.empty() ? pCells : cells);
}

void CleanCopy::Record(std::size_t pLine, const TextRow &pWords) {
    if (!HasRoom(pLine)) {
        return;
    }
    if (myOrder.empty()) {
        myRows.push_back(pWords); // The very block that the editor's reader made.
        return;
    }
    std::vector<std::string> cells;
    for (int place = 1; place <= pWords.Count(); ++place) {
        cells.emplace_back(pWords(place));
    }
    Note(Act::Reorder, pLine);
    myRows.push_back(InOrder(cells));
}

void CleanCopy::Record(std::size_t pLine, const MeantCells &pCells) {
    std::vector<std::string> cells = pCells.All();
    if (!HasRoom(pLine) || !MakeFit(pLine, cells)) {
        return;
    }
    if (!myOrder.empty()) {
        Note(Act::Reorder, pLine);
    }
    myRows.push_back(InOrder(cells));
}

void CleanCopy::Write(const std::string &pFile) {
    if (myFault.empty() && myRows.empty()) {
        myFault = "there are no records";
    }
    if (myFault.empty()) {
        myFault = os::MakeNewFile(pFile).Words();
    }
    if (!myFault.empty()) {
        return; // Nothing has been made, and what may be there is somebody's.
    }
    bool isWritten = false;
    const bool hasMemory = HasMemoryFor([&] { isWritten = Fill(pFile); });
    if (!isWritten) {
        os::RemoveFile(pFile);
    }
    if (!hasMemory) {
        myFault = "there is not enough memory";
    }
}

bool CleanCopy::Fill(const std::string &pFile) {
    clsDatFile table([](std::string_view /*pText*/) { std::terminate(); }); // It has rows and columns.
    table.FileName(pFile);
    table.Fmt(myFmt);
    table.Headers(myTitles);
    table.Rows(static_cast<std::int16_t>(myRows.size()));
    table.Cols(static_cast<std::int16_t>(myCols));
    table.Clear();
    for (std::int16_t row = 0; row < table.Rows(); ++row) {
        table.Row(row, myRows[static_cast<std::size_t>(row)]);
    }
    table.Save();
    myFault = table.Cause();
    if (myFault.empty() && !ReadsBack(pFile)) {
        myFault = "it did not come back as it was written";
    }
    return myFault.empty();
}

/// Whether pFile has exactly the records of the copy: line by line, as the editor reads them.
bool CleanCopy::ReadsBack(const std::string &pFile) const {
    TextInput file(pFile);
    TextRowRoom room;
    if (myFmt == clsDatFile::fmtDat) {
        const std::string size = std::to_string(myRows.size()) + "," + std::to_string(myCols);
        if (file.LineInput() != size) {
            return false;
        }
    } else if (myFmt == clsDatFile::fmtCsvWithHeaders) {
        if (!IsSame(modGetWords::GetWords(file.LineInput(), room), TextRow(myTitles))) {
            return false;
        }
    }
    const auto comesBack = [&](const TextRow &pRow) {
        return IsSame(modGetWords::GetWords(file.LineInput(), room), pRow);
    };
    return std::all_of(myRows.begin(), myRows.end(), comesBack) && file.AtEnd() && file.Fault().empty();
}

void CleanCopy::Report(Findings &pFindings) const {
    for (std::size_t act = 0; act < myDone.size(); ++act) {
        if (const Done &done = myDone[act]; done.lines > 0) {
            pFindings.Add(Kind::Note, done.firstLine, Sort::Copy,
                          "in the copy " + ActText(static_cast<Act>(act), done.lines));
        }
    }
}
