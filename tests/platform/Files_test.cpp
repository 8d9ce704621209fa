#include "platform/Files.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <vector>

using namespace std::string_literals;
using Texts = std::vector<std::string>;

TEST(Files, CrOrCrLfEndsALineAndLfAloneDoesNot) {
    const std::pair<std::string, Texts> rows[] = {
        {"", {}},
        {"a\r\n", {"a"}},
        {"a\rb\r\nc\nd", {"a", "b", "c\nd"}},
        {"\r\n\r\na\r\r\nb\n\r", {"", "", "a", "", "b\n"}},
        {"\xEF\xBB\xBF\0\x1A\xFF\r"s, {"\xEF\xBB\xBF\0\x1A\xFF"s}},
    };
    const TemporaryFolder folder;
    for (const auto &[bytes, wanted] : rows) {
        TextInput input(folder.Write("lines.txt", bytes));
        for (int pass = 0; pass < 2; ++pass) {
            Texts lines;
            while (!input.AtEnd()) {
                lines.emplace_back(input.LineInput());
            }
            EXPECT_EQ(lines, wanted) << testing::PrintToString(bytes);
            EXPECT_EQ(input.LineInput(), "") << "reading on is harmless";
            input.SeekToStart();
        }
    }
}

TEST(Files, ItemsEndAtACommaOrABlankAndNeverLeaveTheirLine) {
    const std::tuple<std::string, Texts, std::string> rows[] = {
        {"", {}, ""},
        {"\r\n7,8", {}, ""},
        {"2,3\r\n4", {"2", "3"}, ""},
        {"2 3\r4", {"2", "3"}, ""},
        {"  2,  3  ,4 5\r\n6", {"2", "3"}, " ,4 5"},
        {"2,\r\n3", {"2"}, ""},
        {",3", {"", "3"}, ""},
        {"2,3\n4\r5", {"2", "3\n4"}, ""},
    };
    const TemporaryFolder folder;
    for (const auto &[bytes, wanted, rest] : rows) {
        TextInput input(folder.Write("items.txt", bytes));
        Texts items;
        for (int i = 0; i < 2; ++i) {
            if (const auto item = input.InputItem()) {
                items.emplace_back(*item);
            }
        }
        EXPECT_EQ(items, wanted) << testing::PrintToString(bytes);
        EXPECT_EQ(input.LineInput(), rest) << testing::PrintToString(bytes);
    }
}

TEST(Files, DirFindsFilesAndNothingElse) {
    const TemporaryFolder folder;
    folder.Write("sub/élan.dat", "x");
    EXPECT_EQ(Dir(folder.File("sub/élan.dat")), "élan.dat");
    EXPECT_EQ(Dir(folder.File("sub\\élan.dat")), "élan.dat");
    for (const auto &name :
         {"sub"s, "sub/"s, "none.dat"s, "sub/*.dat"s, "sub/élan.da?"s, "sub/élan.dat\0x"s}) {
        EXPECT_EQ(Dir(folder.File(name)), "") << name;
    }
    EXPECT_EQ(Dir(""), "");
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
}

TEST(Files, WhatIsNoFileReadsLikeNothingAndIsNotWritten) {
    const TemporaryFolder folder;
    folder.Write("there.txt", "x");
    for (const std::string &name :
         {folder.Path(), folder.File("none/there.txt"), folder.File("there.txt\0"s), ""s}) {
        TextInput input(name);
        EXPECT_NE(input.Fault(), "") << name;
        EXPECT_TRUE(input.AtEnd());
        EXPECT_EQ(input.LineInput(), "");
        TextOutput output(name);
        output.PrintLine("y");
        const TextOutput::Fault fault = output.Close();
        EXPECT_NE(fault.reason, "") << name;
        EXPECT_FALSE(fault.mayBeIncomplete) << name;
    }
    EXPECT_NE(TextInput(folder.File("none.txt")).Fault(), "");
    EXPECT_EQ(folder.Read("there.txt"), "x");
}
