#pragma once
/// A table as its writer meant it, where the editor is strict: any line ends; commas, or semicolons or tabs
/// if the first line says so; quotes by RFC 4180 and, where that is silent, as Python's csv module takes
/// them.
#include "text/TextRow.h"

#include <string>
#include <string_view>
#include <vector>

inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// How many lines of a table are not as the editor wants them.
struct Liberties {
    int byteOrderMark = 0;
    int lineEnds = 0;    ///< LF alone, or CR alone
    int blanks = 0;      ///< blanks at the ends of cells
    int breaks = 0;      ///< records with line breaks inside cells
    int afterQuotes = 0; ///< text after a closing quote
    int blankLines = 0;  ///< blank lines between records
};

class MeantTable {
public:
    /// Reads pText, the bytes of a file.
    explicit MeantTable(std::string_view pText);

    /// The records, and the line at which each begins, from 1. Blank lines are left out. Cells have no blanks
    /// at their ends, and a blank for each line break inside them.
    const std::vector<TextRow> &Records() const { return myRecords; }
    const std::vector<int> &Lines() const { return myLines; }

    /// ',', ';' or a tab.
    char Separator() const { return mySeparator; }
    const Liberties &Taken() const { return myTaken; }

    /// The line of a quote that is never closed, so that the rest of the file is one cell; 0 if there is
    /// none.
    int OpenQuote() const { return myOpenQuote; }

private:
    enum class State { CellStart, Plain, Quoted, QuoteInQuoted };

    void Read(std::string_view pText);
    State Next(State pState, char pCharacter);
    void EndCell();
    void EndRecord();

    char mySeparator = ',';
    std::vector<TextRow> myRecords;
    std::vector<int> myLines;
    Liberties myTaken;
    int myOpenQuote = 0;

    // The record that is being read.
    std::string myRun;
    std::vector<TextRow::Place> myEnds;
    std::size_t myCellBegin = 0;
    int myLine = 1;
    int myRecordLine = 1;
    int myQuoteLine = 0;
    bool myHasBlanks = false;
    bool myHasBreaks = false;
    bool myHasText = false; ///< the record is more than a blank line
};

/// The separator that the first line of pText names: the most frequent of comma, semicolon and tab outside
/// quotes, the comma if there is none.
char SeparatorOf(std::string_view pText);
