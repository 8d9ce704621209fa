#include "check/DataCheck.h"

#include "check/Diagnosis.h"
#include "check/MeantTable.h"
#include "check/Silence.h"
#include "check/SpecCheck.h"
#include "data/modGetWords.h"
#include "text/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace {

int FeedsIn(std::string_view pLine) {
    const std::size_t first = pLine.find('\n'); // Most lines have none.
    return first == std::string_view::npos
               ? 0
               : static_cast<int>(
                     std::count(pLine.begin() + static_cast<std::ptrdiff_t>(first), pLine.end(), '\n'));
}

std::string Joined(const TextRow &pTexts) {
    std::string joined;
    for (int place = 1; place <= pTexts.Count(); ++place) {
        joined += (place > 1 ? ", " : "") + std::string(pTexts(place));
    }
    return joined;
}

} // namespace

DataCheck::DataCheck(const Runtime &pRuntime, const std::string &pFile, std::int16_t pFmt,
                     const SpecCheck *pSpec)
    : myFindings(pFile), myTable(pRuntime), myFmt(pFmt), mySpec(pSpec) {
    if (Dir(pFile).empty()) {
        myReadFault = "File " + pFile + " doesn't exist.";
        return;
    }
    myTable.FileName(pFile);
    myTable.Fmt(pFmt);
    if (mySpec != nullptr) {
        myTable.Headers(mySpec->Titles());
        myUnlisted.resize(mySpec->Columns().size());
    }
    TextInput file(pFile);
    if (HasLineBeforeRows() && !file.AtEnd()) {
        CheckFirstLine(file.LineInput());
    }
    Load();
}

void DataCheck::CheckFirstLine(std::string_view pLine) {
    if (myFmt == clsDatFile::fmtCsvWithHeaders) {
        CheckTitles(LinesWithin(pLine).front());
    }
    CheckText(pLine, /*pHasHead=*/true);
    myLine += 1 + FeedsIn(pLine);
}

void DataCheck::CheckTitles(std::string_view pLine) {
    if (pLine.starts_with(byteOrderMark)) {
        myFindings.Add(1, Kind::Changed, "byte-order mark",
                       "the file begins with a byte-order mark, which is lost with the header line");
        pLine.remove_prefix(byteOrderMark.size());
    }
    if (mySpec == nullptr) {
        return;
    }
    const TextRow titles = modGetWords::GetWords(pLine);
    const TextRow wanted(mySpec->Titles());
    if (Joined(titles) != Joined(wanted)) {
        myFindings.Add(1, Kind::Changed, "titles",
                       "the titles are not the specification's; the editor would write " + Joined(wanted));
    }
}

void DataCheck::Load() {
    myTable.Watch([this](std::string_view pLine, const TextRow &pWords) { Saw(pLine, pWords); });
    try {
        myTable.Load();
    } catch (const Stopped &stopped) {
        myWasStopped = true;
        Lost(myLastLine, "stop", "the editor shows \"" + stopped.message + "\" and ends");
    }
    if (myTable.Fault().find(" can't be read: ") != std::string::npos) {
        myReadFault = myTable.Fault();
        return;
    }
    if (!myTable.Fault().empty()) {
        Lost(1, "refused", myTable.Fault());
    } else if (myFmt == clsDatFile::fmtDat && myTable.Cols() == 0) {
        Lost(1, "counts", "the first line is not the number of records and the number of columns");
    }
    CheckColumns();
    if (myHasMisfit || !myTable.ReachedEnd()) {
        CheckRest();
    }
    TellValues();
}

void DataCheck::Saw(std::string_view pLine, const TextRow &pWords) {
    if (mySeen++ == 0) {
        CheckFirstRow(pLine, pWords);
    }
    CheckText(pLine, /*pHasHead=*/false);
    myLastLine = myLine;
    myLine += 1 + FeedsIn(pLine);
    if (pWords.Count() == myCols && myCols > 0) {
        ++myFitting;
        CheckValues(pWords);
    } else {
        myMisfit = pLine;
        myMisfitWords = pWords.Count();
        myHasMisfit = true;
    }
}

void DataCheck::CheckFirstRow(std::string_view pLine, const TextRow &pWords) {
    myFirstRowLine = myLine;
    myCols = myFmt == clsDatFile::fmtDat ? myTable.Cols() : pWords.Count();
    if (myFmt == clsDatFile::fmtCsv && pLine.starts_with(byteOrderMark)) {
        myFindings.Add(myLine, Kind::Changed, "byte-order mark",
                       "the file begins with a byte-order mark, which is kept as text of the first cell");
    }
    const char separator = SeparatorOf(pLine);
    if (separator != ',' && pWords.Count() == 1) {
        Lost(myLine, "separator",
             std::string("the separator is a ") + (separator == ';' ? "semicolon" : "tab") +
                 ", and the editor knows only the comma");
    }
}

