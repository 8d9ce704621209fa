#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// Paths are UTF-8 on every system, which the plain constructor of path doesn't promise.
fs::path PathOf(std::string_view pUtf8) {
    return std::u8string(pUtf8.begin(), pUtf8.end());
}

std::string Utf8Of(const fs::path &pPath) {
    const std::u8string text = pPath.generic_u8string();
    return {text.begin(), text.end()};
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    // Several test processes may run at once: a folder that is there already belongs to another one.
    for (int attempt = 0; attempt < 100; ++attempt) {
        const fs::path path = fs::temp_directory_path() / ("norvo_test_" + std::to_string(random()));
        if (fs::create_directory(path)) {
            myPath = Utf8Of(path);
            return;
        }
    }
    throw std::runtime_error("No temporary folder could be made");
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(PathOf(myPath), ignored);
}

std::string TemporaryFolder::File(std::string_view pName) const {
    return myPath + "/" + std::string(pName);
}

std::string TemporaryFolder::Write(std::string_view pName, std::string_view pBytes) const {
    std::string name = File(pName);
    fs::create_directories(PathOf(name).parent_path());
    std::ofstream file(PathOf(name), std::ios::binary);
    file.write(pBytes.data(), static_cast<std::streamsize>(pBytes.size()));
    file.close();
    EXPECT_TRUE(file) << "can't write " << name;
    return name;
}

std::string TemporaryFolder::Read(std::string_view pName) const {
    std::ifstream file(PathOf(File(pName)), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << "can't read " << File(pName);
    return {std::istreambuf_iterator<char>(file), {}};
}
