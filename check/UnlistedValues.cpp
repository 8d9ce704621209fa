#include "check/UnlistedValues.h"

#include "check/Findings.h"
#include "text/Text.h"

#include <utility>

void UnlistedValues::LookAt(const TextRow &pWords, const std::vector<std::size_t> &pOrder,
                            std::size_t pLine) {
    if (std::cmp_not_equal(pWords.Count(), myWanted.size())) {
        return;
    }
    for (std::size_t col = 0; col < myWanted.size(); ++col) {
        const std::string_view value = pWords(static_cast<int>(pOrder.empty() ? col : pOrder[col]) + 1);
        if (!myWanted[col].values.empty() && !myWanted[col].values.contains(LCase(value))) {
            Found &found = myFound[col][std::string(value)];
            found.line = found.records == 0 ? pLine : found.line;
            ++found.records;
        }
    }
}

void UnlistedValues::Report(Findings &pFindings) const {
    for (std::size_t col = 0; col < myFound.size(); ++col) {
        for (const auto &[value, found] : myFound[col]) {
            pFindings.Add(Kind::Note, found.line, Sort::NotListed,
                          Quoted(myWanted[col].title) + " has " + Quoted(value) +
                              ", which isn't in its list, in " + Counted(found.records, "record"));
        }
    }
}
