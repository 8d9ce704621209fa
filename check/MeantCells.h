#pragma once
/// The cells of one record as their writer meant them: RFC 4180, with any separator. Unlike the editor it
/// takes an empty last cell, and goes on over line breaks inside quotes.
#include "text/TextRow.h"

#include <cstddef>
#include <string_view>
#include <vector>

class MeantCells {
public:
    /// Starts a record whose cells are separated by pSeparator.
    void Begin(char pSeparator);
    /// Takes pText, or those bytes of it that come after the ones taken before. It has to stay where it is.
    void Take(std::string_view pText);
    /// Ends the last cell, when no more text comes.
    void EndCell();

    /// Whether the record can't end here, because a quote is open.
    bool IsOpen() const { return myState == State::InQuotes; }
    /// Whether text follows a closing quote. Nobody can tell what that means.
    bool HasTextAfterQuote() const { return myState == State::Malformed; }
    /// Whether blanks stand at the ends of cells or around quotes.
    bool HasBlanksAtEnds() const { return myHasBlanksAtEnds; }
    /// The cells without those blanks; if the quotes are wrong, as far as they can be told.
    TextRow Row(TextRowRoom &pRoom) const;

private:
    enum class State { Before, InPlain, InQuotes, AtQuote, AfterQuotes, Malformed };

    /// Where in the text a cell lies.
    struct Cell {
        std::size_t from = 0;
        std::size_t to = 0;
        bool isQuoted = false;
    };
    std::string_view Inside(const Cell &pCell) const {
        return myText.substr(pCell.from, pCell.to - pCell.from);
    }

    std::string_view myText;
    std::size_t myAt = 0;
    char mySeparator = ',';
    State myState = State::Before;
    bool myHasBlanksAtEnds = false;
    Cell myCell;
    std::vector<Cell> myCells;
};

/// The separator that the first line of a table plainly has: a comma, unless it has none outside quotes but
/// semicolons or tabs, or unless only these give as many fields as pCols, when that is not 0.
char SeparatorOf(std::string_view pLine, std::size_t pCols);
