#include "check/EditorTable.h"

#include <utility>

namespace {

/// Thrown where the editor would end, with its last message.
struct EditorEnded {
    std::string message;
};

} // namespace

EditorTable::EditorTable(const std::string &pFile, std::int16_t pFmt, const std::vector<std::string> &pTitles)
    : table([](std::string_view pText) { throw EditorEnded{std::string(pText)}; }), fmt(pFmt) {
    table.FileName(pFile);
    table.Fmt(pFmt);
    table.Headers(pTitles);
    try {
        table.Load();
    } catch (const EditorEnded &end) {
        lastMessage = end.message;
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
