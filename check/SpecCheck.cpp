#include "check/SpecCheck.h"

#include "check/DataCheck.h"
#include "data/SpecColumns.h"
#include "system/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <unordered_map>

namespace {

constexpr bool isSaved = false; // The editor only reads these files.
constexpr double wholeWindow = 100;
constexpr std::size_t firstColumnLine = 2;

/// Reports what is odd about the entry pText of a list. pEntries are those before it, with their lines.
void LookAtEntry(const MeantLine &pLine, std::unordered_map<std::string, std::size_t> &pEntries,
                 Findings &pFindings) {
    const std::string text(pLine.text);
    const auto [before, isNew] = pEntries.try_emplace(text, pLine.number);
    if (text.empty()) {
        pFindings.Add(Kind::Note, pLine.number, Sort::Entry,
                      "an empty entry; it lets the field be left empty");
    } else if (Trim(text).empty()) {
        pFindings.Add(Kind::Note, pLine.number, Sort::Entry, "an entry of blanks, which no saved cell keeps");
    } else if (!isNew) {
        pFindings.Add(Kind::Note, pLine.number, Sort::Entry,
                      Quoted(text) + " stands in line " + std::to_string(before->second) + " already");
    } else if (Trim(text).size() != text.size()) {
        pFindings.Add(Kind::Note, pLine.number, Sort::Entry,
                      Quoted(text) + " has blanks at its ends, which no saved cell keeps");
    }
}

} // namespace

SpecCheck::SpecCheck(const std::string &pFile, const std::string &pProgramFolder)
    : myProgramFolder(pProgramFolder) {
    Findings &findings = myFindings.emplace_back(pFile, isSaved);
    const WantedColumns none;
    DataCheck check(clsDatFile::fmtDat, none, findings);
    check.Run();
    myFault = check.Fault();
    myRows = check.Records();
    if (!myFault.empty()) {
        return;
    }
    const SpecColumns columns(check.Table());
    if (!columns.Fault().empty()) {
        if (columns.Fault() != check.Table().Fault()) {
            findings.Add(Kind::Lost, 1, Sort::Specification, columns.Fault());
        }
        return;
    }
    std::size_t line = firstColumnLine;
    double percents = 0;
    for (const SpecColumn &column : columns.All()) {
        TakeColumn(column, line++);
        percents += column.percent;
    }
    if (percents > wholeWindow) {
        findings.Add(Kind::Note, 1, Sort::Specification,
                     "the widths sum to more than 100 percent, so fields lie beyond the window");
    }
}

void SpecCheck::TakeColumn(const SpecColumn &pColumn, std::size_t pLine) {
    WantedColumn &wanted = myColumns.emplace_back();
    wanted.title = pColumn.heading;
    if (pColumn.isTextBox) {
        return;
    }
    const std::string &name = pColumn.listFile;
    const std::string file = os::NativePath(pColumn.ListPath(myProgramFolder));
    if (Dir(file).empty()) {
        myFindings.front().Add(Kind::Note, pLine, Sort::ListFile,
                               "the list file " + Quoted(name) + " isn't there, and neither is " + file +
                                   "; the field takes any text");
        return;
    }
    TakeList(file, wanted);
    if (pColumn.mode < 1) {
        wanted.values.clear();
    }
}

void SpecCheck::TakeList(const std::string &pFile, WantedColumn &pColumn) {
    Findings &findings = myFindings.emplace_back(pFile, isSaved);
    MeantLines lines(pFile);
    std::unordered_map<std::string, std::size_t> entries;
    std::size_t lfEnds = 0;
    while (lines.Next()) {
        lfEnds += lines.Line().endsInLf ? 1U : 0U;
        LookAtEntry(lines.Line(), entries, findings);
        pColumn.values.insert(LCase(lines.Line().text));
    }
    if (!lines.Fault().empty()) {
        findings.Add(Kind::Lost, 1, Sort::ListFile,
                     "the list can't be read: " + std::string(lines.Fault()) + "; the field takes any text");
    } else if (lfEnds > 0) {
        findings.Add(Kind::Lost, 1, Sort::LineEnds,
                     "LF alone ends " + Counted(lfEnds, "line") +
                         ", so the editor reads each of them and the next "
                         "as one entry");
    } else if (lines.Count() == 0) {
        findings.Add(Kind::Note, 1, Sort::ListFile, "the list is empty; the field takes any text");
    }
    if (!lines.Fault().empty() || lfEnds > 0) {
        pColumn.values.clear(); // Values can't be looked up in a list that isn't what it was meant to be.
    }
}

bool SpecCheck::IsLossy() const {
    return std::any_of(myFindings.begin(), myFindings.end(),
                       [](const Findings &pFindings) { return pFindings.Of(Kind::Lost) > 0; });
}

void SpecCheck::Print(std::ostream &pTo) const {
    for (const Findings &findings : myFindings) {
        findings.Print(pTo);
    }
}
