#include "check/EditorTable.h"

#include <stdexcept>
#include <utility>

EditorTable::EditorTable(const std::string &pFile, std::int16_t pFmt, const std::vector<std::string> &pTitles)
    : table([](std::string_view pText) { throw std::runtime_error(std::string(pText)); }), fmt(pFmt) {
    table.FileName(pFile);
    table.Fmt(pFmt);
    table.Headers(pTitles);
    try {
        table.Load();
    } catch (const std::runtime_error &end) {
        lastMessage = end.what();
        return;
    }
    if (table.WasRead() && table.Cols() > 0 && table.Rows() > 0) {
        read = static_cast<std::size_t>(table.Rows());
    }
    // The rows that the .dat reader did not get to have no cells.
    while (read > 0 && Row(read - 1).Count() == 0) {
        --read;
    }
    const bool isRefused = !pTitles.empty() && std::cmp_not_equal(table.Cols(), pTitles.size());
    shown = isRefused ? 0 : read;
}
