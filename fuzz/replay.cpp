/// Runs a fuzz target once over every file of a folder, the argument. So what a fuzzer has found stays
/// mended, with any compiler.
#include "fuzz/FuzzSupport.h"

#include <filesystem>
#include <set>

int main(int pCount, char **pArguments) {
    const std::filesystem::directory_iterator folder(pCount == 2 ? pArguments[1] : ".");
    const std::set<std::filesystem::path> seeds(begin(folder), end(folder));
    for (const std::filesystem::path &seed : seeds) {
        std::printf("%s\n", seed.filename().string().c_str());
        std::fflush(stdout); // The name is on the screen before anything goes wrong.
        RequireLaws(BytesOf(seed.string()));
    }
    std::printf("%zu replayed\n", seeds.size());
    return seeds.empty() ? 1 : 0;
}
