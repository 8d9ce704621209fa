#include "app/modArgcArgv.h"

#include "platform/Runtime.h"

#include <gtest/gtest.h>

TEST(ArgcArgv, SplitTheCommandTextAtBlanksAndQuotes) {
    // A bar stands before each word. The last two rows are made of words, and give them back.
    // clang-format off
    const std::pair<std::string, const char *> cases[] = {
        {"", ""},               {"   ", ""},      {"a   b", "|a|b"},              {R"("a b" c)", "|a b|c"},
        {R"("a"b)", "|a|b"},    {"a\tb", "|a\tb"}, {R"(a"b c"d)", "|ab|cd"},      {R"("" a)", "||a"},
        {R"("a b)", "|a b"},    {R"(a ")", "|a|"}, {CommandText({}), ""},
        {CommandText({"a", "", "b c", " ", "d\te"}), "|a||b c| |d\te"}};
    // clang-format on
    for (const auto &[command, wanted] : cases) {
        std::string words;
        for (int i = 1; i <= modArgcArgv::argc(command); ++i) {
            words += "|" + modArgcArgv::argv(command, i);
        }
        EXPECT_EQ(words, wanted) << command;
        EXPECT_EQ(modArgcArgv::argv(command, modArgcArgv::argc(command) + 1), "") << command;
    }
    EXPECT_EQ(CommandText({"a\"b c", "\""}), "a\"b c \"");
}
