#include "check/SpecCheck.h"

#include "check/DataCheck.h"
#include "check/MeantLines.h"
#include "data/SpecColumns.h"
#include "system/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <unordered_map>

namespace {

constexpr bool isSaved = false; // The editor only reads these files.
constexpr double wholeWindow = 100;
constexpr std::size_t firstColumnLine = 2;

/// Reports what is odd about an entry of a list. pEntries are those before it, with their lines.
void LookAtEntry(const std::string &pEntry, std::size_t pLine,
                 std::unordered_map<std::string, std::size_t> &pEntries, Findings &pFindings) {
    const auto [before, isNew] = pEntries.try_emplace(pEntry, pLine);
    if (pEntry.empty()) {
        pFindings.Add(pLine, Fault::EmptyEntry);
    } else if (Trim(pEntry).empty()) {
        pFindings.Add(pLine, Fault::BlankEntry);
    } else if (!isNew) {
        pFindings.Add(pLine, Fault::TwiceInList, {Quoted(pEntry), std::to_string(before->second)});
    } else if (Trim(pEntry).size() != pEntry.size()) {
        pFindings.Add(pLine, Fault::EntryWithBlanks, {Quoted(pEntry)});
    }
}

} // namespace

SpecCheck::SpecCheck(const std::string &pFile, const std::string &pProgramFolder)
    : myProgramFolder(pProgramFolder) {
    Findings &findings = myFindings.emplace_back(pFile, isSaved);
    const WantedColumns none;
    const EditorTable editor(pFile, clsDatFile::fmtDat, {});
    const MeantTable meant(editor, none);
    myFault = meant.fault;
    myRows = meant.records;
    if (!myFault.empty()) {
        return;
    }
    CompareWithEditor(meant, editor, none, findings);
    const SpecColumns columns(editor.table);
    if (!columns.Fault().empty()) {
        if (columns.Fault() != editor.table.Fault()) {
            findings.Add(1, Fault::BadSpecification, {columns.Fault()});
        }
        return;
    }
    std::size_t line = firstColumnLine;
    double percents = 0;
    for (const SpecColumn &column : columns.All()) {
        LookAtColumn(column, line++);
        percents += column.percent;
    }
    if (percents > wholeWindow) {
        findings.Add(1, Fault::TooWide);
    }
}

void SpecCheck::LookAtColumn(const SpecColumn &pColumn, std::size_t pLine) {
    WantedColumn &wanted = myColumns.emplace_back();
    wanted.title = pColumn.heading;
    if (pColumn.isTextBox) {
        return;
    }
    const std::string file = os::NativePath(pColumn.ListPath(myProgramFolder));
    if (Dir(file).empty()) {
        myFindings.front().Add(pLine, Fault::NoList, {Quoted(pColumn.listFile), file});
        return;
    }
    LookAtList(file, wanted);
    if (pColumn.mode < 1) {
        wanted.values.clear();
    }
}

void SpecCheck::LookAtList(const std::string &pFile, WantedColumn &pColumn) {
    Findings &findings = myFindings.emplace_back(pFile, isSaved);
    MeantLines lines(pFile);
    std::unordered_map<std::string, std::size_t> entries;
    std::size_t lfEnds = 0;
    while (lines.Next()) {
        lfEnds += lines.EndsInLf() ? 1U : 0U;
        LookAtEntry(std::string(lines.Text()), lines.Number(), entries, findings);
        pColumn.values.insert(LCase(lines.Text()));
    }
    if (!lines.Fault().empty()) {
        findings.Add(1, Fault::UnreadableList, {std::string(lines.Fault())});
    } else if (lfEnds > 0) {
        findings.Add(
            1, Fault::LfAlone,
            {Counted(lfEnds, "line") + ", so the editor reads each of them and the next as one entry"});
    } else if (entries.empty()) {
        findings.Add(1, Fault::EmptyList);
    }
    if (!lines.Fault().empty() || lfEnds > 0) {
        pColumn.values.clear(); // Values can't be looked up in a list that isn't what it was meant to be.
    }
}

void SpecCheck::Print(std::ostream &pTo) const {
    for (const Findings &findings : myFindings) {
        findings.Print(pTo);
    }
}
