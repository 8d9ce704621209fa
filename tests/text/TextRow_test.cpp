#include "text/TextRow.h"

#include <gtest/gtest.h>

TEST(TextRow, ACopyKeepsItsTextsWhenTheOtherOneChanges) {
    const auto inWords = [](const TextRow &pRow) {
        std::string text;
        for (int place = 0; place <= pRow.Count() + 1; ++place) { // Both ends read empty.
            text += "|" + std::string(pRow(place));
        }
        return text;
    };
    TextRow row;
    row.Set(0, "nowhere");
    row.Set(3, "three"); // Makes the texts before it.
    row.Set(1, "one");
    const TextRow copy = row;
    EXPECT_EQ(row.Run().data(), copy.Run().data()) << "in memory once";
    row.Set(1, "a longer one");
    row.Set(2, row(3)); // The text is part of the row itself.
    row.Set(3, "");
    EXPECT_EQ(inWords(row), "||a longer one|three||");
    EXPECT_EQ(inWords(copy), "||one||three|");
}
