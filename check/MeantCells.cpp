#include "check/MeantCells.h"

#include "text/Text.h"

void MeantCells::Begin(char pSeparator) {
    mySeparator = pSeparator;
    myState = State::Before;
    myWasQuote = false;
    myHasBlanksAtEnds = false;
    myCell.clear();
    myCells.clear();
}

void MeantCells::Take(std::string_view pPart) {
    for (const char character : pPart) {
        Step(character);
    }
}

void MeantCells::End() {
    EndCell();
}

void MeantCells::Step(char pCharacter) {
    switch (myState) {
    case State::Before:
    case State::InPlain:
        StepInPlain(pCharacter);
        break;
    case State::InQuotes:
        StepInQuotes(pCharacter);
        break;
    case State::AfterQuote:
        StepAfterQuote(pCharacter);
        break;
    case State::Malformed:
        break;
    }
}

void MeantCells::StepInPlain(char pCharacter) {
    if (pCharacter == mySeparator) {
        EndCell();
    } else if (pCharacter == '"' && myState == State::Before) {
        myHasBlanksAtEnds = myHasBlanksAtEnds || !myCell.empty();
        myCell.clear();
        myState = State::InQuotes;
    } else {
        myState = pCharacter == ' ' ? myState : State::InPlain;
        myCell += pCharacter;
    }
}

void MeantCells::StepInQuotes(char pCharacter) {
    if (pCharacter == '"') {
        myWasQuote = true;
        myState = State::AfterQuote;
    } else {
        myCell += pCharacter;
    }
}

void MeantCells::StepAfterQuote(char pCharacter) {
    if (pCharacter == '"' && myWasQuote) {
        myCell += pCharacter;
        myState = State::InQuotes;
    } else if (pCharacter == mySeparator) {
        EndCell();
    } else if (pCharacter == ' ') {
        myHasBlanksAtEnds = true;
    } else {
        myState = State::Malformed;
    }
    myWasQuote = false;
}

void MeantCells::EndCell() {
    myHasBlanksAtEnds = myHasBlanksAtEnds || Trim(myCell).size() != myCell.size();
    myCells.push_back(myCell);
    myCell.clear();
    if (myState != State::Malformed && myState != State::InQuotes) {
        myState = State::Before;
    }
}

char SeparatorOf(std::string_view pLine, std::size_t pCols) {
    std::size_t commas = 0;
    std::size_t semicolons = 0;
    std::size_t tabs = 0;
    bool isInQuotes = false;
    for (const char character : pLine) {
        isInQuotes = isInQuotes != (character == '"');
        commas += !isInQuotes && character == ',' ? 1U : 0U;
        semicolons += !isInQuotes && character == ';' ? 1U : 0U;
        tabs += !isInQuotes && character == '\t' ? 1U : 0U;
    }
    if (commas + 1 == pCols || semicolons + tabs == 0) {
        return ',';
    }
    if (semicolons + 1 == pCols || tabs + 1 == pCols) {
        return semicolons + 1 == pCols ? ';' : '\t';
    }
    if (commas > 0) {
        return ',';
    }
    return semicolons >= tabs ? ';' : '\t';
}
