#include "platform/Runtime.h"

#include <gtest/gtest.h>

TEST(CommandText, JoinsTheWordsSoThatTheyComeApartAgain) {
    const std::pair<std::vector<std::string>, const char *> rows[] = {
        {{}, ""},
        {{"a", "b"}, "a b"},
        {{""}, "\"\""},
        {{"", "a b", ""}, "\"\" \"a b\" \"\""},
        {{" "}, "\" \""},
        {{"a\tb"}, "a\tb"},
        {{"a\"b c", "\""}, "a\"b c \""},
    };
    for (const auto &[words, text] : rows) {
        EXPECT_EQ(CommandText(words), text);
    }
}

TEST(AppRecord, TakesFolderAndNameFromTheProgramFile) {
    const struct {
        const char *file, *path, *name;
    } rows[] = {
        {"/opt/norvo/NorvoEditDat", "/opt/norvo", "NorvoEditDat"},
        {"/opt/my.progs/edit", "/opt/my.progs", "edit"},
        {"/opt/edit.1.exe", "/opt", "edit.1"},
        {"/opt/.edit", "/opt", ".edit"},
        {"/edit", "", "edit"},
        {"", "", ""},
    };
    for (const auto &row : rows) {
        const AppRecord app = MakeAppRecord(row.file);
        EXPECT_EQ(app.Path, row.path) << row.file;
        EXPECT_EQ(app.EXEName, row.name) << row.file;
    }
}
