#include "platform/Files.h"

#include "tests/support/TemporaryFolder.h"

using namespace std::string_literals;
using Texts = std::vector<std::string>;

TEST(Files, CrOrCrLfEndsALineAndLfAloneDoesNot) {
    const std::pair<std::string, Texts> rows[] = {{"", {}},
                                                  {"a\rb\r\nc\nd", {"a", "b", "c\nd"}},
                                                  {"\r\n\r\na\r\r\nb\n\r", {"", "", "a", "", "b\n"}},
                                                  {"\xEF\xBB\xBF\0\x1A\xFF\r"s, {"\xEF\xBB\xBF\0\x1A\xFF"s}}};
    const TemporaryFolder folder;
    for (const auto &[bytes, wanted] : rows) {
        TextInput input(folder.Write("lines.txt", bytes));
        Texts lines;
        while (!input.AtEnd()) {
            lines.emplace_back(input.LineInput());
        }
        EXPECT_EQ(lines, wanted) << testing::PrintToString(bytes);
    }
}

TEST(Files, DirFindsFilesAndNothingElse) {
    const TemporaryFolder folder;
    folder.Write("sub/élan.dat", "x");
    EXPECT_EQ(Dir(folder.File("sub/élan.dat")), "élan.dat");
    EXPECT_EQ(Dir(folder.File("sub\\élan.dat")), "élan.dat");
    for (const auto &name : {"sub"s, "sub/"s, "none.dat"s, "sub/*.dat"s, "sub/élan.dat\0x"s}) {
        EXPECT_EQ(Dir(folder.File(name)), "") << name;
    }
#ifndef _WIN32 // A name that is there as typed goes before the folder that it spells elsewhere.
    folder.Write("sub\\élan.dat", "as typed");
    EXPECT_EQ(TextInput(folder.File("sub\\élan.dat")).LineInput(), "as typed");
#endif
}

TEST(Files, OutputReplacesTheFileAtCloseAndNotBefore) {
    const TemporaryFolder folder;
    folder.Write("sub/out.dat", "much longer than what comes");
    TextOutput output(folder.File("sub\\out.dat"));
    output.Print("a\xFF\0"s);
    output.PrintLine("b\n");
    EXPECT_EQ(folder.Read("sub/out.dat"), "much longer than what comes");
    EXPECT_EQ(output.Close().reason, "");
    EXPECT_EQ(folder.Read("sub/out.dat"), "a\xFF\0b\n\r\n"s);
    EXPECT_NE(TextOutput(folder.File("sub/out.dat\0"s)).Close().reason, "");
}
