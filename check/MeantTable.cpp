#include "check/MeantTable.h"

#include <array>

namespace {

bool IsLineEnd(char pCharacter) {
    return pCharacter == '\r' || pCharacter == '\n';
}

} // namespace

char SeparatorOf(std::string_view pText) {
    constexpr std::string_view separators = ",;\t";
    std::array<int, separators.size()> counts{};
    bool isQuoted = false;
    for (const char character : pText) {
        if (!isQuoted && IsLineEnd(character)) {
            break;
        }
        isQuoted = isQuoted != (character == '"');
        const std::size_t at = isQuoted ? std::string_view::npos : separators.find(character);
        if (at != std::string_view::npos) {
            ++counts[at];
        }
    }
    std::size_t most = 0;
    for (std::size_t at = 1; at < counts.size(); ++at) {
        most = counts[at] > counts[most] ? at : most;
    }
    return separators[most];
}

MeantTable::MeantTable(std::string_view pText) {
    if (pText.starts_with(byteOrderMark)) {
        pText.remove_prefix(byteOrderMark.size());
        myTaken.byteOrderMark = 1;
    }
    mySeparator = SeparatorOf(pText);
    Read(pText);
}

void MeantTable::Read(std::string_view pText) {
    State state = State::CellStart;
    for (std::size_t at = 0; at < pText.size(); ++at) {
        char character = pText[at];
        if (IsLineEnd(character)) {
            const bool isPair = character == '\r' && at + 1 < pText.size() && pText[at + 1] == '\n';
            at += isPair ? 1 : 0;
            myTaken.lineEnds += isPair || state == State::Quoted ? 0 : 1;
            ++myLine;
            character = '\n';
        }
        state = Next(state, character);
    }
    if (state == State::Quoted) {
        myOpenQuote = myQuoteLine;
    }
    if (myHasText) {
        EndCell();
        EndRecord();
    }
}

MeantTable::State MeantTable::Next(State pState, char pCharacter) {
    if (pState == State::Quoted) {
        myHasBreaks = myHasBreaks || pCharacter == '\n';
        if (pCharacter == '"') {
            return State::QuoteInQuoted;
        }
        myRun += pCharacter == '\n' ? ' ' : pCharacter;
        return State::Quoted;
    }
    if (pCharacter == mySeparator || pCharacter == '\n') {
        myHasText = myHasText || pCharacter == mySeparator;
        EndCell();
        if (pCharacter == '\n') {
            EndRecord();
        }
        return State::CellStart;
    }
    const bool isFirst = pState == State::CellStart;
    if (isFirst && pCharacter == ' ') {
        myHasBlanks = true;
        return State::CellStart;
    }
    myHasText = true;
    if (pCharacter == '"' && pState != State::Plain) {
        myQuoteLine = isFirst ? myLine : myQuoteLine;
        myRun += isFirst ? "" : "\"";
        return State::Quoted;
    }
    if (pState == State::QuoteInQuoted && pCharacter == ' ') {
        myHasBlanks = true;
    } else if (pState == State::QuoteInQuoted) {
        ++myTaken.afterQuotes;
    }
    myRun += pCharacter;
    return pState == State::QuoteInQuoted && pCharacter == ' ' ? State::QuoteInQuoted : State::Plain;
}

void MeantTable::EndCell() {
    std::string_view cell = std::string_view(myRun).substr(myCellBegin);
    const std::size_t size = cell.size();
    const std::size_t first = cell.find_first_not_of(' ');
    const std::size_t end = cell.find_last_not_of(' ') + 1;
    cell = first == std::string_view::npos ? std::string_view() : cell.substr(first, end - first);
    if (cell.size() != size) {
        myHasBlanks = true;
        const std::string trimmed(cell);
        myRun.replace(myCellBegin, std::string::npos, trimmed);
    }
    myEnds.push_back(static_cast<TextRow::Place>(myRun.size()));
    myCellBegin = myRun.size();
}

void MeantTable::EndRecord() {
    if (myHasText) {
        myRecords.emplace_back(std::string_view(myRun), myEnds);
        myLines.push_back(myRecordLine);
        myTaken.blanks += myHasBlanks ? 1 : 0;
        myTaken.breaks += myHasBreaks ? 1 : 0;
    } else {
        ++myTaken.blankLines;
    }
    myRun.clear();
    myEnds.clear();
    myCellBegin = 0;
    myRecordLine = myLine;
    myHasBlanks = myHasBreaks = myHasText = false;
}
