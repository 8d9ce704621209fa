#include "system/Files.h"

#include "tests/support/TemporaryFolder.h"

using namespace std::string_literals;
using Texts = std::vector<std::string>;

namespace {

Texts LinesOf(const std::string &pName) {
    TextInput input(pName);
    Texts lines;
    while (!input.AtEnd()) {
        lines.emplace_back(input.LineInput());
    }
    return lines;
}

} // namespace

TEST(Files, CrOrCrLfEndsALineAndLfAloneDoesNot) {
    const TemporaryFolder folder;
    for (const auto &[bytes, lines] : {std::pair(""s, Texts{}),
                                       {"a\rb\r\nc\nd", {"a", "b", "c\nd"}},
                                       {"\r\n\r\na\r\r\nb\n\r", {"", "", "a", "", "b\n"}},
                                       {"\xEF\xBB\xBF\0\x1A\xFF\r"s, {"\xEF\xBB\xBF\0\x1A\xFF"s}}}) {
        EXPECT_EQ(LinesOf(folder.Write("lines.txt", bytes)), lines) << testing::PrintToString(bytes);
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
#ifndef _WIN32 // On Windows the backslash always separates folders.
    folder.Write("sub\\élan.dat", "as typed");
    EXPECT_EQ(LinesOf(folder.File("sub\\élan.dat")), Texts{"as typed"});
#endif
}

TEST(Files, LinesAreWholeWhereverABlockEnds) {
    const TemporaryFolder folder;
    const std::string name = folder.Write("sub/out.dat", std::string(1'000'000, 'x')); // It is replaced.
    for (std::size_t shift = 0; shift < 4; ++shift) { // Moves each CR LF past the end of a block.
        Texts lines;
        std::string bytes;
        TextOutput output(folder.File("sub\\out.dat"), 200'000);
        while (bytes.size() < 800'000) {
            lines.emplace_back(lines.empty() ? 200'000 : lines.size() % 5 == 0 ? shift : 2, 'b');
            output.PrintLine(lines.back());
            bytes += lines.back() + "\r\n";
        }
        output.Close();
        EXPECT_EQ(output.Fault(), "");
        EXPECT_TRUE(folder.Read("sub/out.dat") == bytes && LinesOf(name) == lines) << shift;
    }
    EXPECT_NE(TextOutput(folder.File("sub/out.dat\0"s), 0).Fault(), "");
}
