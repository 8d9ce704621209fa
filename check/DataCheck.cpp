// The frame of the check: loading, the first line, and what can be said only at the end.
#include "check/DataCheck.h"

#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Whether pText is made of numbers only, and so isn't a record.
bool IsSizeLine(std::string_view pText) {
    return pText.find_first_not_of("0123456789+-.,;\t \"") == std::string_view::npos;
}

std::string NotRead(std::size_t pLines) {
    return Counted(pLines, "line") + (pLines == 1 ? " is" : " are") + " not read";
}

bool IsByteOrderMark(std::string_view pText) {
    return pText.starts_with(byteOrderMark);
}

/// pFault without the file's name, which stands in front of each finding.
std::string WithoutName(const std::string &pFault, const std::string &pFile) {
    const std::string name = "File " + pFile;
    return pFault.starts_with(name) ? "the file" + pFault.substr(name.size()) : pFault;
}

} // namespace

DataCheck::DataCheck(std::int16_t pFmt, const WantedColumns &pWanted, Findings &pFindings, CleanCopy *pCopy)
    : myFmt(pFmt), myWanted(pWanted), myFindings(pFindings), myCopy(pCopy), myLines(pFindings.File()),
      myUnlisted(pWanted) {}

void DataCheck::Run() {
    LoadAsEditor();
    if (myFmt == clsDatFile::fmtDat) {
        TakeSizeLine();
    } else if (myFmt == clsDatFile::fmtCsvWithHeaders) {
        TakeHeader();
    }
    while (myLines.Next()) {
        TakeLine();
    }
    if (!Fault().empty()) {
        return;
    }
    myLineEnds.Report(myFindings, myLines.Count());
    ReportSize();
    ReportStop();
    myUnlisted.Report(myFindings);
    RequireAllShown();
    if (myCopy != nullptr && myBlanks > 0) {
        myCopy->Note(CleanCopy::Act::LeaveOutBlankLines, 1, myBlanks);
    }
    if (myCopy != nullptr && myLineEnds.LfAlone() > 0) {
        myCopy->Note(CleanCopy::Act::EndLines, myLineEnds.FirstLf(), myLineEnds.LfAlone());
    }
}

void DataCheck::LoadAsEditor() {
    myTable.FileName(myFindings.File());
    myTable.Fmt(myFmt);
    myTable.Headers(TitlesOf(myWanted));
    try {
        myTable.Load();
    } catch (const EditorEnded &end) {
        myLastMessage = end.message;
        myEndsProgram = true;
        return;
    }
    auto rows = static_cast<std::int16_t>(myTable.WasRead() && myTable.Cols() > 0 ? myTable.Rows() : 0);
    // The rows that the .dat reader did not get to have no cells.
    while (rows > 0 && myTable.Row(static_cast<std::int16_t>(rows - 1)).Count() == 0) {
        --rows;
    }
    myRowsRead = static_cast<std::size_t>(rows);
}

std::size_t DataCheck::Shown() const {
    const bool isRefused = !myWanted.empty() && std::cmp_not_equal(myTable.Cols(), myWanted.size());
    return myEndsProgram || isRefused ? 0 : myRowsRead;
}

/// The text of pLine. Reports what the first bytes of the file say of its encoding.
std::string_view DataCheck::WithoutByteOrderMark(const MeantLine &pLine) {
    if (pLine.number != 1) {
        return pLine.text;
    }
    if (pLine.text.starts_with("\xFF\xFE") || pLine.text.starts_with("\xFE\xFF")) {
        const std::string why = "the file is in UTF-16, and the editor takes it for UTF-8";
        myFindings.Add(Kind::Lost, 1, Sort::NotUtf8, why);
        if (myCopy != nullptr) {
            myCopy->Refuse(1, why);
        }
    }
    if (!IsByteOrderMark(pLine.text)) {
        return pLine.text;
    }
    const bool isInHeader = myFmt == clsDatFile::fmtCsvWithHeaders;
    myFindings.Add(Kind::Changed, 1, Sort::ByteOrderMark,
                   isInHeader
                       ? "a byte-order mark stands before the first title; it is lost with the header line"
                       : "a byte-order mark stands at the start; the editor takes it for part of the text");
    if (myCopy != nullptr) {
        myCopy->Note(CleanCopy::Act::DropByteOrderMark, 1);
    }
    return pLine.text.substr(byteOrderMark.size());
}

