// The command's words and statuses.
#include "tests/support/CheckFolder.h"

TEST(Check, RefusesWrongWordsAndNeverReplacesAFile) {
    const std::string usage = R"(Usage: NorvoCheckDat [/csv|/csvh] [specfile] datfile [/to newfile]
       NorvoCheckDat /spec specfile
)";
    const std::pair<std::string, std::string> cases[] = {
        {"/spec wide", R"(0
wide:2: note: the list file ":" isn't there, and neither is :; the field takes any text
wide:3: note: blanks at the ends of cells are left out
wide: 2 columns in the file, 2 in the editor
)"},
        {"--help", "0\n" + usage},
        {"/?", "0\n" + usage},
        {"--version", "0\nNorvoCheckDat 1.2.3\n"},
        {"none", "2\nnone: " + std::string(TextInput("none").Fault()) + "\n"},
        {"/spec :cities/no", "2\nSpecification file: cities/no doesn't exist.\n"},
        {"/spec :spec", "0\nspec: 2 columns in the file, 2 in the editor\n"},
        {"cities /TO spec -csv", "2" + Footer("cities", 2, 2) + "\nspec: not written: File exists\n"}};
    const CheckFolder folder;
    const std::string before = folder.Read("spec");
    for (const auto &[words, output] : cases) {
        EXPECT_EQ(folder.Run(words), output) << words;
    }
    for (const char *words : {"", "a b c", "a /to", "/spec a b", "/spec a /to b"}) {
        EXPECT_EQ(folder.Run(words), "2\n" + usage) << words;
    }
    EXPECT_EQ(folder.Read("spec"), before);
}
