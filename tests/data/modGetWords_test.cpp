#include "data/modGetWords.h"

#include <gtest/gtest.h>

namespace {

struct Line {
    std::string text;
    std::vector<std::string> words;
};

} // namespace

TEST(GetWords, SplitsALineByItsCommasAndQuotes) {
    const std::vector<Line> lines{
        {"a,b", {"a", "b"}},
        {" a b , c ", {"a b", "c"}},
        {"a,,b", {"a", "", "b"}},
        {",a", {"", "a"}},
        {R"("a,b",c)", {"a,b", "c"}},
        {R"("a""b")", {R"(a"b)"}},
        {R"("""")", {R"(")"}},
        {R"("")", {""}},
        {R"("","")", {"", ""}},
        {R"("a" ,b)", {"a", "b"}},
        {R"(a"b,c)", {R"(a"b)", "c"}},
        {R"("  a b ")", {"a b"}},    // blanks at the ends go even from inside the quotes
        {R"("a" "b")", {R"(a" b)"}}, // a quote behind blanks goes on with the word, the blanks in it
        {R"("a"" " ,b)", {R"(a")", "b"}},
        {"\ta\t,b", {"\ta\t", "b"}},   // a tab is no blank
        {"\"a\nb\",c", {"a\nb", "c"}}, // LF: plain in quotes, a comma in and behind a word, a word before one
        {"a\nb", {"a", "b"}},
        {"\"a\"\nb", {"a", "b"}},
        {"a,\nb", {"a", "\nb"}},
        {std::string("a\0b", 3), {std::string("a\0b", 3)}},
    };
    for (const Line &line : lines) {
        std::vector<std::string> expected = line.words;
        expected.insert(expected.begin(), ""); // Element 0 is not used.
        EXPECT_EQ(modGetWords::GetWords(line.text), expected) << testing::PrintToString(line.text);
    }
    for (const char *text :
         {"", "   ", ",", "a,", "a, ", "\"a", "\"a\"b,c", "\"a\"\t", "a\n", "a,\"", "\"a\"\""}) {
        EXPECT_EQ(modGetWords::GetWords(text), std::vector<std::string>(1)) << testing::PrintToString(text);
    }
}

TEST(GetWords, ReadsAsManyWordsAsATableHasColumnsAndOneMore) {
    const auto count = [](std::size_t pWords) {
        return modGetWords::GetWords(std::string(pWords - 1, ',') + "x").size() - 1;
    };
    EXPECT_EQ(count(81), 81U);
    EXPECT_EQ(count(32767), 32767U);
    EXPECT_EQ(count(32768), 32768U);
    EXPECT_EQ(count(100000), 32768U);
}
