#pragma once
/// A table file as its writer meant it: records with any line ends, with commas, semicolons or tabs between
/// the cells, and with quotes by RFC 4180. Each record says what is wrong with it. All that is said of a
/// file, and its copy, are made from this. What the editor makes of the file is EditorTable's.
///
/// A quote that is open at the end of a line goes on in the next lines, up to the quote that closes it. If
/// none does, or if text follows the one that does, the line is a record of its own with the fault OpenQuote,
/// and the next line begins another record: one wrong quote doesn't take the rest of the file with it.
#include "check/EditorTable.h"
#include "check/Faults.h"
#include "check/WantedColumns.h"
#include "text/TextRow.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// One record, or the line before the first, or a blank line, which has the fault BlankLine and no cells.
struct MeantRecord {
    std::size_t line = 0; ///< the number of its first line, from 1
    std::size_t fields =
        0; ///< as the editor counts them, or would if commas were between them; 0 if it can't
    /// Without blanks at their ends, but with line breaks. They share the block of the editor's row where it
    /// reads the same. If the quotes are wrong, they are as far as they can be told.
    TextRow cells;
    FaultSet faults;
};

struct MeantTable {
    /// Reads the file of pEditor, whole.
    MeantTable(const EditorTable &pEditor, const WantedColumns &pWanted);

    std::string fault; ///< why the file can't be read; empty if it can
    /// The line before the records: the titles, or the numbers of a .dat file, which are no cells. Its number
    /// is 0 if there is none.
    MeantRecord head;
    std::vector<MeantRecord> lines; ///< the records and the blank lines
    std::size_t records = 0;        ///< how many of them are records
    char separator = '\0';          ///< of the cells, if there are any
    std::size_t cols = 0;           ///< how many cells a record should have
    std::vector<std::size_t>
        order; ///< where each wanted column is; empty: where it should be, or nobody knows

    /// What the first line of a .dat file announces; no columns if the numbers can't be used.
    std::size_t announcedRows = 0;
    std::size_t announcedCols = 0;
    bool announcesNumbers = false; ///< the line is two numbers, whatever they are

private:
    void ReadSize(std::string_view pText, const clsDatFile &pTable);
    void SettleColumns(const WantedColumns &pWanted);
    void Fit(MeantRecord &pRecord) const;
};

/// How many lines of a table have a fault, and the first that does.
struct Tally {
    std::size_t lines = 0;
    std::size_t first = 0;
};
Tally TallyOf(const MeantTable &pTable, Fault pFault);

/// Whether two rows have the same texts.
bool IsSame(const TextRow &pOne, const TextRow &pOther);
std::vector<std::string> TextsOf(const TextRow &pRow);
