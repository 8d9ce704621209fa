// The check of one line after the other.
#include "check/DataCheck.h"

#include "data/modGetWords.h"
#include "text/Text.h"

#include <algorithm>
#include <cstring>

namespace {

/// The words why the editor sees no fields in pLine, and the sort of that.
std::pair<Sort, std::string> WhyNoWords(std::string_view pLine, char pSeparator) {
    MeantCells cells;
    cells.Begin(pSeparator);
    cells.Take(pLine);
    if (cells.IsOpen()) {
        return {Sort::OpenQuote, "a quote is left open"};
    }
    if (cells.HasTextAfterQuote()) {
        return {Sort::TextAfterQuote, "text follows a closing quote"};
    }
    return {Sort::CommaAtEnd, "the line ends in a comma"};
}

/// How many bytes of pText, from pAt on, are ASCII; eight at a time, and so perhaps a few too few.
std::size_t AsciiAt(std::string_view pText, std::size_t pAt) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    const std::size_t from = pAt;
    std::uint64_t bytes = 0;
    while (pAt + sizeof bytes <= pText.size()) {
        std::memcpy(&bytes, pText.data() + pAt, sizeof bytes);
        if ((bytes & highBits) != 0) {
            break;
        }
        pAt += sizeof bytes;
    }
    return pAt - from;
}

bool IsUtf8(std::string_view pText) {
    for (std::size_t at = AsciiAt(pText, 0); at < pText.size();) {
        const CodePoint character = CodePointAt(pText, at);
        if (!character.isValid) {
            return false;
        }
        at += character.length;
        at += character.length > 1 ? AsciiAt(pText, at) : 0;
    }
    return true;
}

/// Whether a blank of pLine stands where it could be at the end of a cell. The loop has no branches, so that
/// the compiler can take many bytes at a time.
bool MayHaveBlanksAtEnds(std::string_view pLine) {
    if (pLine.empty() || pLine.front() == ' ' || pLine.back() == ' ') {
        return !pLine.empty();
    }
    const auto isBorder = [](char pCharacter) { return (pCharacter == ',') | (pCharacter == '"'); };
    const char *const bytes = pLine.data();
    unsigned char found = 0;
    for (std::size_t at = 1; at + 1 < pLine.size(); ++at) {
        const bool isAtEnd = isBorder(bytes[at - 1]) | isBorder(bytes[at + 1]);
        found = static_cast<unsigned char>(found | ((bytes[at] == ' ') & isAtEnd));
    }
    return found != 0;
}

} // namespace

/// The words that the editor finds in pLine, or would find if its ends were right.
TextRow DataCheck::WordsOf(const MeantLine &pLine) {
    const std::size_t linesBefore = myFmt == clsDatFile::fmtCsv ? 0 : 1;
    if (pLine.editorLine && *pLine.editorLine >= linesBefore &&
        *pLine.editorLine - linesBefore < myRowsRead) {
        return myTable.Row(static_cast<std::int16_t>(*pLine.editorLine - linesBefore));
    }
    return modGetWords::GetWords(pLine.text, myRoom);
}

void DataCheck::TakeLine() {
    const MeantLine &line = myLines.Line();
    if (Trim(line.text).empty()) {
        CountLineEnd(line);
        myFirstBlank = myFirstBlank == 0 ? line.number : myFirstBlank;
        ++myBlanks;
        return;
    }
    ReportBlankLines();
    TextRow words = WordsOf(line);
    myHasCells = false;
    const bool isPlain = mySeparator == ',' && myRecords > 0 && std::cmp_equal(words.Count(), myCols);
    if (!isPlain || (myCopy != nullptr && myCopy->Cols() != myCols)) {
        words = TakeCells(std::move(words));
    }
    CountLineEnd(line);
    if (myRecords == 0) {
        SettleCols(words);
    }
    LookAtBytes(line);
    LookAtBlanks(line);
    Judge(words);
    LookUp(words);
    if (myCopy != nullptr) {
        GiveToCopy(words);
    }
    ++myRecords;
    myIsReading = myIsReading && (myFmt != clsDatFile::fmtDat || myRecords < mySize.rows);
    myFirstUnannounced = myRecords == mySize.rows + 1 ? line.number : myFirstUnannounced;
    myFirstTooMany = std::cmp_equal(myRecords, clsDatFile::mostRows + 1) ? line.number : myFirstTooMany;
}

/// Reads the line's cells as they were meant, joining lines where quotes go on. Returns its words, which are
/// pWords unless lines were joined.
TextRow DataCheck::TakeCells(TextRow pWords) {
    const std::string_view text = WithoutByteOrderMark(myLines.Line());
    if (mySeparator == '\0') {
        mySeparator = SeparatorOf(text, myWanted.size());
        ReportSeparator();
    }
    myCells.Begin(mySeparator);
    myCells.Take(text);
    const bool isOpen = myCells.IsOpen();
    myIsUnclosed = isOpen && !myLines.Join(myCells);
    myCells.End();
    myHasCells = true;
    return isOpen && !myIsUnclosed ? WordsOf(myLines.Line()) : std::move(pWords);
}

