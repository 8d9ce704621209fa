#include "check/MeantTable.h"

#include "check/MeantCells.h"
#include "check/MeantLines.h"
#include "data/modGetWords.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <utility>

namespace {

using enum Fault;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool IsUtf8(std::string_view pText) {
    for (std::size_t at = 0; at < pText.size();) {
        const bool isAscii = static_cast<unsigned char>(pText[at]) < 0x80; // Most are, and need no call.
        const CodePoint character = isAscii ? CodePoint{0, 1, true} : CodePointAt(pText, at);
        if (!character.isValid) {
            return false;
        }
        at += character.length;
    }
    return true;
}

/// Whether a blank of pLine stands where it could be at the end of a cell. The loop has no branches, so that
/// the compiler can take many bytes at a time.
bool MayHaveBlanksAtEnds(std::string_view pLine) {
    const auto isBorder = [](char pCharacter) { return (pCharacter == ',') | (pCharacter == '"'); };
    const char *const bytes = pLine.data();
    unsigned char found = pLine.starts_with(' ') || pLine.ends_with(' ') ? 1 : 0;
    for (std::size_t at = 1; at + 1 < pLine.size(); ++at) {
        const bool isAtEnd = isBorder(bytes[at - 1]) | isBorder(bytes[at + 1]);
        found = static_cast<unsigned char>(found | ((bytes[at] == ' ') & isAtEnd));
    }
    return found != 0;
}

/// Reads one record after the other.
class Reader {
public:
    /// pCols is how many cells the specification wants, or 0.
    Reader(const EditorTable &pEditor, std::size_t pCols)
        : myLines(pEditor.table.FileName()), myEditor(pEditor), myCols(pCols) {}

    std::string_view Fault() const { return myLines.Fault(); }

    /// Goes to the next line. False when there is none.
    bool Next() { return myLines.Next(); }
    bool IsBlank() const { return Trim(myLines.Text()).empty(); }
    char Separator() const { return mySeparator; }

    /// The line without a byte-order mark.
    std::string_view Text() const {
        const std::string_view text = myLines.Text();
        const bool hasMark = myLines.Number() == 1 && text.starts_with(byteOrderMark);
        return text.substr(hasMark ? byteOrderMark.size() : 0);
    }

    /// The line, as no record.
    MeantRecord Line() const {
        const std::string_view text = myLines.Text();
        const bool isUtf16 = text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF");
        MeantRecord line;
        line.line = myLines.Number();
        line.faults.Set(LfAlone, myLines.EndsInLf());
        line.faults.Set(ByteOrderMark, Text().size() < text.size());
        line.faults.Set(Utf16, isUtf16 && line.line == 1);
        line.faults.Set(Nul, text.find('\0') != std::string_view::npos);
        line.faults.Set(NotUtf8, !IsUtf8(text));
        return line;
    }

    /// The record that begins in the line. Goes on to its last line.
    MeantRecord Record() {
        mySeparator = mySeparator == '\0' ? SeparatorOf(Text(), myCols) : mySeparator;
        TextRow words = Words();
        const bool hasMark = Text().size() < myLines.Text().size();
        const bool isTable = words.Count() > 0 && words.Count() <= modGetWords::mostWords;
        if (mySeparator != ',' || !isTable || hasMark || MayHaveBlanksAtEnds(Text())) {
            return SplitRecord(std::move(words));
        }
        MeantRecord record = Line();
        record.fields = static_cast<std::size_t>(words.Count());
        record.cells = std::move(words);
        return record;
    }

private:
    /// The words that the editor finds in the line, or would find if its ends were right.
    TextRow Words() {
        const std::size_t linesBefore = myEditor.fmt == clsDatFile::fmtCsv ? 0 : 1;
        const std::optional<std::size_t> line = myLines.EditorLine();
        const bool isRead = line && *line >= linesBefore && *line - linesBefore < myEditor.read;
        return isRead ? myEditor.Row(*line - linesBefore) : modGetWords::GetWords(myLines.Text(), myRoom);
    }

    /// The same as Record, by splitting the record into its cells. pWords are the editor's words.
    MeantRecord SplitRecord(TextRow pWords) {
        FindCells();
        const bool isClear = !myCells.IsOpen() && !myCells.HasTextAfterQuote();
        MeantRecord record = Line();
        record.cells = myCells.Row(myRoom);
        record.faults.Set(Blanks, myCells.HasBlanksAtEnds());
        record.faults.Set(OpenQuote, myCells.IsOpen());
        record.faults.Set(TextAfterQuote, myCells.HasTextAfterQuote());
        const bool isJoined = myLines.LastNumber() > record.line;
        const bool isOneLine = !isJoined || Text().find('\r') == std::string_view::npos;
        record.faults.Set(LineBreaks, isJoined);
        record.faults.Set(CrInQuotes, !isOneLine);
        pWords = isJoined ? Words() : std::move(pWords);
        if (mySeparator == ',' && IsSame(record.cells, pWords)) {
            record.cells = pWords; // One block for both.
        }
        const bool isEditors = mySeparator == ',' && isOneLine;
        record.fields = static_cast<std::size_t>(isEditors ? pWords.Count()
                                                 : isClear ? record.cells.Count()
                                                           : 0);
        if (isClear && record.fields == 0) {
            record.faults.Set(Trim(Text()).ends_with(',') ? CommaAtEnd : MarkBeforeQuote);
        }
        return record;
    }

