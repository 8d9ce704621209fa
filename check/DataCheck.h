#pragma once
/// The check of a data file: what the editor would not show, or would write back different. The editor's own
/// reader reads the file. What it does not say, why and from which line on, is found out beside it.
#include "check/Findings.h"
#include "data/clsDatFile.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

class Runtime;
class SpecCheck;

class DataCheck {
public:
    /// Checks pFile, which has the form pFmt. pSpec may be null.
    DataCheck(const Runtime &pRuntime, const std::string &pFile, std::int16_t pFmt, const SpecCheck *pSpec);

    /// The system's reason if the file could not be read; empty otherwise.
    const std::string &ReadFault() const { return myReadFault; }

    const Findings &All() const { return myFindings; }
    /// The table as the editor has it.
    const clsDatFile &Table() const { return myTable; }
    /// Records that the editor would show as they are in the file.
    int RecordsInEditor() const;
    /// Whether the editor's table is all that the file holds: nothing is lost, changed, or worth a second
    /// look.
    bool IsWhole() const { return !myFindings.HasLostOrChanged() && myFeeds == 0; }

private:
    bool HasLineBeforeRows() const { return myFmt != clsDatFile::fmtCsv; }
    void CheckFirstLine(std::string_view pLine);
    void CheckTitles(std::string_view pLine);
    void Saw(std::string_view pLine, const TextRow &pWords);
    void CheckFirstRow(std::string_view pLine, const TextRow &pWords);
    void CheckText(std::string_view pLine, bool pHasHead);
    void CheckBytes(int pLine, std::string_view pText);
    void TellFurther(int pLine, std::string_view pText, int pWords, int pCols);
    void CheckValues(const TextRow &pWords);
    void Load();
    void CheckRest();
    void CheckColumns();
    void TellValues();
    void Lost(int pLine, const std::string &pSort, const std::string &pText) {
        myFindings.Add(pLine, Kind::Lost, pSort, pText);
    }

    struct Value {
        std::string text;
        int line;
        int records;
    };

    Findings myFindings;
    clsDatFile myTable;
    std::int16_t myFmt;
    const SpecCheck *mySpec;
    std::string myReadFault;
    bool myWasStopped = false; ///< the editor would end the program
    bool myIsOther = false;    ///< the columns are not the specification's
    int myCols = 0;            ///< of the table
    int myLine = 1;            ///< number of the line that comes next
    int myLastLine = 1;        ///< and of the one seen last
    int myFirstRowLine = 1;
    int mySeen = 0;           ///< lines taken for rows
    int myFitting = 0;        ///< of them those that fit
    int myFeeds = 0;          ///< LF without CR, in cells and outside
    bool myHasMisfit = false; ///< reading ended at a line
    std::string myMisfit;     ///< that line
    int myMisfitWords = 0;
    std::vector<std::map<std::string, Value>> myUnlisted; ///< by column, then by the text in lower case
};
