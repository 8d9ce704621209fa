#include "system/Files.h"
#include "tests/support/TemporaryFolder.h"
#include "text/Text.h"

#include <gtest/gtest.h>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

/// Writes pText to pFile. Returns whether that went well.
bool Write(const std::string &pFile, const std::string &pText) {
    os::FileWriter file(pFile);
    file.Write(pText);
    file.Close();
    return file.Fault().empty();
}

/// What pFile holds, or why it can't be read.
std::string Read(const std::string &pFile) {
    TextInput file(pFile);
    const std::string line(file.LineInput());
    return file.Fault().empty() ? line : "(" + std::string(file.Fault()) + ")";
}

bool CanBeRead(const std::string &pFile) {
    return !Read(pFile).starts_with('(');
}

TEST(WindowsFiles, HaveAnyNameThatTheSystemHas) {
    const TemporaryFolder folder;
    for (const std::string &name :
         {std::string("plain.dat"), std::string("日本 ŝ.dat"), std::string("a~b.dat")}) {
        EXPECT_TRUE(Write(folder.File(name), name));
        EXPECT_EQ(Dir(folder.File(name)), name);
        EXPECT_EQ(Read(folder.File(name)), name);
    }
    std::string deep = folder.File("deep");
    for (int level = 0; level < 10; ++level) {
        const std::wstring path = std::filesystem::path(deep).make_preferred().wstring();
        ASSERT_TRUE(CreateDirectoryW((LR"(\\?\)" + path).c_str(), nullptr));
        deep += "\\a folder with a name of forty characters.";
        deep.back() = 'x';
    }
    ASSERT_TRUE(Write(deep, "deep")) << "names may have more than 260 characters";
    EXPECT_EQ(Read(deep), "deep");
    for (const std::string &file : {folder.File("plain.dat"), deep}) {
        const std::filesystem::path path = std::filesystem::absolute(file).make_preferred();
        EXPECT_EQ(Read("\\\\?\\" + path.string()), Read(file));
    }
}

TEST(WindowsFiles, ThatAreHiddenAreNotFoundButAreOpened) {
    const TemporaryFolder folder;
    for (const DWORD attribute : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
        const std::string file = folder.File("f" + std::to_string(attribute));
        Write(file, "kept");
        SetFileAttributesA(file.c_str(), attribute);
        EXPECT_EQ(Dir(file), "");
        EXPECT_EQ(Read(file), "kept");
        EXPECT_TRUE(Write(file, "new")) << "a save goes over it all the same";
        EXPECT_EQ(Read(file), "new");
    }
    EXPECT_EQ(Dir(folder.File("")), "");
    EXPECT_TRUE(os::IsFolder(folder.File("")));
}

TEST(WindowsFiles, ThatCannotBeWrittenAreLeftAlone) {
    const TemporaryFolder folder;
    const std::string file = folder.File("file.dat");
    Write(file, "kept");
    for (const std::string &name :
         {file + ".", file + " ", file + "\\below", folder.File(""), folder.File("a*b"),
          folder.File("plain:stream"), std::string("NUL"), std::string("COM1"), std::string("Q:\\gone.dat"),
          std::string("\\\\nobody\\share\\f.dat"), std::string("a\0b", 3), std::string("\xFF.dat")}) {
        EXPECT_FALSE(Write(name, "lost")) << name;
        EXPECT_FALSE(CanBeRead(name)) << name;
    }
    EXPECT_NE(Dir("Q:\\gone.dat"), "") << "a drive that is gone is told, when its file is opened";
    EXPECT_NE(Dir("Q:\\" + std::string(300, 'x')), "") << "also by a long name";
    EXPECT_NE(Dir("\\\\nobody\\share\\f.dat"), "") << "so is a server";
    EXPECT_EQ(Dir(folder.File("no folder\\f.dat")) + Dir(file + "\\below") + Dir("a*b"), "");
    SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(Write(file, "lost"));
    SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    const HANDLE held =
        CreateFileA(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_FALSE(Write(file, "lost")) << "another program has it open";
    EXPECT_FALSE(CanBeRead(file));
    CloseHandle(held);
    EXPECT_EQ(Read(file), "kept");
    EXPECT_EQ(os::MakeNewFile(file).Words().empty(), false);
    os::RemoveFile(file);
    EXPECT_EQ(os::MakeNewFile(file).Words(), "");
}

TEST(WindowsFiles, TellWhatFailsOnceTheyAreOpen) {
    const std::string kernel = "Z:\\proc\\self\\"; // Wine shows Linux's own files, and these always fail.
    if (!os::IsFile(kernel + "mem")) {
        GTEST_SKIP() << "this is not Wine on Linux";
    }
    EXPECT_FALSE(CanBeRead(kernel + "mem")) << "it opens, but reading fails";
    const os::FileWriter file(kernel + "comm");
    EXPECT_NE(file.Fault(), "") << "it opens, but can't be emptied";
    EXPECT_FALSE(file.WasEmptied());
}

TEST(WindowsProgram, KnowsItsFileAndItsCommandLine) {
    const std::string line = os::CommandLine().value_or("none");
    std::string words;
    for (const std::string &word : os::ProgramWords(0, nullptr)) {
        words += (words.empty() ? "" : " ") + word;
    }
    EXPECT_EQ(words, Trim(line)) << "none of the words has blanks or quotation marks";
    EXPECT_TRUE(os::ProgramFile().ends_with("norvo_tests.exe")) << os::ProgramFile();
}

} // namespace
