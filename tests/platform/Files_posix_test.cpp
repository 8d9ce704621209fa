#ifndef _WIN32
/// What only this family of systems has: names with a backslash, pipes, devices, limits of file size.
#include "platform/Files.h"
#include "platform/System.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

TextOutput::Fault Written(const std::string &pName, std::string_view pText) {
    TextOutput output(pName);
    output.Print(pText);
    return output.Close();
}

} // namespace

TEST(FilesPosix, ANameThatExistsAsTypedGoesBeforeTheFolderThatItSpells) {
    const TemporaryFolder folder;
    folder.Write("a/b.txt", "in the folder");
    EXPECT_EQ(os::NativePath(folder.File("a\\b.txt")), folder.File("a/b.txt"));
    EXPECT_EQ(Dir(folder.File("a\\b.txt")), "b.txt");
    folder.Write("a\\b.txt", "as typed");
    folder.Write(".*", "");
    EXPECT_EQ(Dir(folder.File("a\\b.txt")), "a\\b.txt");
    EXPECT_EQ(TextInput(folder.File("a\\b.txt")).LineInput(), "as typed");
    EXPECT_EQ(Dir(folder.File(".*")), ".*");
}

TEST(FilesPosix, APipeIsRefusedAtOnceAndUntouched) {
    const TemporaryFolder folder;
    const std::string name = folder.File("pipe");
    ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
    EXPECT_NE(TextInput(name).Fault(), "");
    // With a reader at its end the pipe would take what is written.
    const int reader = open(name.c_str(), O_RDONLY | O_NONBLOCK);
    const TextOutput::Fault fault = Written(name, "x");
    char byte = 0;
    EXPECT_NE(fault.reason, "");
    EXPECT_FALSE(fault.mayBeIncomplete);
    EXPECT_LE(read(reader, &byte, 1), 0);
    close(reader);
}

TEST(FilesPosix, ADeviceIsNotReadButWritten) {
    EXPECT_NE(TextInput("/dev/zero").Fault(), "");
    EXPECT_EQ(Written("/dev/null", "x").reason, "");
    const TextOutput::Fault fault = Written("/dev/full", "x");
    EXPECT_NE(fault.reason, "");
    EXPECT_FALSE(fault.mayBeIncomplete);
}

TEST(FilesPosix, AFileThatMayNotBeTouchedStaysAsItIs) {
    const TemporaryFolder folder;
    const std::string name = folder.Write("locked.txt", "old");
    chmod(name.c_str(), 0);
    if (access(name.c_str(), R_OK) == 0) {
        GTEST_SKIP() << "this user may read and write everything";
    }
    EXPECT_NE(TextInput(name).Fault(), "");
    const TextOutput::Fault fault = Written(name, "new");
    EXPECT_NE(fault.reason, "");
    EXPECT_FALSE(fault.mayBeIncomplete);
    chmod(name.c_str(), 0600);
    EXPECT_EQ(folder.Read("locked.txt"), "old");
}

TEST(FilesPosix, EveryLimitOfFileSizeIsReportedUpToTheWholeFile) {
    os::ReportWriteLimits();
    const TemporaryFolder folder;
    const std::string text = "1,1\r\n\"x\"\r\n";
    for (rlim_t size = 0; size <= text.size(); ++size) {
        folder.Write("limited.dat", "something old, and longer than the new text");
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{size, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        const TextOutput::Fault fault = Written(folder.File("limited.dat"), text);
        setrlimit(RLIMIT_FSIZE, &before);
        const bool fits = size == text.size();
        EXPECT_EQ(fault.reason.empty(), fits) << size;
        EXPECT_EQ(fault.mayBeIncomplete, !fits) << size;
        EXPECT_EQ(folder.Read("limited.dat"), text.substr(0, size));
    }
}
#endif
