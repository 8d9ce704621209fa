#pragma once
/// A copy of a table file that the editor takes whole: the meant table, in the form that the editor keeps,
/// written by the editor's own table. There is none of a file with a fault that nobody can mend.
#include "check/Findings.h"
#include "check/MeantTable.h"
#include "text/TextRow.h"

#include <cstdint>
#include <string>
#include <vector>

class CleanCopy {
public:
    /// The copy has the form pFmt, one of clsDatFile's.
    CleanCopy(const MeantTable &pMeant, std::int16_t pFmt);

    /// There can be no copy, because of pWhy.
    void Refuse(const std::string &pWhy);
    /// Why there is no copy. Empty if there is, or can be.
    const std::string &Fault() const { return myFault; }

    /// Writes the copy to pFile, which must not exist yet, and reads it back. After a fault there is no such
    /// file.
    void Write(const std::string &pFile);
    /// Adds what is different in the copy: for each fault, in how many lines it was mended.
    void Report(Findings &pFindings) const;

    const std::vector<TextRow> &Rows() const { return myRows; }

private:
    void RefuseFaultsOf(const MeantRecord &pLine);
    TextRow CleanRow(const MeantRecord &pRecord);
    void Fill(const std::string &pFile);
    bool ReadsBack(const std::string &pFile);

    const MeantTable &myMeant;
    std::int16_t myFmt;
    TextRowRoom myRoom;
    TextRow myTitles;
    std::vector<TextRow> myRows;
    std::string myFault;
};
