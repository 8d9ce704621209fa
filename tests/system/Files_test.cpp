#include "system/Files.h"

#include "tests/support/TemporaryFolder.h"

using namespace std::string_literals;

TEST(Files, AreFoundByTheirNames) {
    const TemporaryFolder folder;
    folder.Write("sub/élan.dat", "x");
    EXPECT_EQ(Dir(folder.File("sub/élan.dat")) + Dir(folder.File("sub\\élan.dat")), "élan.datélan.dat");
    for (const auto &name : {"sub"s, "sub/"s, "none"s, "sub/*.dat"s, "sub/élan.dat\0x"s, "sub/élan.dat/x"s}) {
        EXPECT_EQ(Dir(folder.File(name)), "") << name;
        EXPECT_FALSE(TextInput(folder.File(name)).Fault().empty() ||
                     TextOutput(folder.File("no/" + name), 0).Fault().empty());
    }
#ifndef _WIN32 // On Windows the backslash always separates folders.
    const std::string typed = folder.Write("sub\\élan.dat", "as typed");
    EXPECT_EQ(TextInput(typed).LineInput(), "as typed");
    EXPECT_EQ(os::MakeNewFile(typed).Words(), "File exists");
    os::RemoveFile(typed);
    EXPECT_EQ(TextInput(typed).LineInput(), "x") << "the name now leads into the folder";
    os::RemoveFile(typed);
    EXPECT_EQ(Dir(typed), "");
    EXPECT_EQ(os::MakeNewFile(typed).Words(), "");
    EXPECT_EQ(Dir(folder.File("sub/élan.dat")), "élan.dat");
    EXPECT_EQ(TextInput(folder.File("sub")).Fault(), "Is a directory");
    EXPECT_TRUE(os::ProgramFile().ends_with("/norvo_tests")) << os::ProgramFile();
#endif
}
