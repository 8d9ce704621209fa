#include "check/Findings.h"

#include <algorithm>

namespace {

std::string NameOf(Kind pKind) {
    switch (pKind) {
    case Kind::Lost:
        return "lost";
    case Kind::Changed:
        return "changed";
    default:
        return "note";
    }
}

} // namespace

void Findings::Add(int pLine, Kind pKind, const std::string &pSort, const std::string &pText) {
    Sort &sort = mySorts.try_emplace(pSort, Sort{pKind}).first->second;
    if (++sort.count <= mostOfASort) {
        myKept.push_back({pLine, pKind, pText});
    }
}

std::size_t Findings::Count(Kind pKind) const {
    std::size_t count = 0;
    for (const auto &[name, sort] : mySorts) {
        count += sort.kind == pKind ? sort.count : 0;
    }
    return count;
}

std::string Findings::Text() const {
    std::vector<Finding> inOrder = myKept;
    std::stable_sort(inOrder.begin(), inOrder.end(),
                     [](const Finding &pOne, const Finding &pOther) { return pOne.line < pOther.line; });
    std::string text;
    for (const Finding &one : inOrder) {
        text += myFile + ":" + std::to_string(one.line) + ": " + NameOf(one.kind) + ": " + one.text + "\n";
    }
    for (const auto &[name, sort] : mySorts) {
        if (sort.count > mostOfASort) {
            text += myFile + ": " + NameOf(sort.kind) + ": and " + std::to_string(sort.count - mostOfASort) +
                    " more of this sort (" + name + ")\n";
        }
    }
    return text;
}
