#pragma once
/// Checks a specification file and the list files that it names, and says what it wants of data files.
#include "check/Findings.h"
#include "check/WantedColumns.h"

#include <algorithm>
#include <deque>
#include <iosfwd>
#include <string>

struct SpecColumn;

class SpecCheck {
public:
    /// Checks pFile. Its list files are looked for as named, then in pProgramFolder.
    SpecCheck(const std::string &pFile, const std::string &pProgramFolder);

    /// Why the file can't be read. Empty if it can.
    const std::string &Fault() const { return myFault; }
    /// What it wants; nothing if the editor refuses it.
    const WantedColumns &Columns() const { return myColumns; }
    /// How many columns the file was meant to describe.
    std::size_t Rows() const { return myRows; }
    /// Whether there is a finding of kind Lost, in the file or in one of its lists.
    bool IsLossy() const {
        return std::ranges::any_of(myFindings, [](const Findings &pOne) { return pOne.Of(Kind::Lost) > 0; });
    }
    void Print(std::ostream &pTo) const;

private:
    void LookAtColumn(const SpecColumn &pColumn, std::size_t pLine);
    void LookAtList(const std::string &pFile, WantedColumn &pColumn);

    std::string myProgramFolder;
    std::deque<Findings> myFindings; ///< of the specification, then of each list
    WantedColumns myColumns;
    std::size_t myRows = 0;
    std::string myFault;
};
