#include "text/TextRow.h"

#include <gtest/gtest.h>

namespace {

std::string InWords(const TextRow &pRow) {
    std::string text;
    for (int place = 1; place <= pRow.Count(); ++place) {
        text += "|" + std::string(pRow(place));
    }
    return text;
}

} // namespace

TEST(TextRow, ACopyKeepsItsTextsWhenTheOtherOneChanges) {
    TextRow row(std::vector<std::string>{"one", "", "three"});
    const TextRow copy = row;
    EXPECT_EQ(row.Run().data(), copy.Run().data()) << "in memory once";
    row.Set(1, "a longer one");
    row.Set(2, row(3)); // Out of the row itself.
    row.Set(3, "");
    EXPECT_EQ(InWords(row), "|a longer one|three|");
    EXPECT_EQ(InWords(copy), "|one||three");
}

TEST(TextRow, MakesTheTextsThatAreMissingAndReadsOthersEmpty) {
    TextRow row;
    EXPECT_EQ(row(1), "");
    row.Set(3, "c");
    row.Set(0, "nowhere");
    EXPECT_EQ(InWords(row), "|||c");
    row.Set(1, "a");
    EXPECT_EQ(InWords(row), "|a||c");
    EXPECT_EQ(std::string(row(0)) + std::string(row(4)) + std::string(row(-1)), "");
}
