#include "check/Findings.h"

#include <algorithm>
#include <ostream>

namespace {

constexpr std::size_t mostShown = 20; // of one sort

const char *Word(Kind pKind) {
    switch (pKind) {
    case Kind::Lost:
        return "lost";
    case Kind::Changed:
        return "changed";
    default:
        return "note";
    }
}

/// Texts of the file are part of findings. On a terminal its control characters could do anything.
std::string OnOneLine(std::string pText) {
    const auto isControl = [](char pCharacter) {
        return static_cast<unsigned char>(pCharacter) < ' ' || pCharacter == '\x7f';
    };
    std::replace_if(pText.begin(), pText.end(), isControl, '?');
    return pText;
}

} // namespace

void Findings::Add(Kind pKind, std::size_t pLine, Sort pSort, const std::string &pText) {
    const Kind kind = pKind == Kind::Changed && !myIsSaved ? Kind::Note : pKind;
    ++myOfKind[static_cast<std::size_t>(kind)];
    const std::size_t number = ++myOfSort[static_cast<std::size_t>(pSort)];
    if (number <= mostShown) {
        myFindings.push_back({pLine, kind, pSort, number == mostShown, OnOneLine(pText)});
    }
}

void Findings::Print(std::ostream &pTo) const {
    std::vector<const Finding *> inOrder;
    for (const Finding &finding : myFindings) {
        inOrder.push_back(&finding);
    }
    std::stable_sort(inOrder.begin(), inOrder.end(),
                     [](const Finding *pOne, const Finding *pOther) { return pOne->line < pOther->line; });
    for (const Finding *finding : inOrder) {
        pTo << myFile << ':' << finding->line << ": " << Word(finding->kind) << ": " << finding->text << '\n';
        if (finding->isLastShown && Of(finding->sort) > mostShown) {
            pTo << myFile << ": " << Word(finding->kind) << ": and " << Of(finding->sort) - mostShown
                << " more of this sort\n";
        }
    }
}

std::string Counted(std::size_t pCount, const std::string &pNoun) {
    return std::to_string(pCount) + " " + pNoun + (pCount == 1 ? "" : "s");
}
