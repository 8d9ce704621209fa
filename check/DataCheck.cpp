#include "check/DataCheck.h"

#include "data/modGetWords.h"
#include "text/Text.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <utility>

namespace {

using enum Fault;

std::string NotRead(std::size_t pLines) {
    return Counted(pLines, "line") + (pLines == 1 ? " is" : " are") + " not read";
}

/// Walks over the lines, as the editor reads them one after the other.
class Walk {
public:
    Walk(const MeantTable &pMeant, const EditorTable &pEditor, const WantedColumns &pWanted,
         Findings &pFindings)
        : myMeant(pMeant), myEditor(pEditor), myWanted(pWanted), myFindings(pFindings),
          myIsDat(pEditor.fmt == clsDatFile::fmtDat) {}

    void Run() {
        LookAtHead();
        for (const MeantRecord &line : myMeant.lines) {
            if (myRecords < myMeant.records) { // Blank lines matter only where records follow.
                LookAtLine(line);
            }
        }
        ReportLineEnds();
        if (myIsDat) {
            ReportAnnounced();
        }
        for (const auto &[place, found] : myUnlisted) {
            const auto &[col, value] = place;
            myFindings.Add(found.first, NotListed,
                           {Quoted(myWanted[col].title), Quoted(value), Counted(found.lines, "record")});
        }
        RequireAllShown();
    }

private:
    void LookAtHead() {
        const MeantRecord &head = myMeant.head;
        LookAtBytes(head);
        myIsReading = !head.faults.Has(LfAlone);
        if (head.cells.Count() == 0) {
            return;
        }
        if (head.faults.Has(CrInQuotes)) {
            Stop(head.line, CrInQuotes, {"header line, so its rest is taken for the first record"});
        }
        if (head.faults.Has(OpenQuote)) {
            Stop(head.line, OpenQuote, {}, ", so nobody can tell where the header line ends");
        }
        ReportSeparator(head.line);
        CompareTitles();
    }

    void CompareTitles() {
        const std::vector<std::string> wanted = TitlesOf(myWanted);
        std::vector<std::string> titles = TextsOf(myMeant.head.cells);
        if (!myMeant.order.empty()) {
            myFindings.Add(myMeant.head.line, TitleOrder);
            return;
        }
        titles.resize(std::max(titles.size(), wanted.size()));
        for (std::size_t col = 0; col < titles.size() && !wanted.empty(); ++col) {
            const std::string other = col < wanted.size() ? Quoted(wanted[col]) : "none";
            if (col >= wanted.size() || titles[col] != wanted[col]) {
                myFindings.Add(myMeant.head.line, Title,
                               {std::to_string(col + 1), Quoted(titles[col]), other});
            }
        }
    }

    void ReportSeparator(std::size_t pLine) {
        if (myMeant.separator != ',') {
            Stop(pLine, Separator, {myMeant.separator == ';' ? "semicolons" : "tabs"});
        }
    }

    void LookAtLine(const MeantRecord &pLine) {
        myIsReading = myIsReading && !pLine.faults.Has(LfAlone);
        if (pLine.faults.Has(BlankLine)) {
            EndTable(pLine.line, BlankLine);
            return;
        }
        if (myRecords == 0) {
            SettleFields(pLine);
        }
        LookAtBytes(pLine);
        LookAtFields(pLine);
        LookUp(pLine);
        if (pLine.faults.Has(ManyRecords) && !myIsDat) {
            myFindings.Add(pLine.line, ManyRecords);
        }
        myFirstUnannounced = myRecords == myMeant.announcedRows ? pLine.line : myFirstUnannounced;
        ++myRecords;
        myIsReading = myIsReading && (!myIsDat || myRecords < myMeant.announcedRows);
    }

