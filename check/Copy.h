#pragma once
/// A clean copy of a data file: the records as its writer meant them, in the form in which the editor writes
/// them.
#include "check/Findings.h"
#include "check/MeantTable.h"

#include <cstdint>
#include <string>
#include <vector>

class DataCheck;
class Runtime;
class SpecCheck;

/// The records of a file, and what stands before them.
class MeantFile {
public:
    /// Reads pFile, which has the form pFmt.
    MeantFile(const std::string &pFile, std::int16_t pFmt);

    const MeantTable &Table() const { return myTable; }
    /// Place of the first record among the table's, from 0: the titles or the counts may come before it.
    std::size_t First() const { return myFirst; }
    std::size_t Count() const { return myTable.Records().size() - myFirst; }
    /// The line before the records; empty if there is none.
    TextRow Head() const { return myFirst == 0 ? TextRow() : myTable.Records().front(); }

private:
    MeantTable myTable;
    std::size_t myFirst;
};

class Copy {
public:
    /// Writes the records of the file that pCheck has checked, which has the form pFmt, to pNewFile. pSpec
    /// may be null.
    Copy(const Runtime &pRuntime, const DataCheck &pCheck, std::int16_t pFmt, const SpecCheck *pSpec,
         const std::string &pNewFile);

    /// Why there is no copy; empty if there is one.
    const std::string &Fault() const { return myFault; }
    /// What differs from the file, each once.
    const Findings &Notes() const { return myNotes; }
    std::size_t Records() const { return myRows.size(); }

private:
    void TakeWholeTable(const DataCheck &pCheck, std::int16_t pFmt);
    void TakeMeant(const MeantFile &pFile, std::int16_t pFmt, const SpecCheck *pSpec);
    void SettleColumns(const MeantFile &pFile, std::int16_t pFmt, const SpecCheck *pSpec);
    void FitRecords(const MeantFile &pFile);
    void PutIntoOrder(const std::vector<std::string> &pTitles);
    void NoteLiberties(const MeantFile &pFile, std::int16_t pFmt);
    void Note(long long pCount, const std::string &pWhat, const std::string &pUnit);
    void Write(const Runtime &pRuntime, std::int16_t pFmt, const std::string &pNewFile);
    bool ComesBack(const Runtime &pRuntime, std::int16_t pFmt, const std::string &pNewFile) const;

    Findings myNotes;
    std::string myFault;
    std::vector<TextRow> myRows;
    std::vector<std::string> myTitles;
    int myCols = 0;
};