void DataCheck::TakeSizeLine() {
    if (!myLines.Next()) {
        return;
    }
    const MeantLine &line = myLines.Line();
    const std::string_view text = WithoutByteOrderMark(line);
    CountLineEnd(line);
    const std::size_t comma = text.find(',');
    if (myCopy != nullptr && !IsSizeLine(text)) {
        myCopy->Refuse(line.number, "the first line isn't the numbers of records and columns");
    }
    myHasNumbers = comma != std::string_view::npos && IsSizeLine(text);
    if (line.endsInLf && myHasNumbers) {
        // The editor makes nothing of it. As it was meant, it may still be right.
        const std::int16_t rows = WholeTextInteger(text.substr(0, comma)).value_or(-1);
        const std::int16_t cols = WholeTextInteger(text.substr(comma + 1)).value_or(0);
        if (rows >= 0 && cols > 0) {
            mySize = {static_cast<std::size_t>(rows), static_cast<std::size_t>(cols)};
        }
    } else if (myTable.Cols() > 0 && myTable.Rows() >= 0) {
        mySize = {static_cast<std::size_t>(myTable.Rows()), static_cast<std::size_t>(myTable.Cols())};
    }
}

void DataCheck::TakeHeader() {
    if (!myLines.Next()) {
        return;
    }
    const std::string_view text = WithoutByteOrderMark(myLines.Line());
    mySeparator = SeparatorOf(text, myWanted.size());
    myCells.Begin(mySeparator);
    myCells.Take(text);
    myIsUnclosed = myCells.IsOpen() && !myLines.Join(myCells);
    myCells.End();
    const MeantLine &line = myLines.Line();
    CountLineEnd(line);
    LookAtBytes(line);
    myHasCells = true;
    LookAtBlanks(line);
    if (line.text.find('\r') != std::string_view::npos) {
        myFindings.Add(
            Kind::Lost, line.number, Sort::CrInQuotes,
            "a line end inside quotes ends the header line, so its rest is taken for the first record");
        myIsReading = false;
    }
    if (myIsUnclosed) {
        myFindings.Add(Kind::Lost, line.number, Sort::OpenQuote,
                       "a quote is left open, so nobody can tell where the header line ends");
        myIsReading = false;
    }
    ReportSeparator();
    myTitles = myCells.All().size();
    if (!myWanted.empty()) {
        CompareTitles(line);
    }
    if (myCopy != nullptr) {
        if (IsMalformed()) {
            myCopy->Refuse(line.number, "the quotes of the titles don't match");
        }
        myCopy->Header(line.number, myCells);
    }
}

void DataCheck::ReportSeparator() {
    if (mySeparator != ',') {
        const std::string marks = mySeparator == ';' ? "semicolons" : "tabs";
        myFindings.Add(Kind::Lost, myLines.Line().number, Sort::Separator,
                       marks + " separate the fields, and the editor takes them for text");
        myIsReading = false;
    }
}

