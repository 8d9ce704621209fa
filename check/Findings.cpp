#include "check/Findings.h"

#include <algorithm>
#include <iterator>
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
    OfOneSort &sort = myFindings[static_cast<std::size_t>(pSort)];
    if (++sort.count > mostShown && pLine >= sort.first.rbegin()->first) {
        return;
    }
    sort.first.emplace(pLine, Finding{kind, OnOneLine(pText)});
    if (sort.first.size() > mostShown) {
        sort.first.erase(std::prev(sort.first.end()));
    }
}

void Findings::Print(std::ostream &pTo) const {
    std::multimap<std::size_t, std::string> texts;
    for (const OfOneSort &sort : myFindings) {
        for (const auto &[line, finding] : sort.first) {
            const std::string word = std::string(": ") + Word(finding.kind) + ": ";
            std::string text = myFile + ':' + std::to_string(line) + word + finding.text + '\n';
            if (&finding == &sort.first.rbegin()->second && sort.count > mostShown) {
                text +=
                    myFile + word + "and " + std::to_string(sort.count - mostShown) + " more of this sort\n";
            }
            texts.emplace(line, std::move(text));
        }
    }
    for (const auto &[line, text] : texts) {
        pTo << text;
    }
}

std::string Counted(std::size_t pCount, const std::string &pNoun) {
    return std::to_string(pCount) + " " + pNoun + (pCount == 1 ? "" : "s");
}