void DataCheck::CheckText(std::string_view pLine, bool pHasHead) {
    const int feeds = FeedsIn(pLine);
    myFeeds += feeds;
    const auto lines = feeds == 0 ? std::vector{pLine} : LinesWithin(pLine);
    if (lines.size() == 1) {
        CheckBytes(myLine, pLine);
        return;
    }
    Lost(myLine, "LF alone",
         "LF alone ends " + Counted(static_cast<long long>(lines.size()) - 1, "line") +
             " from here on; the editor reads them as one");
    // With the right line ends, these would be lines of their own.
    int cols = mySpec != nullptr ? static_cast<int>(mySpec->Columns().size()) : myCols;
    int number = myLine;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        CheckBytes(number, lines[at]);
        const int words = modGetWords::GetWords(lines[at]).Count();
        const bool isRow = !(pHasHead && at == 0) && !Trim(lines[at]).empty();
        cols = isRow && cols == 0 ? words : cols;
        if (isRow && (words != cols || words == 0)) {
            TellFurther(number, lines[at], words, cols);
        }
        number += 1 + FeedsIn(lines[at]);
    }
}

void DataCheck::TellFurther(int pLine, std::string_view pText, int pWords, int pCols) {
    Lost(pLine, "further", WhyNoRow(pText, pWords, pCols, {}) + "; the table would end before this line too");
}

void DataCheck::CheckBytes(int pLine, std::string_view pText) {
    const int blanks = CellsWithBlankEnds(pText);
    if (blanks > 0) {
        myFindings.Add(pLine, Kind::Changed, "blanks",
                       "blanks at the ends of " + Counted(blanks, "cell") + " are not kept");
    }
    if (!IsUtf8(pText)) {
        myFindings.Add(pLine, Kind::Note, "not UTF-8", "bytes that are not UTF-8");
    }
    if (pText.find('\0') != std::string_view::npos) {
        myFindings.Add(pLine, Kind::Note, "NUL", "a NUL byte");
    }
}

void DataCheck::CheckValues(const TextRow &pWords) {
    for (std::size_t column = 0; column < myUnlisted.size(); ++column) {
        const auto &listed = mySpec->Listed(column);
        if (!listed) {
            continue;
        }
        const std::string_view text = pWords(static_cast<int>(column) + 1);
        std::string lower = LCase(text);
        if (!listed->contains(lower)) {
            const Value first{std::string(text), myLastLine, 0};
            ++myUnlisted[column].try_emplace(std::move(lower), first).first->second.records;
        }
    }
}

void DataCheck::TellValues() {
    for (std::size_t column = 0; column < myUnlisted.size(); ++column) {
        for (const auto &[lower, value] : myUnlisted[column]) {
            const SpecColumn &asked = mySpec->Columns()[column];
            myFindings.Add(value.line, Kind::Note, "not listed",
                           Quoted(value.text) + " of " + Quoted(Trim(asked.heading)) + " is not in " +
                               asked.listFile + " (" + Counted(value.records, "record") + ")");
        }
    }
}

void DataCheck::CheckColumns() {
    const bool isRead = mySpec != nullptr && myTable.WasRead() && !myWasStopped && myFitting > 0;
    if (isRead && std::cmp_not_equal(myTable.Cols(), mySpec->Columns().size())) {
        myIsOther = true;
        Lost(myFirstRowLine, "columns",
             "the table has " + Counted(myTable.Cols(), "column") + " and the specification " +
                 std::to_string(mySpec->Columns().size()) + ", so the editor shows nothing of it");
    }
}

void DataCheck::CheckRest() {
    TextInput file(myFindings.File());
    for (int line = 0; line < mySeen + (HasLineBeforeRows() ? 1 : 0); ++line) {
        file.LineInput();
    }
    int unread = 0;
    int firstUnread = 0;
    std::string next;
    while (!file.AtEnd()) {
        const std::string_view line = file.LineInput();
        next = unread == 0 && next.empty() ? std::string(line) : next;
        if (!Trim(line).empty()) {
            firstUnread = unread++ == 0 ? myLine : firstUnread;
        }
        const int words = modGetWords::GetWords(line).Count();
        if (myHasMisfit && myCols > 0 && words != myCols && !Trim(line).empty()) {
            TellFurther(myLine, line, words, myCols);
        }
        myLine += 1 + FeedsIn(line);
    }
    const int lost = unread + (Trim(myMisfit).empty() ? 0 : 1);
    if (myHasMisfit && lost > 0) {
        Lost(myLastLine, "end",
             WhyNoRow(myMisfit, myMisfitWords, myCols, next) + ", so the table ends before it; " +
                 Counted(lost, "line") + (lost == 1 ? " is" : " are") + " not read");
    } else if (unread > 0 && myTable.WasRead() && myTable.Cols() > 0) {
        Lost(firstUnread, "announced",
             "the first line announces " + Counted(myTable.Rows(), "record") + "; this line" +
                 (unread > 1 ? " and " + std::to_string(unread - 1) + " more are" : " is") + " not read");
    }
}

int DataCheck::RecordsInEditor() const {
    return myWasStopped || myIsOther || !myTable.WasRead() ? 0 : myFitting;
}
