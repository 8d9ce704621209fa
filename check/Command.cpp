#include "check/Command.h"

#include "check/Copy.h"
#include "check/DataCheck.h"
#include "check/Diagnosis.h"
#include "check/Silence.h"
#include "check/SpecCheck.h"
#include "text/Files.h"
#include "text/Text.h"

#include <memory>
#include <optional>

namespace {

constexpr int found = 1;
constexpr int failed = 2;

constexpr const char *usage =
    "Usage:\n"
    "  NorvoCheckDat [/csv|/csvh] [specfile] datfile [/to newfile]\n"
    "  NorvoCheckDat /spec specfile\n"
    "Says what the Norvo Data File Editor would not show of a file, or would change, and\n"
    "writes a copy that it takes whole. /csv: the file is CSV. /csvh: with a header line.\n";

struct Job {
    std::vector<std::string> names;
    std::int16_t fmt = clsDatFile::fmtDat;
    std::string newFile;
    bool hasNewFile = false;
    bool isSpec = false;
};

/// Nothing if the words are not a command.
std::optional<Job> Read(const std::vector<std::string> &pWords) {
    Job job;
    for (std::size_t at = 0; at < pWords.size(); ++at) {
        const std::string lower = LCase(pWords[at]);
        const std::string word = lower.starts_with('-') ? '/' + lower.substr(1) : lower;
        if (word == "/csv") {
            job.fmt = clsDatFile::fmtCsv;
        } else if (word == "/csvh") {
            job.fmt = clsDatFile::fmtCsvWithHeaders;
        } else if (word == "/spec") {
            job.isSpec = true;
        } else if (word == "/to") {
            job.hasNewFile = true;
            job.newFile = ++at < pWords.size() ? pWords[at] : "";
        } else {
            job.names.push_back(pWords[at]);
        }
    }
    const std::size_t most = job.isSpec ? 1 : 2;
    const bool isRight = !job.names.empty() && job.names.size() <= most && !job.names.back().empty() &&
                         job.hasNewFile == !job.newFile.empty() && !(job.isSpec && job.hasNewFile);
    return isRight ? std::optional(job) : std::nullopt;
}

class Command {
public:
    explicit Command(const AppRecord &pApp) : myRuntime(mySilence, pApp, "") {}

    Outcome Run(const Job &pJob) {
        if (!pJob.isSpec && pJob.names.size() == 1) {
            CheckData(pJob, nullptr);
        } else if (const auto spec = CheckSpec(pJob.names.front())) {
            if (pJob.isSpec) {
                Print(pJob.names.front() + ": " +
                      Counted(static_cast<long long>(spec->Columns().size()), "column") + "\n");
            } else if (spec->IsAccepted()) {
                CheckData(pJob, spec.get());
            }
        }
        return myOutcome;
    }

private:
    void Print(const std::string &pText) { myOutcome.output += pText; }

    void Fail(const std::string &pText) {
        myOutcome.status = failed;
        myOutcome.errors += "NorvoCheckDat: " + pText + "\n";
    }

    void Show(const Findings &pFindings) {
        Print(pFindings.Text());
        if (pFindings.HasLostOrChanged() && myOutcome.status == 0) {
            myOutcome.status = found;
        }
    }

    std::unique_ptr<SpecCheck> CheckSpec(std::string pFile) {
        if (Dir(pFile).empty()) {
            pFile = myRuntime.App().Path + "\\" + pFile;
        }
        if (Dir(pFile).empty()) {
            Fail("Specification file: " + pFile + " doesn't exist.");
            return nullptr;
        }
        auto spec = std::make_unique<SpecCheck>(myRuntime, pFile);
        for (const Findings &one : spec->All()) {
            Show(one);
        }
        return spec;
    }

    void CheckData(const Job &pJob, const SpecCheck *pSpec) {
        const std::string &file = pJob.names.back();
        const DataCheck check(myRuntime, file, pJob.fmt, pSpec);
        if (!check.ReadFault().empty()) {
            Fail(check.ReadFault());
            return;
        }
        Show(check.All());
        if (pJob.hasNewFile) {
            WriteCopy(pJob, check, pSpec);
        }
        const auto records = check.IsWhole() ? static_cast<std::size_t>(check.RecordsInEditor())
                                             : MeantFile(file, pJob.fmt).Count();
        Print(file + ": " + Counted(static_cast<long long>(records), "record") + " in the file, " +
              std::to_string(check.RecordsInEditor()) + " in the editor\n");
    }

    void WriteCopy(const Job &pJob, const DataCheck &pCheck, const SpecCheck *pSpec) {
        const Copy copy(myRuntime, pCheck, pJob.fmt, pSpec, pJob.newFile);
        if (!copy.Fault().empty()) {
            Fail(copy.Fault() + " Nothing was written.");
            return;
        }
        Print(copy.Notes().Text() + pJob.newFile + ": " +
              Counted(static_cast<long long>(copy.Records()), "record") + " written\n");
    }

    Silence mySilence;
    Runtime myRuntime;
    Outcome myOutcome;
};

} // namespace

Outcome RunCheck(const std::vector<std::string> &pWords, const AppRecord &pApp, const std::string &pVersion) {
    if (pWords.size() == 1 && pWords.front() == "--help") {
        return {0, usage, ""};
    }
    if (pWords.size() == 1 && pWords.front() == "--version") {
        return {0, "NorvoCheckDat " + pVersion + "\n", ""};
    }
    const std::optional<Job> job = Read(pWords);
    return job ? Command(pApp).Run(*job) : Outcome{failed, "", usage};
}
