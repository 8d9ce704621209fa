/// The program NorvoCheckDat.
#include "app/VersionRecord.h"
#include "check/Command.h"
#include "text/System.h"

#include <cstdio>

int main(int argc, char *argv[]) {
    os::ReportWriteLimits();
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    const Outcome outcome = RunCheck(words, MakeAppRecord(os::ProgramFile()), versionRecord::FileVersion());
    std::fputs(outcome.errors.c_str(), stderr);
    const bool isPrinted =
        std::fwrite(outcome.output.data(), 1, outcome.output.size(), stdout) == outcome.output.size();
    return isPrinted && std::fflush(stdout) == 0 ? outcome.status : 2;
}
