#include "check/Findings.h"

#include <algorithm>
#include <ostream>

namespace {

constexpr std::size_t mostShown = 20; // of one fault

constexpr const char *kindWords[] = {": lost: ", ": changed: ", ": note: "};

/// Texts of the file are part of findings. On a terminal its control characters could do anything.
std::string OnOneLine(std::string pText) {
    const auto isControl = [](char pCharacter) {
        return static_cast<unsigned char>(pCharacter) < ' ' || pCharacter == '\x7f';
    };
    std::replace_if(pText.begin(), pText.end(), isControl, '?');
    return pText;
}

} // namespace

Kind Findings::KindOf(Fault pFault) const {
    const Kind kind = RowOf(pFault).kind;
    return kind == Kind::Changed && !myIsSaved ? Kind::Note : kind;
}

void Findings::Add(std::size_t pLine, Fault pFault, std::initializer_list<std::string> pTexts,
                   const std::string &pRest) {
    ++myOfKind[static_cast<std::size_t>(KindOf(pFault))];
    OfOneFault &found = myFound[static_cast<std::size_t>(pFault)];
    if (++found.count <= mostShown || pLine < found.lastLine) {
        found.lastLine = std::max(found.lastLine, pLine);
        myTexts.emplace(std::pair(pLine, pFault), OnOneLine(Filled(RowOf(pFault).finding, pTexts) + pRest));
    }
}

void Findings::Print(std::ostream &pTo) const {
    std::array<std::size_t, faultCount> printed{};
    for (const auto &[place, text] : myTexts) {
        const auto &[line, fault] = place;
        const char *const word = kindWords[static_cast<std::size_t>(KindOf(fault))];
        const std::size_t count = Of(fault);
        std::size_t &number = printed[static_cast<std::size_t>(fault)];
        if (++number <= mostShown) {
            pTo << myFile << ':' << line << word << text << '\n';
        }
        if (number == mostShown && count > mostShown) {
            pTo << myFile << word << "and " << count - mostShown << " more of this sort\n";
        }
    }
}
