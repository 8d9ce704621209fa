#include "text/TextRow.h"

#include <gtest/gtest.h>

TEST(TextRow, KeepsItsTextsWhenACopyChanges) {
    TextRow row;
    row.Set(2, "two"); // Makes the text before it.
    const TextRow copy = row;
    EXPECT_EQ(row.Run().data(), copy.Run().data()) << "a copy takes no memory";
    row.Set(1, row(2)); // This text is part of the row itself.
    row.Set(2, "");
    EXPECT_EQ(std::string(row(1)) + "|" + std::string(row(2)), "two|");
    EXPECT_EQ(std::string(copy(0)) + std::string(copy(1)) + "|" + std::string(copy(2)), "|two");
}