    /// Settles how many fields a record should have, by the first one.
    void SettleFields(const MeantRecord &pFirst) {
        const std::size_t found = myIsDat ? myMeant.announcedCols : pFirst.fields;
        const auto titles = static_cast<std::size_t>(myMeant.head.cells.Count());
        myFields = myWanted.empty() && found > 0 ? found : myMeant.cols;
        if (titles == 0) {
            ReportSeparator(pFirst.line);
        } else if (myWanted.empty() && found > 0 && found != titles) {
            myFindings.Add(1, TitleCount, {Counted(titles, "field"), std::to_string(found)});
        }
        if (!myIsDat && found > 0 && found != myFields) {
            Stop(pFirst.line, WrongColumns,
                 {"record has " + Counted(found, "field"), Counted(myFields, "column")});
        }
    }

    void LookAtBytes(const MeantRecord &pLine) {
        for (const Fault fault : {Blanks, Utf16, NotUtf8, Nul}) {
            if (pLine.faults.Has(fault)) {
                myFindings.Add(pLine.line, fault);
            }
        }
        if (pLine.faults.Has(ByteOrderMark)) {
            const bool isInTitles = myEditor.fmt == clsDatFile::fmtCsvWithHeaders;
            myFindings.Add(1, ByteOrderMark,
                           {isInTitles ? "before the first title; it is lost with the header line"
                                       : "at the start; the editor takes it for part of the text"});
        }
    }

    /// Tells whether the record would end the table, and why.
    void LookAtFields(const MeantRecord &pRecord) {
        if (pRecord.faults.Has(CrInQuotes)) {
            EndTable(pRecord.line, CrInQuotes, {"line"});
        } else if (pRecord.fields == 0) {
            Fault cause = MarkBeforeQuote;
            for (const Fault fault : {CommaAtEnd, TextAfterQuote, OpenQuote}) {
                cause = pRecord.faults.Has(fault) ? fault : cause;
            }
            EndTable(pRecord.line, cause);
        } else if (pRecord.fields > modGetWords::mostWords) {
            Stop(pRecord.line, ManyColumns);
        } else if (pRecord.fields != myFields && (myIsDat || myRecords > 0)) {
            EndTable(pRecord.line, FieldCount, {Counted(pRecord.fields, "field"), std::to_string(myFields)});
        }
    }

    /// Looks up the values of columns that insist on listed ones.
    void LookUp(const MeantRecord &pRecord) {
        const FaultSet &faults = pRecord.faults;
        const bool isClear = !faults.Has(OpenQuote) && !faults.Has(TextAfterQuote) && !faults.Has(Surplus);
        for (std::size_t col = 0; col < myWanted.size() && isClear; ++col) {
            const std::size_t place = myMeant.order.empty() ? col : myMeant.order[col];
            const std::string_view value = pRecord.cells(static_cast<int>(place) + 1);
            if (!myWanted[col].values.empty() && !myWanted[col].values.contains(LCase(value))) {
                Tally &found = myUnlisted[{col, std::string(value)}];
                found.first = found.lines++ == 0 ? pRecord.line : found.first;
            }
        }
    }

    using Texts = std::initializer_list<std::string>;

    /// The editor reads no more as it was meant, because of pFault.
    void Stop(std::size_t pLine, Fault pFault, Texts pTexts = {}, const std::string &pRest = "") {
        myFindings.Add(pLine, pFault, pTexts, pRest);
        myIsReading = false;
    }

    /// The same, where pFault would end the editor's table in any case.
    void EndTable(std::size_t pLine, Fault pFault, Texts pTexts = {}) {
        if (myRecords == 0 && !myIsDat && !myEditor.lastMessage.empty()) {
            Stop(pLine, FirstLine, {Filled(RowOf(pFault).finding, pTexts)});
        } else if (myIsReading) {
            // A .dat keeps the number of records that it announces.
            const bool areEmpty = std::cmp_greater(myEditor.table.Rows(), myEditor.read);
            const std::string ends = areEmpty ? ", so the editor has empty records from here on; "
                                              : ", so the table ends before it; ";
            Stop(pLine, pFault, pTexts, ends + NotRead(myMeant.records - myRecords));
        } else {
            Stop(pLine, pFault, pTexts, ", which would end the table too");
        }
    }

