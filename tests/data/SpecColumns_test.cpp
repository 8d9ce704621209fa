#include "data/SpecColumns.h"

#include "data/clsDatFile.h"
#include "tests/support/Program.h"

namespace {

/// The columns of a specification file of these bytes, or its fault without the file's name.
std::string Read(const std::string &pBytes) {
    const TemporaryFolder folder;
    clsDatFile spec([](std::string_view pText) { throw std::logic_error(std::string(pText)); });
    spec.FileName(folder.Write("spec", CrLf(pBytes)));
    spec.Load();
    const SpecColumns columns(spec);
    if (const std::string &fault = columns.Fault(); !fault.empty()) {
        return fault.starts_with("File ") ? fault.substr(fault.find("/spec ") + 6) : fault;
    }
    std::string text;
    for (const SpecColumn &c : columns.All()) {
        text += c.heading + "|" + std::to_string(c.listPercent) + "|" + std::to_string(c.place) + "|" +
                testing::PrintToString(c.percent) + "|" +
                (c.isTextBox ? "text" : c.listFile + " " + std::to_string(c.mode)) + "\n";
    }
    return text;
}

} // namespace

TEST(SpecColumns, AreTheRowsOfASpecificationOrItsFirstFault) {
    const std::string noNumber = ", which is not a number from -32768 to 32767.";
    const std::string nines(61, '9');
    const std::pair<std::string, std::string> cases[] = {
        // The list, the field and the mode each read their number in their own way.
        {"7,4\n,12.5,99999,-\nB,12.5,x,--\nC,1e1,-1,\"\"\nD,0,2.5,-\nE,1,2.5,list.txt\nF,0.5,0,-\nG,1,0,-\n",
         "|12|0|12.5|text\nB|12|12|12.5|-- 0\nC|10|24|10| -1\n"
         "D|0|34|0|text\nE|1|34|1|list.txt 2\n"
         "F|0|35|0.5|text\nG|1|36|1|text\n"},
        {"", "It should have 4 columns."},
        {"0,4\n", "It has no rows."},
        {"2,4\na,1,0,-\n", "is too short. Its first line announces 2 records, but it holds only 1."},
        {"2,4\na,1,0,-\nb,1,0\n",
         "Row 2 is empty: its fields are, or its line or one before it doesn't have 4 fields."},
        {"1,4\na,1x,0,-\n", "Row 1 has the width \"1x\"" + noNumber},
        {"1,4\na," + nines + ",0,-\n", "Row 1 has the width \"" + nines.substr(1) + "...\"" + noNumber},
        {"1,4\na,1,32768,x.txt\n", "Row 1 has the mode \"32768\", which is beyond -32768 to 32767."},
        {"2,4\na,20000,0,-\nb,20000,0,-\n", "Row 2 brings the sum of the widths beyond -32768 to 32767."}};
    for (const auto &[bytes, columns] : cases) {
        EXPECT_EQ(Read(bytes), columns) << bytes;
    }
}
