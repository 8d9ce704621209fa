#pragma once
/// What the editor makes of a table file: its own table, loaded as the editor loads it.
#include "data/clsDatFile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct EditorTable {
    /// Loads pFile, of the form pFmt, one of clsDatFile's. pTitles are those of the specification, if there
    /// is one.
    EditorTable(const std::string &pFile, std::int16_t pFmt, const std::vector<std::string> &pTitles);

    /// Record pRecord, from 0, one of those read.
    TextRow Row(std::size_t pRecord) const { return table.Row(static_cast<std::int16_t>(pRecord)); }

    clsDatFile table;
    std::int16_t fmt;
    std::string lastMessage; ///< with which the editor ends at this file; empty if it doesn't end
    std::size_t read = 0;    ///< how many records it reads
    std::size_t shown = 0;   ///< how many of them it shows: none if it refuses the file
};
