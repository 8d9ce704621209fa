#include "check/MeantCells.h"

#include "text/Text.h"

void MeantCells::Begin(char pSeparator) {
    mySeparator = pSeparator;
    myAt = 0;
    myState = State::Before;
    myHasBlanksAtEnds = false;
    myCell = {};
    myCells.clear();
}

void MeantCells::Take(std::string_view pText) {
    myText = pText;
    for (; myAt < pText.size(); ++myAt) {
        switch (const char character = pText[myAt]; myState) {
        case State::Before:
            if (character == '"') {
                myHasBlanksAtEnds = myHasBlanksAtEnds || myAt > myCell.from;
                myCell = {myAt + 1, 0, /*isQuoted=*/true};
                myState = State::InQuotes;
                break;
            }
            myState = character == ' ' ? State::Before : State::InPlain;
            [[fallthrough]];
        case State::InPlain:
            if (character == mySeparator) {
                EndCell();
            }
            break;
        case State::InQuotes:
            myCell.to = myAt;
            myState = character == '"' ? State::AtQuote : State::InQuotes;
            break;
        case State::AtQuote:
            if (character == '"') { // Two quotes stand for one.
                myState = State::InQuotes;
                break;
            }
            [[fallthrough]];
        case State::AfterQuotes:
            if (character == mySeparator) {
                EndCell();
            } else {
                myHasBlanksAtEnds = myHasBlanksAtEnds || character == ' ';
                myState = character == ' ' ? State::AfterQuotes : State::Malformed;
            }
            break;
        case State::Malformed:
            return;
        }
    }
}

void MeantCells::EndCell() {
    if (!myCell.isQuoted || IsOpen()) {
        myCell.to = myAt;
    }
    myHasBlanksAtEnds = myHasBlanksAtEnds || Trim(Inside(myCell)).size() != Inside(myCell).size();
    myCells.push_back(myCell);
    myCell = Cell{myAt + 1};
    if (!IsOpen() && !HasTextAfterQuote()) {
        myState = State::Before;
    }
}

TextRow MeantCells::Row(TextRowRoom &pRoom) const {
    TextRowBuilder row(pRoom, myCells.size(), myText.size(), myText);
    for (const Cell &cell : myCells) {
        std::string_view rest = Trim(Inside(cell));
        std::size_t quote = cell.isQuoted ? rest.find('"') : std::string_view::npos;
        while (quote != std::string_view::npos) {
            row.AddPart(rest.substr(0, quote + 1));
            rest.remove_prefix(quote + 2);
            quote = rest.find('"');
        }
        row.Append(rest);
    }
    return row.Row();
}

char SeparatorOf(std::string_view pLine, std::size_t pCols) {
    constexpr std::string_view marks = ",;\t";
    std::size_t counts[] = {0, 0, 0};
    bool isInQuotes = false;
    for (const char character : pLine) {
        isInQuotes = isInQuotes != (character == '"');
        const std::size_t mark = isInQuotes ? std::string_view::npos : marks.find(character);
        if (mark != std::string_view::npos) {
            ++counts[mark];
        }
    }
    const auto [commas, semicolons, tabs] = counts;
    if (commas + 1 == pCols || semicolons + tabs == 0) {
        return ',';
    }
    if (semicolons + 1 == pCols || tabs + 1 == pCols) {
        return semicolons + 1 == pCols ? ';' : '\t';
    }
    return commas > 0 ? ',' : semicolons >= tabs ? ';' : '\t';
}
