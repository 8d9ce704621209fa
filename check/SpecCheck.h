#pragma once
/// The check of a specification file and of the list files that it names.
#include "check/Findings.h"
#include "data/clsDatFile.h"
#include "editor/SpecColumns.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

class Runtime;

class SpecCheck {
public:
    /// Reads pSpecFile and its lists as the editor does. pRuntime's record says where the program is, beside
    /// which lists are looked for.
    SpecCheck(Runtime &pRuntime, const std::string &pSpecFile);

    /// Whether the editor takes the specification.
    bool IsAccepted() const { return myFault.empty(); }

    const std::vector<SpecColumn> &Columns() const { return myColumns; }
    /// The headings as the editor writes them into a header line.
    std::vector<std::string> Titles() const { return myTable.Col(0); }
    /// The entries of column pColumn's list, from 0, in lower case. Nothing if any text is accepted there.
    const std::optional<std::set<std::string>> &Listed(std::size_t pColumn) const {
        return myListed[pColumn];
    }

    /// The findings of the specification and of its lists, one file after another.
    const std::vector<Findings> &All() const { return myFindings; }

private:
    void CheckWidths();
    void CheckList(const SpecColumn &pColumn, int pLine);
    std::vector<std::string> Entries(const std::string &pFile, std::string &pFault) const;
    static void CheckEntries(const std::vector<std::string> &pEntries, Findings &pFindings);

    Runtime &myRuntime;
    clsDatFile myTable;
    std::string myFault;
    std::vector<SpecColumn> myColumns;
    std::vector<std::optional<std::set<std::string>>> myListed;
    std::vector<Findings> myFindings;
};
