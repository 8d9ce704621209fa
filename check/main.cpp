/// The command-line program NorvoCheckDat.
#include "app/VersionRecord.h"
#include "check/modCheck.h"
#include "system/Memory.h"
#include "system/System.h"

#include <iostream>

int main(int argc, char *argv[]) {
    os::LetCallsFail();
    std::ios::sync_with_stdio(false);
    os::PrintUtf8();
    const std::vector<std::string> words = os::ProgramWords(argc, argv);
    const std::string folder = ProgramFolder(os::ProgramFile());
    int status = modCheck::statusImpossible;
    const bool hasMemory = HasMemoryFor([&] {
        status = modCheck::Main(words, folder, std::string(versionRecord::fileVersion), std::cout, std::cerr);
    });
    if (!hasMemory) {
        std::cerr << "There is not enough memory.\n";
    }
    std::cout.flush();
    return std::cout ? status : modCheck::statusImpossible;
}
