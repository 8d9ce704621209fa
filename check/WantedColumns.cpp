#include "check/WantedColumns.h"

#include <algorithm>
#include <optional>

std::vector<std::string> TitlesOf(const WantedColumns &pWanted) {
    std::vector<std::string> titles;
    for (const WantedColumn &column : pWanted) {
        titles.push_back(column.title);
    }
    return titles;
}

std::vector<std::size_t> OrderOf(const WantedColumns &pWanted, const std::vector<std::string> &pTitles) {
    std::vector<std::optional<std::string>> left(pTitles.begin(), pTitles.end());
    std::vector<std::size_t> order;
    for (const WantedColumn &column : pWanted) {
        const auto found = std::find(left.begin(), left.end(), column.title);
        if (found == left.end()) {
            return {};
        }
        order.push_back(static_cast<std::size_t>(found - left.begin()));
        found->reset(); // Two columns may have the same title.
    }
    const bool isOther = pTitles.size() == order.size() && !std::is_sorted(order.begin(), order.end());
    return isOther ? order : std::vector<std::size_t>();
}