    /// Finds the cells of the record, and goes on to its last line.
    void FindCells() {
        myCells.Begin(mySeparator);
        myCells.Take(Text());
        if (myCells.IsOpen() && myLines.Number() >= myNoCloseUpTo) {
            while (myCells.IsOpen() && myLines.Join()) {
                myCells.Take(Text());
            }
            if (myCells.IsOpen() || myCells.HasTextAfterQuote()) {
                myNoCloseUpTo =
                    myCells.IsOpen() ? std::numeric_limits<std::size_t>::max() : myLines.LastNumber();
                myLines.Unjoin();
                myCells.Begin(mySeparator);
                myCells.Take(Text());
            }
        }
        myCells.EndCell();
    }

    MeantLines myLines;
    const EditorTable &myEditor;
    std::size_t myCols;
    char mySeparator = '\0'; ///< until the first record
    MeantCells myCells;
    TextRowRoom myRoom;
    /// A quote that is open at the start of a line, up to this one, doesn't close well. Without it each of
    /// many open quotes would cost a search to the end of the file.
    std::size_t myNoCloseUpTo = 0;
};

} // namespace

MeantTable::MeantTable(const EditorTable &pEditor, const WantedColumns &pWanted) {
    Reader reader(pEditor, pWanted.size());
    const bool isDat = pEditor.fmt == clsDatFile::fmtDat;
    if (pEditor.fmt != clsDatFile::fmtCsv && reader.Next()) {
        head = isDat ? reader.Line() : reader.Record();
    }
    if (isDat) {
        ReadSize(reader.Text(), pEditor.table);
    }
    while (reader.Next()) {
        const bool isBlank = reader.IsBlank();
        lines.push_back(isBlank ? reader.Line() : reader.Record());
        records += isBlank ? 0 : 1;
        lines.back().faults.Set(BlankLine, isBlank);
        lines.back().faults.Set(ManyRecords, !isBlank && records == clsDatFile::mostRows + 1);
    }
    fault = reader.Fault();
    separator = reader.Separator();
    SettleColumns(pWanted);
    const bool isShort = !head.faults.Has(LfAlone) && !pEditor.table.Fault().empty();
    head.faults.Set(Counts, isDat && (isShort || announcedRows != records || announcedCols != cols));
}

void MeantTable::ReadSize(std::string_view pText, const clsDatFile &pTable) {
    const bool hasText = pText.find_first_not_of("0123456789+-.,;\t \"") != std::string_view::npos;
    const std::size_t comma = pText.find(',');
    head.faults.Set(NoCounts, hasText);
    announcesNumbers = comma != std::string_view::npos && !hasText;
    std::int16_t rows = pTable.Rows();
    std::int16_t columns = pTable.Cols();
    if (announcesNumbers && head.faults.Has(LfAlone)) {
        // The editor makes nothing of it. As it was meant, it may still be right.
        rows = WholeTextInteger(pText.substr(0, comma)).value_or(-1);
        columns = WholeTextInteger(pText.substr(comma + 1)).value_or(0);
    }
    if (rows >= 0 && columns > 0) {
        announcedRows = static_cast<std::size_t>(rows);
        announcedCols = static_cast<std::size_t>(columns);
    }
}

void MeantTable::SettleColumns(const WantedColumns &pWanted) {
    const auto isRecord = [](const MeantRecord &pLine) { return !pLine.faults.Has(BlankLine); };
    const auto first = std::find_if(lines.begin(), lines.end(), isRecord);
    const int found = std::max(first == lines.end() ? 0 : first->cells.Count(), head.cells.Count());
    cols = pWanted.empty() ? std::max(static_cast<std::size_t>(found), announcedCols) : pWanted.size();
    if (head.cells.Count() > 0) {
        Fit(head);
        std::vector<std::string> titles = TextsOf(head.cells);
        titles.resize(head.faults.Has(Surplus) ? 0 : cols);
        order = OrderOf(pWanted, titles);
        head.faults.Set(ColumnOrder, !order.empty());
    }
    for (MeantRecord &line : lines) {
        if (isRecord(line)) {
            Fit(line);
            line.faults.Set(Separator, separator != ',');
            line.faults.Set(ColumnOrder, !order.empty());
        }
    }
}

/// Compares the number of the record's cells with that of the columns.
void MeantTable::Fit(MeantRecord &pRecord) const {
    const std::span<const TextRow::Offset> ends = pRecord.cells.Ends();
    pRecord.faults.Set(ManyColumns, cols > modGetWords::mostWords);
    pRecord.faults.Set(TooFew, ends.size() < cols);
    if (ends.size() > cols) {
        pRecord.faults.Set(ends[cols - 1] == ends.back() ? TooMany : Surplus);
    }
}

Tally TallyOf(const MeantTable &pTable, Fault pFault) {
    Tally tally;
    const auto look = [&](const MeantRecord &pLine) {
        if (pLine.faults.Has(pFault)) {
            tally.first = tally.lines == 0 ? pLine.line : tally.first;
            ++tally.lines;
        }
    };
    look(pTable.head);
    std::for_each(pTable.lines.begin(), pTable.lines.end(), look);
    return tally;
}

bool IsSame(const TextRow &pOne, const TextRow &pOther) {
    return std::ranges::equal(pOne.Ends(), pOther.Ends()) && pOne.Run() == pOther.Run();
}

std::vector<std::string> TextsOf(const TextRow &pRow) {
    std::vector<std::string> texts;
    for (int place = 1; place <= pRow.Count(); ++place) {
        texts.emplace_back(pRow(place));
    }
    return texts;
}
