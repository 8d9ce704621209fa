#pragma once
/// Checks a table file: what of it the editor would not show, would change or would refuse, line by line. The
/// editor's own table loads the file first, and that decides what the editor sees. Then a walk over the lines
/// as they were meant finds the reasons; each line that the editor doesn't read is split by the same
/// function.
#include "check/CleanCopy.h"
#include "check/Findings.h"
#include "check/LineEnds.h"
#include "check/MeantCells.h"
#include "check/MeantLines.h"
#include "check/UnlistedValues.h"
#include "check/WantedColumns.h"
#include "data/clsDatFile.h"

#include <cstdint>
#include <optional>
#include <string>

class DataCheck {
public:
    /// Checks the file that pFindings names, of the form pFmt, one of clsDatFile's. pCopy, which may be null,
    /// is given the records.
    DataCheck(std::int16_t pFmt, const WantedColumns &pWanted, Findings &pFindings,
              CleanCopy *pCopy = nullptr);

    void Run();

    /// Why the file can't be read. Empty if it can.
    std::string_view Fault() const { return myLines.Fault(); }
    /// How many records the file was meant to have.
    std::size_t Records() const { return myRecords; }
    /// How many of them the editor shows.
    std::size_t Shown() const;
    /// The table as the editor has loaded it.
    const clsDatFile &Table() const { return myTable; }

private:
    /// The two numbers that the first line of a .dat file announces; no columns if they can't be used.
    struct Size {
        std::size_t rows = 0;
        std::size_t cols = 0;
    };
    struct Stop {
        std::size_t line;
        Sort sort;
        std::string why;
        std::size_t recordsBefore;
    };

    void LoadAsEditor();
    std::string_view WithoutByteOrderMark(const MeantLine &pLine);
    void TakeSizeLine();
    void TakeHeader();
    void ReportSeparator();
    void CompareTitles(const MeantLine &pLine);
    void ReportSize();
    void ReportStop();
    void RequireAllShown();

    void TakeLine();
    TextRow WordsOf(const MeantLine &pLine);
    TextRow TakeCells(TextRow pWords);
    void SettleCols(const TextRow &pWords);
    void CountLineEnd(const MeantLine &pLine);
    void ReportBlankLines();
    /// Whether nobody can tell the cells of the line, which are in myCells.
    bool IsMalformed() const { return myIsUnclosed || myCells.HasTextAfterQuote(); }
    std::size_t FieldsOf(const TextRow &pWords) const;
    void Judge(const TextRow &pWords);
    void EndTable(std::size_t pLine, Sort pSort, const std::string &pWhy);
    void LookAtBytes(const MeantLine &pLine);
    void LookAtBlanks(const MeantLine &pLine);
    void LookUp(const TextRow &pWords);
    void GiveToCopy(const TextRow &pWords);

    std::int16_t myFmt;
    const WantedColumns &myWanted;
    Findings &myFindings;
    CleanCopy *myCopy;

    /// Thrown where the editor would end, with its last message.
    struct EditorEnded {
        std::string message;
    };
    clsDatFile myTable{[](std::string_view pText) { throw EditorEnded{std::string(pText)}; }};
    bool myEndsProgram = false;
    std::string myLastMessage; ///< of the editor, when it ends
    std::size_t myRowsRead = 0;

    MeantLines myLines;
    MeantCells myCells;
    bool myHasCells = false;   ///< myCells holds the current line's
    bool myIsUnclosed = false; ///< a quote of the current line never closes
    TextRowRoom myRoom;
    char mySeparator = '\0';
    Size mySize;
    bool myHasNumbers = false;        ///< the first line of a .dat is numbers, whatever they are
    std::size_t myTitles = 0;         ///< in the header line
    std::vector<std::size_t> myOrder; ///< where the wanted columns are, when the titles are in another order
    std::size_t myCols = 0;           ///< fields that a line should have
    std::size_t myRecords = 0;
    std::size_t myFirstUnannounced = 0; ///< the line of the first record beyond the announced ones
    std::size_t myFirstTooMany = 0;     ///< the line of the first record beyond those that a table holds
    bool myIsReading = true;            ///< the editor has read all lines so far as they were meant
    std::optional<Stop> myStop;         ///< where reading ended
    std::size_t myFirstBlank = 0;       ///< the line at which blank ones began; 0 when the last wasn't blank
    std::size_t myBlanks = 0;
    LineEnds myLineEnds;
    UnlistedValues myUnlisted;
};