void DataCheck::CompareTitles(const MeantLine &pLine) {
    const std::vector<std::string> wanted = TitlesOf(myWanted);
    std::vector<std::string> titles;
    for (const std::string &title : myCells.All()) {
        titles.emplace_back(Trim(title));
    }
    if (titles == wanted) {
        return;
    }
    myOrder = OrderOf(myWanted, titles);
    if (!myOrder.empty()) {
        myFindings.Add(
            Kind::Changed, pLine.number, Sort::Titles,
            "the titles are the specification's in another order; the specification's order would be "
            "written over columns that stay where they are");
        return;
    }
    titles.resize(std::max(titles.size(), wanted.size()));
    for (std::size_t col = 0; col < titles.size(); ++col) {
        const std::string other = col < wanted.size() ? Quoted(wanted[col]) : "none";
        if (col >= wanted.size() || titles[col] != wanted[col]) {
            myFindings.Add(Kind::Changed, pLine.number, Sort::Titles,
                           "the title of column " + std::to_string(col + 1) + " is " + Quoted(titles[col]) +
                               ", and the specification's, which would be written, is " + other);
        }
    }
}

void DataCheck::ReportSize() {
    if (myFmt != clsDatFile::fmtDat) {
        if (myFirstTooMany > 0) {
            myFindings.Add(Kind::Lost, myFirstTooMany, Sort::Limit,
                           "a table holds at most " + std::to_string(clsDatFile::mostRows) +
                               " records, and this is one more, so the editor reads none");
        }
        return;
    }
    const std::string announces = "the first line announces " + Counted(mySize.rows, "record");
    if (myLineEnds.LfAlone() == 0 && myTable.WasRead() && !myTable.Fault().empty()) {
        const std::string askForForm = mySize.rows == 0 ? " Is it CSV? Then say /csv or /csvh." : "";
        myFindings.Add(Kind::Lost, 1, Sort::Size,
                       WithoutName(myTable.Fault(), myFindings.File()) + askForForm);
    } else if (mySize.cols == 0) {
        const std::string what = myHasNumbers ? "announces what no table can have"
                                              : "isn't two numbers, of the records and of the columns";
        myFindings.Add(Kind::Lost, 1, Sort::Size,
                       "the first line " + what +
                           ", so the editor refuses the file. Is it CSV? Then say /csv or /csvh.");
    } else if (mySize.rows < myRecords) {
        myFindings.Add(Kind::Lost, myFirstUnannounced, Sort::Size,
                       announces + ", so from here on " + NotRead(myRecords - mySize.rows));
    } else if (mySize.rows > myRecords) {
        myFindings.Add(Kind::Lost, 1, Sort::Size, announces + ", but there are " + std::to_string(myRecords));
    }
    if (!myWanted.empty() && mySize.cols > 0 && mySize.cols != myWanted.size()) {
        myFindings.Add(Kind::Lost, 1, Sort::Columns,
                       "the first line announces " + Counted(mySize.cols, "column") +
                           " and the specification has " + std::to_string(myWanted.size()) +
                           ", so the editor refuses the file");
    }
    if (myCopy != nullptr && (mySize.rows != myRecords || mySize.cols != myCopy->Cols())) {
        myCopy->Note(CleanCopy::Act::CountRecords, 1);
    }
}

void DataCheck::ReportStop() {
    if (myStop) {
        const std::size_t lines = myRecords - myStop->recordsBefore;
        // A .dat keeps the number of records that it announces.
        const bool areEmpty = std::cmp_greater(myTable.Rows(), myRowsRead);
        const std::string ends =
            areEmpty ? ", so the editor has empty records from here on; " : ", so the table ends before it; ";
        myFindings.Add(Kind::Lost, myStop->line, myStop->sort, myStop->why + ends + NotRead(lines));
    }
}

/// Whatever the walk over the lines has missed: the editor has the last word.
void DataCheck::RequireAllShown() {
    const bool isWhole = Shown() == myRecords && !myEndsProgram && myTable.Fault().empty();
    if (isWhole || myFindings.Of(Kind::Lost) > 0) {
        return;
    }
    const std::string fault = WithoutName(myTable.Fault(), myFindings.File());
    const std::string ends = "the editor ends with the message " + myLastMessage;
    myFindings.Add(Kind::Lost, 1, Sort::FirstLine,
                   myEndsProgram    ? ends
                   : !fault.empty() ? fault
                                    : "the editor reads these lines otherwise");
}
