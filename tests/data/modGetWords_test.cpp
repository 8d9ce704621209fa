#include "data/modGetWords.h"

#include <gtest/gtest.h>

TEST(GetWords, SplitsALineByItsCommasAndQuotes) {
    // Each word of the result has a bar in front of it; a malformed line gives no words. A word loses the
    // blanks at its ends, even inside quotes. A second quote after a closing one continues the word, even
    // with blanks between them. An LF inside quotes is an ordinary character. In front of a word it belongs
    // to the word; anywhere else it separates words as a comma does.
    // clang-format off
    for (const auto &[line, wanted] : {
             std::pair("a,b", "|a|b"), {" a b , c ", "|a b|c"}, {"a,,b", "|a||b"}, {",a", "||a"}, {R"("a,b",c)", "|a,b|c"},
             {R"("a""b")", R"(|a"b)"}, {R"("""")", R"(|")"}, {R"("")", "|"}, {R"("","")", "||"}, {R"("a" ,b)", "|a|b"},
             {R"(a"b,c)", R"(|a"b|c)"}, {"\ta\t,b", "|\ta\t|b"}, {R"("  a b ")", "|a b"}, {R"("a" "b")", R"(|a" b)"},
             {R"("a"" " ,b)", R"(|a"|b)"}, {"\"a\nb\",c", "|a\nb|c"}, {"a\nb", "|a|b"}, {"\"a\"\nb", "|a|b"},
             {"a,\nb", "|a|\nb"}, {"", ""}, {"   ", ""}, {",", ""}, {"a,", ""}, {"a, ", ""}, {"\"a", ""}, {"\"a\"b,c", ""},
             {"\"a\"\t", ""}, {"a\n", ""}, {"a,\"", ""}, {"\"a\"\"", ""}}) {
        // clang-format on
        const TextRow words = modGetWords::GetWords(line);
        std::string text;
        for (int i = 1; i <= words.Count(); ++i) {
            text += "|" + std::string(words(i));
        }
        EXPECT_EQ(text, wanted) << testing::PrintToString(line);
    }
}
