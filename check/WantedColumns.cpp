#include "check/WantedColumns.h"

#include <algorithm>

std::vector<std::string> TitlesOf(const WantedColumns &pWanted) {
    std::vector<std::string> titles;
    for (const WantedColumn &column : pWanted) {
        titles.push_back(column.title);
    }
    return titles;
}

std::vector<std::size_t> OrderOf(const WantedColumns &pWanted, const std::vector<std::string> &pTitles) {
    const std::vector<std::string> wanted = TitlesOf(pWanted);
    std::vector<std::size_t> order;
    if (pTitles == wanted ||
        !std::is_permutation(wanted.begin(), wanted.end(), pTitles.begin(), pTitles.end())) {
        return order;
    }
    std::vector<bool> isTaken(pTitles.size()); // Two columns may have the same title.
    for (const std::string &title : wanted) {
        std::size_t place = 0;
        while (isTaken[place] || pTitles[place] != title) {
            ++place;
        }
        isTaken[place] = true;
        order.push_back(place);
    }
    return order;
}