    void ReportLineEnds() {
        const Tally tally = TallyOf(myMeant, LfAlone);
        const std::size_t lines = myMeant.lines.size() + (myMeant.head.line > 0 ? 1 : 0);
        const FaultSet &last = myMeant.lines.empty() ? myMeant.head.faults : myMeant.lines.back().faults;
        // The last line may have no end.
        const bool areAll = tally.lines + (last.Has(LfAlone) ? 0 : 1) == lines;
        const std::string more = tally.lines > 1 ? " and " + std::to_string(tally.lines - 1) + " more" : "";
        if (tally.lines > 0) {
            myFindings.Add(
                tally.first, LfAlone,
                {areAll ? "the file's " + Counted(tally.lines, "line") + ", so the editor reads them as one"
                        : "this line" + more + ", and the editor reads such a line and the next as one"});
        }
    }

    /// Compares the records with what the first line of a .dat file announces.
    void ReportAnnounced() {
        const clsDatFile &table = myEditor.table;
        const std::size_t rows = myMeant.announcedRows;
        const std::size_t cols = myMeant.announcedCols;
        if (!table.Fault().empty() && table.WasRead() && TallyOf(myMeant, LfAlone).lines == 0) {
            myFindings.Add(1, NotTaken,
                           {table.Cause(), rows == 0 ? " Is it CSV? Then say /csv or /csvh." : ""});
        } else if (cols == 0) {
            myFindings.Add(1, NoSize,
                           {myMeant.announcesNumbers
                                ? "announces what no table can have"
                                : "isn't two numbers, of the records and of the columns"});
        } else if (rows < myRecords) {
            myFindings.Add(myFirstUnannounced, Announced,
                           {Counted(rows, "record"), "so from here on " + NotRead(myRecords - rows)});
        } else if (rows > myRecords) {
            myFindings.Add(1, Announced,
                           {Counted(rows, "record"), "but there are " + std::to_string(myRecords)});
        }
        if (!myWanted.empty() && cols > 0 && cols != myWanted.size()) {
            myFindings.Add(1, WrongColumns,
                           {"line announces " + Counted(cols, "column"), std::to_string(myWanted.size())});
        }
    }

    /// Whatever the walk has missed: the editor has the last word.
    void RequireAllShown() {
        const bool isWhole = myEditor.shown == myMeant.records && myEditor.lastMessage.empty();
        if (myFindings.Of(Kind::Lost) == 0 && (!isWhole || !myEditor.table.Fault().empty())) {
            myFindings.Add(1, ReadOtherwise,
                           {!myEditor.lastMessage.empty() ? "ends with the message " + myEditor.lastMessage
                            : !myEditor.table.WasRead()   ? "can't read the file: " + myEditor.table.Cause()
                                                          : "reads these lines otherwise"});
        }
    }

    const MeantTable &myMeant;
    const EditorTable &myEditor;
    const WantedColumns &myWanted;
    Findings &myFindings;
    bool myIsDat; ///< the file has the .dat form

    // As far as the walk has come.
    std::size_t myRecords = 0;
    std::size_t myFields = 0;           ///< that the editor expects in a record
    std::size_t myFirstUnannounced = 0; ///< the line of the first record beyond the announced ones
    std::map<std::pair<std::size_t, std::string>, Tally> myUnlisted; ///< by column and value
    bool myIsReading = true; ///< the editor has read all lines so far as they were meant
};

} // namespace

void CompareWithEditor(const MeantTable &pMeant, const EditorTable &pEditor, const WantedColumns &pWanted,
                       Findings &pFindings) {
    Walk(pMeant, pEditor, pWanted, pFindings).Run();
}
