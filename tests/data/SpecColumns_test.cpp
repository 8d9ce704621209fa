#include "data/SpecColumns.h"

#include "data/clsDatFile.h"
#include "tests/support/Program.h"

namespace {

/// The columns of a specification file of these bytes, or its fault without the file's name.
std::string Read(const std::string &pBytes) {
    const TemporaryFolder folder;
    ScriptedDesktop desktop;
    const Runtime runtime(desktop, {}, "");
    clsDatFile spec(runtime);
    spec.FileName(folder.Write("spec", CrLf(pBytes)));
    spec.Load();
    const SpecColumns columns(spec);
    if (const std::string &fault = columns.Fault(); !fault.empty()) {
        return fault.starts_with("File ") ? fault.substr(fault.find("/spec ") + 6) : fault;
    }
    std::string text;
    for (const SpecColumn &c : columns.All()) {
        text += c.heading + "|" + std::to_string(c.listPercent) + "|" + c.Tag() + "|" +
                (c.isTextBox ? "text" : c.listFile + " " + std::to_string(c.mode)) + "\n";
    }
    return text;
}

} // namespace

TEST(SpecColumns, AreTheRowsOfASpecificationOrItsFirstFault) {
    const std::string noNumber = ", which is not a number from -32768 to 32767.";
    const std::string nines(61, '9');
    const std::pair<std::string, std::string> cases[] = {
        // The list, the tag and the mode each read their number in their own way.
        {"7,4\n,12.5,99999,-\nB,12.5,x,--\nC,1e1,-1,\"\"\nD,0,2.5,-\nE,1,2.5,list.txt\nF,0.5,0,-\nG,1,0,-\n",
         "|12|X=0/100 W=13/100|text\nB|12|X=12/100 W=13/100|-- 0\nC|10|X=24/100 W=10/100| -1\n"
         "D|0|X=34/100 W=0/100|text\nE|1|X=34/100 W=1/100|list.txt 2\n"
         "F|0|X=35/100 W=1/100|text\nG|1|X=36/100 W=1/100|text\n"},
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
