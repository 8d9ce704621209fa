#pragma once
/// A fresh, empty folder for the files of one test, removed with all that is in it when the test ends.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#ifdef __linux__
#include <csignal>
#include <sys/resource.h>

/// Runs pAct while no file can grow beyond pBytes.
template <typename Act> void WithFileLimit(std::size_t pBytes, Act pAct) {
    std::signal(SIGXFSZ, SIG_IGN); // The program itself ignores it too.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit lowered{pBytes, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &lowered);
    pAct();
    setrlimit(RLIMIT_FSIZE, &before);
}
#endif

class TemporaryFolder {
public:
    TemporaryFolder() {
        // Several test processes may run at once.
        const std::string name = "norvo_test_" + std::to_string(std::random_device()());
        const auto path = (std::filesystem::temp_directory_path() / name).generic_u8string();
        myPath.assign(path.begin(), path.end());
        std::filesystem::create_directory(path);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(Native(myPath), ignored);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// Full path of the folder, without a closing separator.
    const std::string &Path() const { return myPath; }

    /// Full path of pName in the folder; no file is made.
    std::string File(std::string_view pName) const { return myPath + "/" + std::string(pName); }

    /// Makes a file of exactly these bytes and gives its full path. Folders named in pName are made too.
    std::string Write(std::string_view pName, std::string_view pBytes) const {
        const auto path = Native(File(pName));
        std::filesystem::create_directories(path.parent_path());
        EXPECT_TRUE(std::ofstream(path, std::ios::binary) << pBytes << std::flush) << pName;
        return File(pName);
    }

    /// All bytes of a file in the folder. If it isn't there, the test fails and the text is empty.
    std::string Read(std::string_view pName) const {
        std::ifstream file(Native(File(pName)), std::ios::binary);
        EXPECT_TRUE(file.is_open()) << "can't read " << File(pName);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    /// Paths are UTF-8 on every system, which the plain constructor of path doesn't promise.
    static std::filesystem::path Native(const std::string &pUtf8) {
        return std::u8string(pUtf8.begin(), pUtf8.end());
    }

    std::string myPath;
};
