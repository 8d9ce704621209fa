#include "check/SpecCheck.h"

#include "platform/ComboBox.h"
#include "platform/Runtime.h"
#include "text/Files.h"
#include "text/Text.h"
#include "ui/clsCombo.h"

#include <algorithm>
#include <map>

SpecCheck::SpecCheck(Runtime &pRuntime, const std::string &pSpecFile)
    : myRuntime(pRuntime), myTable(pRuntime) {
    myFindings.emplace_back(pSpecFile);
    myTable.FileName(pSpecFile);
    myTable.Load();
    const SpecColumns columns(myTable);
    myFault = columns.Fault();
    myColumns = columns.All();
    if (!myFault.empty()) {
        // A fault of a row is that of the last column read; the line of counts comes before the rows.
        const bool isOfRow = myFault.starts_with("Row ");
        myFindings.front().Add(isOfRow ? static_cast<int>(myColumns.size()) + 1 : 1, Kind::Lost, "refused",
                               myFault);
        return;
    }
    CheckWidths();
    for (std::size_t at = 0; at < myColumns.size(); ++at) {
        myListed.emplace_back();
        if (!myColumns[at].isTextBox) {
            CheckList(myColumns[at], static_cast<int>(at) + 2);
        }
    }
}

void SpecCheck::CheckWidths() {
    double sum = 0;
    for (const SpecColumn &column : myColumns) {
        sum += column.percent;
    }
    constexpr int whole = 100;
    if (sum > whole) {
        myFindings.front().Add(1, Kind::Note, "widths",
                               "the widths sum to " + std::to_string(static_cast<int>(sum)) +
                                   " percent; the fields beyond 100 are outside the window");
    }
}

std::vector<std::string> SpecCheck::Entries(const std::string &pFile, std::string &pFault) const {
    // The editor's own field reads them, on a form that nobody sees.
    Form form(myRuntime);
    auto &box = form.Add<ComboBox>("list");
    clsCombo combo;
    combo.cb(box);
    combo.LoadFromTxtFile(pFile);
    pFault = combo.Fault();
    std::vector<std::string> entries;
    for (int index = 0; index < box.ListCount(); ++index) {
        entries.push_back(box.List(index));
    }
    return entries;
}

void SpecCheck::CheckList(const SpecColumn &pColumn, int pLine) {
    const std::string path = pColumn.ListPath(myRuntime.App().Path);
    if (Dir(path).empty()) {
        myFindings.front().Add(pLine, Kind::Note, "no list",
                               "the list file " + pColumn.listFile + " is neither there nor at " + path +
                                   ", so the field takes any text");
        return;
    }
    const auto isSame = [&](const Findings &pOne) { return pOne.File() == path; };
    Findings findings(path);
    std::string fault;
    const std::vector<std::string> entries = Entries(path, fault);
    if (!fault.empty()) {
        findings.Add(1, Kind::Lost, "unreadable",
                     "the list can't be read: " + fault + "; the field takes any text");
    } else {
        CheckEntries(entries, findings);
    }
    if (pColumn.mode > 0 && !entries.empty()) {
        auto &listed = myListed.back().emplace();
        for (const std::string &entry : entries) {
            listed.insert(LCase(entry));
        }
    }
    if (std::none_of(myFindings.begin(), myFindings.end(), isSame)) {
        myFindings.push_back(std::move(findings)); // Two columns may share a list.
    }
}

void SpecCheck::CheckEntries(const std::vector<std::string> &pEntries, Findings &pFindings) {
    if (pEntries.empty()) {
        pFindings.Add(1, Kind::Note, "empty", "the list is empty, so the field takes any text");
    }
    std::map<std::string, int> firstLines;
    int line = 1;
    for (const std::string &entry : pEntries) {
        const auto breaks = std::count(entry.begin(), entry.end(), '\n');
        const auto [first, isNew] = firstLines.try_emplace(LCase(entry), line);
        if (breaks > 0) {
            pFindings.Add(line, Kind::Lost, "LF alone",
                          "LF alone ends lines here; the editor takes " + std::to_string(breaks + 1) +
                              " lines for one entry");
        } else if (Trim(entry).empty()) {
            pFindings.Add(line, Kind::Note, "blank entry",
                          "the entry is blank, so the field may be left empty");
        } else if (Trim(entry).size() != entry.size()) {
            pFindings.Add(line, Kind::Note, "blanks",
                          "the entry has blanks at its ends, which a saved text loses: " + Quoted(entry));
        }
        if (!isNew) {
            pFindings.Add(line, Kind::Note, "doubled",
                          "the entry is the same as that of line " + std::to_string(first->second));
        }
        line += 1 + static_cast<int>(breaks);
    }
}
