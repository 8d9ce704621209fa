#include "data/modGetWords.h"

#include <gtest/gtest.h>

TEST(GetWords, SplitsALineByItsCommasAndQuotes) {
    // Each word with a bar in front of it; a line with none gives none.
    // Blanks at the ends go even from inside the quotes; a quote behind blanks goes on with the word. An LF
    // is plain in quotes, a comma in and behind a word, a word before one.
    // clang-format off
    const std::pair<const char *, const char *> lines[] = {
        {"a,b", "|a|b"},            {" a b , c ", "|a b|c"},    {"a,,b", "|a||b"},
        {",a", "||a"},              {R"("a,b",c)", "|a,b|c"},   {R"("a""b")", R"(|a"b)"},
        {R"("""")", R"(|")"},       {R"("")", "|"},             {R"("","")", "||"},
        {R"("a" ,b)", "|a|b"},      {R"(a"b,c)", R"(|a"b|c)"},  {"\ta\t,b", "|\ta\t|b"},
        {R"("  a b ")", "|a b"},    {R"("a" "b")", R"(|a" b)"}, {R"("a"" " ,b)", R"(|a"|b)"},
        {"\"a\nb\",c", "|a\nb|c"},  {"a\nb", "|a|b"},           {"\"a\"\nb", "|a|b"},
        {"a,\nb", "|a|\nb"},        {"", ""},                   {"   ", ""},
        {",", ""},                  {"a,", ""},                 {"a, ", ""},
        {"\"a", ""},                {"\"a\"b,c", ""},           {"\"a\"\t", ""},
        {"a\n", ""},                {"a,\"", ""},               {"\"a\"\"", ""}};
    // clang-format on
    for (const auto &[line, wanted] : lines) {
        const TextRow words = modGetWords::GetWords(line);
        std::string text;
        for (int i = 1; i <= words.Count(); ++i) {
            text += "|" + std::string(words(i));
        }
        EXPECT_EQ(text, wanted) << testing::PrintToString(line);
    }
}
