#include "system/Reason.h"
#include "text/CaseTable.h"
#include "text/Text.h"

#include <gtest/gtest.h>

#ifdef __GLIBC__
#include <cwctype>

// The C library has the same mappings from the same source.
TEST(Text, LowerCaseIsUnicodes) {
    const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    for (unsigned character = 1; character < 0x110000; ++character) {
        ASSERT_EQ(LowerCase(character), towlower_l(character, unicode)) << character;
    }
    freelocale(unicode);
}
#endif

TEST(Text, ComparesWithoutRegardToCaseAndToNothingElse) {
    for (const auto &[text, lower] : {std::pair("Az[09]@` ÉLAN ß \U00010400", "az[09]@` élan ß \U00010428"),
                                      {"A\xFFZ\x89\xC9", "a\xFFz\x89\xC9"}}) {
        EXPECT_EQ(LCase(text), lower) << testing::PrintToString(text);
        EXPECT_TRUE(EqualIgnoringCase(text, lower)) << testing::PrintToString(text);
    }
    for (const auto &[text, start] : {std::pair("élan", "É"), {"a", ""}, {"a ", "A"}, {"kgx", "\u212Ag"}}) {
        EXPECT_TRUE(BeginsWithIgnoringCase(text, start) && !EqualIgnoringCase(text, start)) << text << start;
    }
    // The first byte of a character doesn't match it, nor does a stray byte with the character's number.
    for (const char *start : {"e", "élan v", "\xC3", "\xE9", "lan"}) {
        EXPECT_FALSE(BeginsWithIgnoringCase("Élan", start)) << start;
    }
    EXPECT_FALSE(BeginsWithIgnoringCase(std::string_view("É").substr(0, 1), "é")) << "reads past the end";
}

TEST(Text, HoldsCharactersAndStrayBytes) {
    // The first and the last character of each length, and what comes close to them, with the units of
    // UTF-16.
    // clang-format off
    for (const auto &[bytes, units] : {std::pair("aé€e\u0301\U0001F600", 7), {"\x7F", 1}, {"\x80", 1}, {"\xC1\xBF", 2},
             {"\xC2\x80\xDF\xBF", 2}, {"\xC3", 1}, {"\xE0\x9F\xBF", 3}, {"\xE0\xA0\x80\xEF\xBF\xBF", 2}, {"\xED\x9F\xBF", 1},
             {"\xED\xA0\x80", 3}, {"\xED\xB2\x80", 3}, {"\xED\xBF\xBF", 3}, {"\xEE\x80\x80", 1}, {"\xE2(\x82", 3},
             {"\xF0\x9F\x98", 3}, {"\xF0\x8F\xBF\xBF", 4}, {"\xF0\x90\x80\x80", 2}, {"\xF4\x8F\xBF\xBF", 2},
             {"\xF4\x90\x80\x80", 4}, {"\xF5\x80\x80\x80", 4}}) {
        // clang-format on
        EXPECT_EQ(Utf16Length(bytes), units) << testing::PrintToString(bytes);
        EXPECT_EQ(LCase(bytes), bytes);
    }
    EXPECT_EQ(std::string(Trim("   ")) + std::string(Trim(" \ta \u00A0 b\t  ")), "\ta \u00A0 b\t");
    const std::string sixty(60, 'x');
    EXPECT_EQ(Quoted(sixty) + Quoted(sixty + "y"), '"' + sixty + "\"\"" + sixty + "...\"");
    const std::string words = "y" + std::string(Reason::mostBytes - 2, 'x') + "ü";
    Reason reason;
    reason.Words(words);
    EXPECT_EQ(reason.Words(), words.substr(0, Reason::mostBytes - 1)) << "it is cut between characters";
}

TEST(Text, LosesTheLineBreaksThatAnEditBringsIn) {
    EXPECT_EQ(WithoutNewLineBreaks("", "a\r\nb\nc\rd\n\r"), "a b c d");
    EXPECT_EQ(WithoutNewLineBreaks("a\nb", "x\ny\na\nbc"), "x y a bc");
    EXPECT_EQ(WithoutNewLineBreaks("a\nb", "a\nbc"), "a\nbc") << "a line break that was there stays";
    EXPECT_EQ(WithoutNewLineBreaks("aa\n", "a\n"), "a\n") << "one of two equal characters is deleted";
}
