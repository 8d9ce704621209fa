#include "platform/Text.h"

#include <gtest/gtest.h>

TEST(Text, LCaseKnowsUnicodeAndLeavesStrayBytesAlone) {
    const std::pair<const char *, const char *> rows[] = {
        {"Az[09] ÉLAN ÄÖÜß ЖУК", "az[09] élan äöüß жук"},
        {"A\xFFZ\xC3", "a\xFFz\xC3"},     // no character, and a lead byte without its tail
        {"\x89\xC9", "\x89\xC9"},         // a tail alone, and É in another code page
        {"\xC1\x81", "\xC1\x81"},         // "A" in two bytes
        {"\xE0\x83\x89", "\xE0\x83\x89"}, // "É" in three bytes
    };
    for (const auto &[text, lower] : rows) {
        EXPECT_EQ(LCase(text), lower) << testing::PrintToString(text);
    }
}

TEST(Text, ComparisonsIgnoreCaseAndNothingElse) {
    const struct {
        const char *text, *other;
        bool isEqual, begins; ///< text is, or begins with, other
    } rows[] = {
        {"", "", true, true},           {"élan", "ÉLAN", true, true},
        {"élan", "É", false, true},     {"élan", "e", false, false},
        {"App", "apple", false, false}, {"a", "", false, true},
        {"", "a", false, false},        {"a ", "A", false, true},
        {"kg", "\u212Ag", true, true}, // the Kelvin sign: one character that takes three bytes
        {"é", "\xC3", false, false},   // a byte of a character is no beginning of it
        {"é", "\xE9", false, false},   // nor is a stray byte the character of its number
        {"\xE9", "\xC9", false, false}, {"\xE9x", "\xE9X", true, true},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(EqualIgnoringCase(row.text, row.other), row.isEqual) << row.text << " = " << row.other;
        EXPECT_EQ(BeginsWithIgnoringCase(row.text, row.other), row.begins) << row.text << ": " << row.other;
    }
}

TEST(Text, LengthsCountUtf16UnitsAndTrimTakesBlanksOnly) {
    EXPECT_EQ(Utf16Length("aé€e\u0301"), 5);
    EXPECT_EQ(Utf16Length("\U0001F600"), 2);
    EXPECT_EQ(Utf16Length("\xF0\x9F\x98"), 3) << "cut off: three stray bytes";
    EXPECT_EQ(Utf16Length("\xED\xA0\x80"), 3) << "a surrogate";
    EXPECT_EQ(Utf16Length("\xF4\x90\x80\x80"), 4) << "beyond the last character";
    EXPECT_EQ(Trim("  a b "), "a b");
    EXPECT_EQ(Trim(" \ta\u00A0 "), "\ta\u00A0");
    EXPECT_EQ(Trim("   "), "");
}

TEST(Text, LineBreaksThatAnEditBringsInBecomeBlanks) {
    const struct {
        const char *before, *after, *text;
    } rows[] = {
        {"", "a\r\nb\nc\rd\n\r", "a b c d  "},
        {"ab", "a\r\nb", "a b"},
        {"a\nb", "a\nbc", "a\nbc"}, // what stood there stays
        {"a\nb", "x\ny\na\nb", "x y a\nb"},
        {"a\nb\nc", "a\nX\nc", "a\nX\nc"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(WithoutNewLineBreaks(row.before, row.after), row.text) << testing::PrintToString(row.after);
    }
}
