#pragma once
/// The cells of one record as their writer meant them: RFC 4180, with any separator. Unlike the editor it
/// keeps blanks at the ends of cells, takes an empty last cell, and goes on over line breaks inside quotes.
#include <string>
#include <string_view>
#include <vector>

class MeantCells {
public:
    /// Starts a record whose cells are separated by pSeparator.
    void Begin(char pSeparator);
    /// Takes the next part of the record.
    void Take(std::string_view pPart);
    /// Ends the record. Only then is its last cell there.
    void End();

    /// Whether the record can't end here, because a quote is open.
    bool IsOpen() const { return myState == State::InQuotes; }
    /// Whether text follows a closing quote. Nobody can tell what that means.
    bool HasTextAfterQuote() const { return myState == State::Malformed; }
    /// Whether blanks stand at the ends of cells or around quotes.
    bool HasBlanksAtEnds() const { return myHasBlanksAtEnds; }

    const std::vector<std::string> &All() const { return myCells; }

private:
    enum class State { Before, InPlain, InQuotes, AfterQuote, Malformed };

    void Step(char pCharacter);
    void StepInPlain(char pCharacter);
    void StepInQuotes(char pCharacter);
    void StepAfterQuote(char pCharacter);
    void EndCell();

    char mySeparator = ',';
    State myState = State::Before;
    bool myWasQuote = false; ///< the last character was the closing quote, which a second one would undo
    bool myHasBlanksAtEnds = false;
    std::string myCell;
    std::vector<std::string> myCells;
};

/// The separator that the first line of a table plainly has: a comma, unless it has none outside quotes but
/// semicolons or tabs, or unless only these give as many fields as pCols, when that is not 0.
char SeparatorOf(std::string_view pLine, std::size_t pCols);