/// Settles how many fields a line should have, by the first record.
void DataCheck::SettleCols(const TextRow &pWords) {
    const MeantLine &line = myLines.Line();
    const bool isDat = myFmt == clsDatFile::fmtDat;
    const std::size_t meant = std::max(myCells.All().size(), mySize.cols);
    const std::size_t found = isDat ? mySize.cols : FieldsOf(pWords);
    const std::size_t unwanted = found > 0 ? found : std::max<std::size_t>(myTitles, meant);
    myCols = myWanted.empty() ? unwanted : myWanted.size();
    if (myCopy != nullptr) {
        myCopy->Cols(myWanted.empty() ? std::max(meant, myTitles) : myWanted.size());
    }
    if (myWanted.empty() && myTitles > 0 && found > 0 && found != myTitles) {
        myFindings.Add(Kind::Changed, 1, Sort::Titles,
                       "the header line has " + Counted(myTitles, "field") + " and the first record " +
                           std::to_string(found));
    }
    if (!myWanted.empty() && !isDat && found > 0 && found != myWanted.size()) {
        myFindings.Add(Kind::Lost, line.number, Sort::Columns,
                       "the first record has " + Counted(found, "field") + " and the specification has " +
                           Counted(myWanted.size(), "column") + ", so the editor refuses the file");
        myIsReading = false;
    }
}

void DataCheck::CountLineEnd(const MeantLine &pLine) {
    myLineEnds.Count(pLine);
    myIsReading = myIsReading && !pLine.endsInLf;
}

/// Blank lines matter only where records follow.
void DataCheck::ReportBlankLines() {
    for (; myFirstBlank > 0 && myFirstBlank < myLines.Line().number; ++myFirstBlank) {
        EndTable(myFirstBlank, Sort::BlankLine, "the line is blank");
    }
    myFirstBlank = 0;
}

/// How many fields the line has: as the editor counts them, or as they were meant if no commas separate them.
std::size_t DataCheck::FieldsOf(const TextRow &pWords) const {
    if (mySeparator == ',') {
        return static_cast<std::size_t>(pWords.Count());
    }
    return IsMalformed() ? 0 : myCells.All().size();
}

/// Tells whether the line would end the table, and why.
void DataCheck::Judge(const TextRow &pWords) {
    const MeantLine &line = myLines.Line();
    const std::size_t fields = FieldsOf(pWords);
    if (line.text.find('\r') != std::string_view::npos) {
        EndTable(line.number, Sort::CrInQuotes, "a line end inside quotes ends the line");
    } else if (fields == 0) {
        const auto [sort, why] = WhyNoWords(line.text, mySeparator);
        EndTable(line.number, sort, why);
    } else if (std::cmp_greater(fields, modGetWords::mostWords)) {
        myFindings.Add(Kind::Lost, line.number, Sort::Limit,
                       "a table holds at most " + std::to_string(modGetWords::mostWords) + " columns");
        myIsReading = false;
    } else if (fields != myCols && (myRecords > 0 || myFmt == clsDatFile::fmtDat)) {
        EndTable(line.number, Sort::FieldCount, Counted(fields, "field") + ", not " + std::to_string(myCols));
    }
}

void DataCheck::EndTable(std::size_t pLine, Sort pSort, const std::string &pWhy) {
    if (myRecords == 0 && myFmt != clsDatFile::fmtDat) {
        myFindings.Add(Kind::Lost, pLine, Sort::FirstLine,
                       pWhy + ", and with a first line without fields the editor ends with a message");
    } else if (myIsReading) {
        myStop = Stop{pLine, pSort, pWhy, myRecords};
    } else {
        myFindings.Add(Kind::Lost, pLine, pSort, pWhy + ", which would end the table too");
    }
    myIsReading = false;
}

void DataCheck::LookAtBytes(const MeantLine &pLine) {
    if (pLine.text.find('\0') != std::string_view::npos) {
        myFindings.Add(Kind::Note, pLine.number, Sort::Nul, "NUL bytes");
    }
    if (!IsUtf8(pLine.text)) {
        myFindings.Add(Kind::Note, pLine.number, Sort::NotUtf8, "bytes that aren't UTF-8");
    }
}

void DataCheck::LookAtBlanks(const MeantLine &pLine) {
    if (!myHasCells && MayHaveBlanksAtEnds(pLine.text)) {
        myCells.Begin(mySeparator);
        myCells.Take(pLine.text);
        myCells.End();
        myHasCells = true;
    }
    if (!myHasCells || !myCells.HasBlanksAtEnds()) {
        return;
    }
    myFindings.Add(Kind::Changed, pLine.number, Sort::Blanks, "blanks at the ends of cells are left out");
    if (myCopy != nullptr) {
        myCopy->Note(CleanCopy::Act::DropBlanks, pLine.number);
    }
}

/// Looks up the values of the line, as they were meant if the editor doesn't see all of them.
void DataCheck::LookUp(const TextRow &pWords) {
    if (std::cmp_equal(pWords.Count(), myWanted.size()) || !myHasCells || IsMalformed()) {
        myUnlisted.LookAt(pWords, myOrder, myLines.Line().number);
        return;
    }
    std::vector<std::string> cells = myCells.All();
    while (cells.size() > myWanted.size() && cells.back().empty()) {
        cells.pop_back();
    }
    cells.resize(std::max(cells.size(), myWanted.size()));
    std::transform(cells.begin(), cells.end(), cells.begin(),
                   [](const std::string &pCell) { return std::string(Trim(pCell)); });
    myUnlisted.LookAt(TextRow(cells), myOrder, myLines.Line().number);
}

void DataCheck::GiveToCopy(const TextRow &pWords) {
    const std::size_t line = myLines.Line().number;
    if (mySeparator != ',') {
        myCopy->Note(CleanCopy::Act::Separate, line);
    }
    if (!myHasCells) {
        myCopy->Record(line, pWords);
    } else if (IsMalformed()) {
        myCopy->Refuse(line, myIsUnclosed ? "a quote is left open" : "text follows a closing quote");
    } else {
        myCopy->Record(line, myCells);
    }
}
