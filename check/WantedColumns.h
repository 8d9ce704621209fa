#pragma once
/// What a specification wants of the columns of a data file.
#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

struct WantedColumn {
    std::string title;
    /// The values that the column insists on, in lower case. Empty: any text will do.
    std::unordered_set<std::string> values;
};

/// Empty when no specification is named.
using WantedColumns = std::vector<WantedColumn>;

/// The title of each of pWanted.
std::vector<std::string> TitlesOf(const WantedColumns &pWanted);

/// Where each of pWanted stands, if pTitles are its titles in another order. Otherwise empty.
std::vector<std::size_t> OrderOf(const WantedColumns &pWanted, const std::vector<std::string> &pTitles);
