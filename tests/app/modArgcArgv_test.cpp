#include "app/modArgcArgv.h"

#include <gtest/gtest.h>

#include <vector>

TEST(ArgcArgv, SplitTheCommandTextAtBlanksAndQuotes) {
    struct Case {
        std::string command;
        std::vector<std::string> words;
    };
    const std::vector<Case> cases{
        {"", {}},
        {"   ", {}},
        {"a   b", {"a", "b"}},
        {R"("a b" c)", {"a b", "c"}},
        {R"("a"b)", {"a", "b"}},
        {R"("a""b")", {"a", "b"}},
        {R"(a"b c"d)", {"ab", "cd"}},
        {R"("")", {""}},
        {R"("" a)", {"", "a"}},
        {R"("a b)", {"a b"}},
        {R"(a ")", {"a", ""}},
        {"a\tb", {"a\tb"}},
    };
    for (const Case &c : cases) {
        std::vector<std::string> words;
        for (int i = 1; i <= modArgcArgv::argc(c.command); ++i) {
            words.push_back(modArgcArgv::argv(c.command, i));
        }
        EXPECT_EQ(words, c.words) << c.command;
        EXPECT_EQ(modArgcArgv::argv(c.command, static_cast<int>(words.size()) + 1), "") << c.command;
        EXPECT_EQ(modArgcArgv::argv(c.command, 0), "") << c.command;
    }
}
