#include "text/Files.h"

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

TEST(Files, LinesAndItemsAreWholeWhereverABlockEnds) {
    // A line longer than any block, and behind it CR LF at every place around the end of a block.
    const std::string start = "1 , 2,x\r\n" + std::string(200'000, 'a') + "\r\n";
    const TemporaryFolder folder;
    for (int shift = 0; shift < 4; ++shift) {
        std::string bytes = start;
        Texts wanted = {"x", std::string(200'000, 'a')};
        while (bytes.size() < 800'000) {
            wanted.emplace_back(static_cast<std::size_t>(wanted.size() % 5 == 0 ? shift : 2), 'b');
            bytes += wanted.back() + "\r\n";
        }
        TextInput input(folder.Write("lines.txt", bytes));
        EXPECT_EQ(input.InputItem(), "1");
        EXPECT_EQ(input.InputItem(), "2");
        Texts lines;
        while (!input.AtEnd()) {
            lines.emplace_back(input.LineInput());
        }
        EXPECT_TRUE(lines == wanted) << shift;
    }
}

TEST(Files, OutputReplacesTheFileByAllThatWasPrinted) {
    const TemporaryFolder folder;
    folder.Write("sub/out.dat", std::string(1'000'000, 'x'));
    TextOutput output(folder.File("sub\\out.dat"), 200'002);
    std::string wanted;
    for (const std::size_t length : {3U, 65'534U, 0U, 65'535U, 200'000U, 1U}) {
        const std::string text = std::string(length, 'a') + "\xFF\0"s;
        output.PrintLine(text);
        wanted += text + "\r\n";
    }
    output.Close();
    EXPECT_EQ(output.Fault(), "");
    EXPECT_TRUE(folder.Read("sub/out.dat") == wanted);
    EXPECT_NE(TextOutput(folder.File("sub/out.dat\0"s), 0).Fault(), "");
}
