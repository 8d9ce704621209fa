/// Runs a fuzz target once over every file of a folder: what was found or thought of before must stay mended,
/// and needs no fuzzer for that.
#include "fuzz/FuzzSupport.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

int main(int pCount, char **pArguments) {
    if (pCount != 2) {
        std::fprintf(stderr, "One argument is needed: the folder with the corpus.\n");
        return 2;
    }
    std::vector<std::filesystem::path> seeds;
    for (const auto &entry : std::filesystem::directory_iterator(pArguments[1])) {
        seeds.push_back(entry.path());
    }
    std::sort(seeds.begin(), seeds.end());
    for (const std::filesystem::path &seed : seeds) {
        std::ifstream file(seed, std::ios::binary);
        const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
        Require(file.is_open(), "every file of the corpus can be read");
        std::printf("%s\n", seed.filename().string().c_str());
        std::fflush(stdout); // The last name stands before whatever goes wrong.
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
    }
    std::printf("%zu replayed\n", seeds.size());
    return seeds.empty() ? 1 : 0;
}
