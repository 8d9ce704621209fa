#include "check/modCheck.h"

#include "check/CleanCopy.h"
#include "check/DataCheck.h"
#include "check/SpecCheck.h"
#include "data/Switches.h"
#include "system/Files.h"
#include "system/Memory.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>

namespace modCheck {

namespace {

constexpr const char *usage = "Usage: NorvoCheckDat [/csv|/csvh] [specfile] datfile [/to newfile]\n"
                              "       NorvoCheckDat /spec specfile\n";

struct Request {
    std::int16_t fmt = clsDatFile::fmtDat;
    std::optional<std::string> specFile;
    std::optional<std::string> datFile;
    std::optional<std::string> newFile;
};

/// What pWords ask for; nothing if they are wrong.
std::optional<Request> Read(const std::vector<std::string> &pWords) {
    Request request;
    std::vector<std::string> names;
    bool isSpec = false;
    for (std::size_t i = 0; i < pWords.size(); ++i) {
        const std::string name = SwitchName(pWords[i]);
        if (const std::optional<std::int16_t> fmt = SwitchFormat(name)) {
            request.fmt = *fmt;
        } else if (name == "spec") {
            isSpec = true;
        } else if (name != "to") {
            names.push_back(pWords[i]);
        } else if (++i < pWords.size()) {
            request.newFile = pWords[i];
        } else {
            return std::nullopt;
        }
    }
    if (names.empty() || names.size() > (isSpec ? 1U : 2U) || (isSpec && request.newFile)) {
        return std::nullopt;
    }
    if (isSpec || names.size() > 1) {
        request.specFile = names.front();
    }
    if (!isSpec) {
        request.datFile = names.back();
    }
    return request;
}

/// How many records a file was meant to have, and how many of them the editor shows.
std::string RecordsLine(const std::string &pFile, std::size_t pRecords, std::size_t pShown) {
    return pFile + ": " + Counted(pRecords, "record") + " in the file, " + std::to_string(pShown) +
           " in the editor\n";
}

int CheckData(const Request &pRequest, const SpecCheck *pSpec, std::ostream &pOut, std::ostream &pErrors) {
    static const WantedColumns none;
    const bool isRefused = pSpec != nullptr && pSpec->Columns().empty();
    const WantedColumns &wanted = pSpec != nullptr ? pSpec->Columns() : none;
    const EditorTable editor(*pRequest.datFile, pRequest.fmt, TitlesOf(wanted));
    const MeantTable meant(editor, wanted);
    if (!meant.fault.empty()) {
        pErrors << *pRequest.datFile << ": " << meant.fault << '\n';
        return statusImpossible;
    }
    Findings findings(*pRequest.datFile);
    CompareWithEditor(meant, editor, wanted, findings);
    std::optional<CleanCopy> copy;
    if (pRequest.newFile) {
        copy.emplace(meant, pRequest.fmt);
        if (isRefused) {
            copy->Refuse("the editor refuses the specification");
        }
        copy->Write(*pRequest.newFile);
    }
    const bool isCopied = copy && copy->Fault().empty();
    const auto print = [&] {
        if (isCopied) {
            copy->Report(findings);
        }
        findings.Print(pOut);
        pOut << (isCopied ? RecordsLine(*pRequest.newFile, meant.records, meant.records) : "")
             << RecordsLine(*pRequest.datFile, meant.records, isRefused ? 0 : editor.shown);
    };
    RunOrUndo(print, [&] {
        if (isCopied) { // Without memory to say so there is no copy.
            os::RemoveFile(*pRequest.newFile);
        }
    });
    if (copy && !isCopied) {
        pErrors << *pRequest.newFile << ": not written: " << copy->Fault() << '\n';
        return statusImpossible;
    }
    return findings.Of(Kind::Lost) + findings.Of(Kind::Changed) > 0 ? statusFound : statusGood;
}

} // namespace

int Main(const std::vector<std::string> &pWords, const std::string &pProgramFolder,
         const std::string &pVersion, std::ostream &pOut, std::ostream &pErrors) {
    if (pWords.size() == 1 && (pWords[0] == "--help" || pWords[0] == "/?")) {
        pOut << usage;
        return statusGood;
    }
    if (pWords.size() == 1 && pWords[0] == "--version") {
        pOut << "NorvoCheckDat " << pVersion << '\n';
        return statusGood;
    }
    const std::optional<Request> request = Read(pWords);
    if (!request) {
        pErrors << usage;
        return statusImpossible;
    }
    std::unique_ptr<SpecCheck> spec;
    int status = statusGood;
    if (request->specFile) {
        const std::string file = os::NativePath(NamedOrBeside(*request->specFile, pProgramFolder));
        if (Dir(file).empty()) {
            pErrors << "Specification file: " << file << " doesn't exist.\n";
            return statusImpossible;
        }
        spec = std::make_unique<SpecCheck>(file, pProgramFolder);
        if (!spec->Fault().empty()) {
            pErrors << file << ": " << spec->Fault() << '\n';
            return statusImpossible;
        }
        spec->Print(pOut);
        status = spec->IsLossy() ? statusFound : statusGood;
    }
    if (request->datFile) {
        return std::max(status, CheckData(*request, spec.get(), pOut, pErrors));
    }
    pOut << *request->specFile << ": " << Counted(spec->Rows(), "column") << " in the file, "
         << spec->Columns().size() << " in the editor\n";
    return status;
}

} // namespace modCheck
