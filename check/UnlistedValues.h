#pragma once
/// The values of a table that their columns don't list, although they insist on listed ones.
#include "check/WantedColumns.h"
#include "text/TextRow.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

class Findings;

class UnlistedValues {
public:
    explicit UnlistedValues(const WantedColumns &pWanted) : myWanted(pWanted), myFound(pWanted.size()) {}

    /// Looks at the record of line pLine. pOrder says where each wanted column stands in it; empty when they
    /// stand as wanted.
    void LookAt(const TextRow &pWords, const std::vector<std::size_t> &pOrder, std::size_t pLine);

    /// Adds a note for each value, at the first line that has it.
    void Report(Findings &pFindings) const;

private:
    struct Found {
        std::size_t line = 0;
        std::size_t records = 0;
    };

    const WantedColumns &myWanted;
    std::vector<std::map<std::string, Found>> myFound; ///< by column and value
};
