#include "system/Reason.h"
#include "text/CaseTable.h"
#include "text/Text.h"

#include <gtest/gtest.h>

#ifdef __GLIBC__
#include <clocale>
#include <cwctype>

// The C library has the same mappings from the same source.
TEST(Text, LowerCaseIsUnicodes) {
    const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    constexpr char32_t beyondUnicode = 0x110000;
    for (char32_t character = 1; character < beyondUnicode; ++character) {
        ASSERT_EQ(LowerCase(character), towlower_l(static_cast<wint_t>(character), unicode))
            << static_cast<unsigned>(character);
    }
    freelocale(unicode);
}
#endif

TEST(Text, ComparisonsIgnoreCaseAndNothingElse) {
    for (const auto &[text, lower] : {std::pair("Az[09] ÉLAN ß ЖУК", "az[09] élan ß жук"),
                                      {"A\xFFZ\xC3", "a\xFFz\xC3"},
                                      {"\x89\xC9", "\x89\xC9"},
                                      {"\xC1\x81", "\xC1\x81"}}) {
        EXPECT_EQ(LCase(text), lower) << testing::PrintToString(text);
        EXPECT_TRUE(EqualIgnoringCase(text, lower)) << testing::PrintToString(text);
    }
    for (const auto &[text, start] : {std::pair("élan", "É"), {"a", ""}, {"a ", "A"}, {"kgx", "\u212Ag"}}) {
        EXPECT_TRUE(BeginsWithIgnoringCase(text, start)) << text << ": " << start;
        EXPECT_FALSE(EqualIgnoringCase(text, start)) << text << ": " << start;
    }
    // The first byte of a character doesn't match it, nor does a stray byte with the character's number.
    for (const char *start : {"e", "élan v", "\xC3", "\xE9", "lan"}) {
        EXPECT_FALSE(BeginsWithIgnoringCase("Élan", start)) << start;
    }
    EXPECT_FALSE(BeginsWithIgnoringCase(std::string_view("É").substr(0, 1), "é")) << "reads past the end";
}

TEST(Text, LengthsCountUtf16UnitsAndTrimTakesBlanksOnly) {
    EXPECT_EQ(Utf16Length("aé€e\u0301\U0001F600"), 7);
    EXPECT_EQ(Utf16Length("\xF0\x9F\x98"), 3) << "cut off: three stray bytes";
    EXPECT_EQ(Trim(" \ta b\t  "), "\ta b\t");
    EXPECT_EQ(Trim(" \u00A0 "), "\u00A0");
    EXPECT_EQ(Trim("   "), "");
}

TEST(Text, ReasonHoldsWholeCharacters) {
    std::string words = "y";
    while (words.size() <= Reason::mostBytes) {
        words += "ü";
    }
    Reason reason;
    reason.Words(words);
    EXPECT_EQ(reason.Words(), words.substr(0, words.size() - 2));
    reason.Words("y" + words);
    EXPECT_EQ(reason.Words(), ("y" + words).substr(0, Reason::mostBytes));
}

TEST(Text, LineBreaksThatAnEditBringsInBecomeBlanks) {
    EXPECT_EQ(WithoutNewLineBreaks("", "a\r\nb\nc\rd\n\r"), "a b c d");
    EXPECT_EQ(WithoutNewLineBreaks("a\nb", "x\ny\na\nbc"), "x y a bc");
    EXPECT_EQ(WithoutNewLineBreaks("a\nb", "a\nbc"), "a\nbc") << "a line break that was there stays";
    EXPECT_EQ(WithoutNewLineBreaks("aa\n", "a\n"), "a\n") << "one of two equal characters is deleted";
}
