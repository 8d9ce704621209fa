#include "system/Files.h"
#include "tests/support/TemporaryFolder.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

/// Writes pText to pFile, then reads it. Returns what it holds then, with "!" before it if it couldn't be
/// written, and "?" in place of it if it can't be read.
static std::string WriteAndRead(const std::string &pFile, const std::string &pText) {
    os::FileWriter out(pFile);
    out.Write(pText);
    out.Close();
    TextInput in(pFile);
    const std::string line(in.LineInput());
    return (out.Fault().empty() ? "" : "!") + (in.Fault().empty() ? line : "?");
}

TEST(WindowsFiles, HaveAnyNameThatTheSystemHasOrAreLeftAlone) {
    const TemporaryFolder folder;
    std::string deep = std::filesystem::path(folder.File("deep")).make_preferred().string();
    for (int level = 0; level < 10; ++level) {
        const std::wstring path(deep.begin(), deep.end());
        ASSERT_TRUE(CreateDirectoryW((LR"(\\?\)" + path).c_str(), nullptr));
        deep += "\\a folder with a name of forty characters";
    }
    const std::string file = folder.File("file.dat");
    for (const std::string &name : {file, folder.File("日本 ŝ~.dat"), deep, "\\\\?\\" + deep}) {
        EXPECT_EQ(WriteAndRead(name, "text"), "text") << name;
        EXPECT_EQ(Dir(name), name.substr(name.find_last_of("/\\") + 1));
    }
    for (const std::string &name :
         {file + ".", file + " ", file + "\\below", folder.File(""), folder.File("a*b"),
          folder.File("plain:stream"), std::string("a\0b", 3), std::string("\xFF.dat")}) {
        EXPECT_EQ(WriteAndRead(name, "lost") + Dir(name), "!?") << name;
    }
    for (const std::string name :
         {"Q:\\gone.dat", "\\\\nobody\\share\\f.dat", "NUL", "COM1"}) { // To open it tells what is wrong.
        EXPECT_TRUE(WriteAndRead(name, "lost") == "!?" && !Dir(name).empty()) << name;
    }
    for (const auto &[attribute, text] : {std::pair(FILE_ATTRIBUTE_READONLY, "!text"),
                                          {FILE_ATTRIBUTE_HIDDEN, "new"},
                                          {FILE_ATTRIBUTE_SYSTEM, "newer"}}) {
        SetFileAttributesA(file.c_str(), attribute);
        EXPECT_EQ(WriteAndRead(file, text), text) << "a save goes over what is hidden all the same";
        EXPECT_EQ(Dir(file).empty(), text[0] == 'n') << "but it is not found";
    }
    EXPECT_FALSE(os::MakeNewFile(file).Words().empty());
    os::RemoveFile(file);
    EXPECT_EQ(os::MakeNewFile(file).Words(), "");
    EXPECT_TRUE(os::ProgramFile().ends_with("norvo_tests.exe")) << os::ProgramFile();
}
