#include "check/modCheck.h"

#include "system/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <sstream>

namespace {

/// A folder with a specification of two columns, "Name" and "City", whose list insists on two values.
class CheckFolder : public TemporaryFolder {
public:
    CheckFolder() {
        Write("spec", "2,4\r\n\"Name\",\"50\",\"0\",\"-\"\r\n\"City\",\"40\",\"1\",\"cities\"\r\n");
        Write("cities", "Ulm\r\nBonn\r\n");
        Write("twins", "3,4\r\nA,1,0,-\r\nA,1,0,-\r\nB,1,0,-\r\n");
    }

    /// Runs the command with pWords, of which those without a slash are files of the folder. Returns the
    /// status and all that was printed, without the folder's name.
    std::string Run(const std::string &pWords) const {
        std::istringstream stream(pWords);
        std::vector<std::string> words;
        for (std::string word; stream >> word;) {
            words.push_back(word.find_first_of("/-") == 0 ? word : File(word));
        }
        std::ostringstream out;
        const int status = modCheck::Main(words, Path(), "1.2.3", out, out);
        std::string text = std::to_string(status) + "\n" + out.str();
        for (std::size_t at = text.find(Path()); at != std::string::npos; at = text.find(Path())) {
            text.erase(at, Path().size() + 1);
        }
        return text;
    }
};

struct Case {
    std::string words; ///< without the data file, which is the last one
    std::string bytes;
    std::string output; ///< without the data file's name in front of each line
    std::string copy{}; ///< the bytes of the file "new"; empty if there must be none
};

void RequireOutputs(const std::vector<Case> &pCases) {
    for (const auto &[words, bytes, output, copy] : pCases) {
        const CheckFolder folder;
        folder.Write("f", bytes);
        std::string found = folder.Run(words + " f");
        for (std::size_t at = found.find("\nf:"); at != std::string::npos; at = found.find("\nf:", at)) {
            found.erase(at + 1, 2);
        }
        EXPECT_EQ(found, output) << words << "\n" << bytes;
        EXPECT_EQ(Dir(folder.File("new")).empty() ? "" : folder.Read("new"), copy);
    }
}

} // namespace

TEST(DataCheck, SaysWhatTheEditorWouldNotShowOrWouldChange) {
    RequireOutputs({
        {"/csv", "a,b\r\n\"c\",\" d\"\r\ne, \r\n\r\n\"x\r\n\"y\"z,1\r\n\"p\rq\",1\r\ni,j,k\r\nl\r\nm,n\r\n",
         "1\n2: changed: blanks at the ends of cells are left out\n"
         "3: lost: the line ends in a comma, so the table ends before it; 7 lines are not read\n"
         "3: changed: blanks at the ends of cells are left out\n"
         "4: lost: the line is blank, which would end the table too\n"
         "5: lost: a quote is left open, which would end the table too\n"
         "6: lost: text follows a closing quote, which would end the table too\n"
         "7: lost: a line end inside quotes ends the line, which would end the table too\n"
         "9: lost: 3 fields, not 2, which would end the table too\n"
         "10: lost: 1 field, not 2, which would end the table too\n"
         " 9 records in the file, 2 in the editor\n"},
        {"/csv", "a,b\r\n\"c\",\"d\ne\"\r\n\xff, f\r\n\r\n\r\n",
         "1\n4: changed: blanks at the ends of cells are left out\n"
         "4: note: bytes that aren't UTF-8\n"
         " 3 records in the file, 3 in the editor\n"},
        {"/csv", "", "0\n 0 records in the file, 0 in the editor\n"},
        {"/csv", "\r\na\r\n",
         "1\n1: lost: the line is blank, and with a first line without fields the editor ends with a "
         "message\n"
         " 1 record in the file, 0 in the editor\n"},
        {"/csv", "a,\r\n",
         "1\n1: lost: the line ends in a comma, and with a first line without fields the editor ends with a "
         "message\n"
         " 1 record in the file, 0 in the editor\n"},
        {"/csvh", "a,b", "0\n 0 records in the file, 0 in the editor\n"},
        {"/csv", "a;b\nc;1,5\n",
         "1\n1: lost: LF alone ends the file's 2 lines, so the editor reads them as one\n"
         "1: lost: semicolons separate the fields, and the editor takes them for text\n"
         " 2 records in the file, 0 in the editor\n"},
        {"/csvh", "\"x\r\ny\"\tb\r\n1\t2\r\n",
         "1\n1: lost: a quote is left open, so nobody can tell where the header line ends\n"
         " 2 records in the file, 2 in the editor\n"},
        {"/csv", "a,b\r\nc,d\ne,f\r\n",
         "1\n2: lost: LF alone ends this line, and the editor reads such a line and the next as one\n"
         " 3 records in the file, 1 in the editor\n"},
        {"/csv",
         "\xEF\xBB\xBF"
         "\"a,b\",c\r\nd,e\r\n",
         "1\n1: changed: a byte-order mark stands at the start; the editor takes it for part of the text\n"
         "2: lost: 2 fields, not 3, so the table ends before it; 1 line is not read\n"
         " 2 records in the file, 1 in the editor\n"},
        {"", "2,2\r\na,b\r\nc,d\r\n", "0\n 2 records in the file, 2 in the editor\n"},
        {"", "1,2\r\na,b\r\nc,d\r\ne,\r\n",
         "1\n3: lost: the first line announces 1 record, so from here on 2 lines are not read\n"
         "4: lost: the line ends in a comma, which would end the table too\n"
         " 3 records in the file, 1 in the editor\n"},
        {"", "3,2\r\na,b\r\n",
         "1\n1: lost: the file is too short. Its first line announces 3 records, but it holds only 1.\n"
         " 1 record in the file, 1 in the editor\n"},
        {"", "3,2\r\na,b\r\n\r\nc,d\r\n",
         "1\n1: lost: the first line announces 3 records, but there are 2\n"
         "3: lost: the line is blank, so the editor has empty records from here on; 1 line is not read\n"
         " 2 records in the file, 1 in the editor\n"},
        {"", "Name,City\r\na,b\r\n",
         "1\n1: lost: the file doesn't begin with the number of its records, so none were read. Is it CSV? "
         "Then say /csv or /csvh.\n"
         " 1 record in the file, 0 in the editor\n"},
        {"", "40000,2\r\na,b\r\n",
         "1\n1: lost: the file announces 40000 records. A table holds at most 32767, so none were read. Is "
         "it CSV? Then say /csv or /csvh.\n"
         " 1 record in the file, 0 in the editor\n"},
        {"", "2,2\na,b\nc,d\n",
         "1\n1: lost: LF alone ends the file's 3 lines, so the editor reads them as one\n"
         " 2 records in the file, 0 in the editor\n"},
        {"",
         "\xEF\xBB\xBF"
         "1,2\r\na,b\r\n",
         "1\n1: lost: the file doesn't begin with the number of its records, so none were read. Is it CSV? "
         "Then say /csv or /csvh.\n"
         "1: changed: a byte-order mark stands at the start; the editor takes it for part of the text\n"
         " 1 record in the file, 0 in the editor\n"},
        {"/csvh spec", "City,Name\r\nUlm,a\r\nKiel,b\r\nKiel,c\r\n",
         "1\n1: changed: the titles are the specification's in another order; the specification's order "
         "would be written over columns that stay where they are\n"
         "3: note: \"City\" has \"Kiel\", which isn't in its list, in 2 records\n"
         " 3 records in the file, 3 in the editor\n"},
        {"/csvh spec",
         "\xEF\xBB\xBF"
         "Name,Stadt\r\na,ulm\r\n",
         "1\n1: changed: a byte-order mark stands before the first title; it is lost with the header line\n"
         "1: changed: the title of column 2 is \"Stadt\", and the specification's, which would be written, "
         "is \"City\"\n"
         " 1 record in the file, 1 in the editor\n"},
        {"/csvh spec", "Name\r\na,b,c\r\nd,e\r\n",
         "1\n1: changed: the title of column 2 is \"\", and the specification's, which would be written, is "
         "\"City\"\n"
         "2: lost: the first record has 3 fields and the specification has 2 columns, so the editor refuses "
         "the file\n"
         "3: note: \"City\" has \"e\", which isn't in its list, in 1 record\n"
         " 2 records in the file, 0 in the editor\n"},
        {"spec", "1,3\r\na,Ulm,c\r\n",
         "1\n1: lost: the first line announces 3 columns and the specification has 2, so the editor refuses "
         "the file\n"
         "2: lost: 3 fields, not 2, so the table ends before it; 1 line is not read\n"
         " 1 record in the file, 0 in the editor\n"},
        {"/csvh", "A, B\r\n1,2,3\r\n\r\n\r\n4,5,6\r\n",
         "1\n1: changed: blanks at the ends of cells are left out\n"
         "1: changed: the header line has 2 fields and the first record 3\n"
         "3: lost: the line is blank, so the table ends before it; 1 line is not read\n"
         "4: lost: the line is blank, which would end the table too\n"
         " 2 records in the file, 1 in the editor\n"},
        {"spec", "1,40000\r\na,Ulm\r\n",
         "1\n1: lost: the first line announces what no table can have, so the editor refuses the file. Is it "
         "CSV? Then say /csv or /csvh.\n"
         " 1 record in the file, 0 in the editor\n"},
        {"/csv spec", "a;b,Ulm\r\n", "0\n 1 record in the file, 1 in the editor\n"},
        {"/csv spec", "a;Kiel\r\n",
         "1\n1: lost: semicolons separate the fields, and the editor takes them for text\n"
         "1: note: \"City\" has \"Kiel\", which isn't in its list, in 1 record\n"
         " 1 record in the file, 0 in the editor\n"},
        {"/CSV spec", "a,\"Ulm\",\r\nb,Bonn\r\n",
         "1\n1: lost: the line ends in a comma, and with a first line without fields the editor ends with a "
         "message\n"
         " 2 records in the file, 0 in the editor\n"},
    });
}

TEST(CleanCopy, HoldsAllThatWasMeantAndSaysWhatItDid) {
    RequireOutputs({
        {"/to new /csvh spec",
         "\xEF\xBB\xBF"
         "City;Name\n\"Ulm\";\"a;\"\"b\"\"\"\n\nBonn;\"x\r\ny \"\nUlm\nBonn;z;;\n",
         "1\n1: lost: LF alone ends the file's 6 lines, so the editor reads them as one\n"
         "1: lost: semicolons separate the fields, and the editor takes them for text\n"
         "1: changed: a byte-order mark stands before the first title; it is lost with the header line\n"
         "1: changed: the titles are the specification's in another order; the specification's order would "
         "be written over columns that stay where they are\n"
         "1: note: in the copy 6 lines got the line end CR LF\n"
         "1: note: in the copy the columns are put into the specification's order, in 5 lines\n"
         "1: note: in the copy the byte-order mark is left out\n"
         "2: note: in the copy 4 lines got commas between the fields\n"
         "3: lost: the line is blank, which would end the table too\n"
         "3: note: in the copy 1 line without text left out\n"
         "4: lost: a line end inside quotes ends the line, which would end the table too\n"
         "4: changed: blanks at the ends of cells are left out\n"
         "4: note: in the copy line breaks inside cells made blanks, in 1 line\n"
         "4: note: in the copy blanks at the ends of cells left out, in 1 line\n"
         "6: lost: 1 field, not 2, which would end the table too\n"
         "6: note: in the copy 1 line with too few fields filled with empty ones\n"
         "7: lost: 4 fields, not 2, which would end the table too\n"
         "7: note: in the copy 1 line with too many fields lost empty ones at the end\n"
         "new: 4 records in the file, 4 in the editor\n"
         " 4 records in the file, 0 in the editor\n",
         "\"Name\",\"City\"\r\n\"a;\"\"b\"\"\",\"Ulm\"\r\n\"x "
         "y\",\"Bonn\"\r\n\"\",\"Ulm\"\r\n\"z\",\"Bonn\"\r\n"},
        {"/to new /csv", "1\t2\r\n3\t4\t5\r\n",
         "2\n1: lost: tabs separate the fields, and the editor takes them for text\n"
         "2: lost: 3 fields, not 2, which would end the table too\n"
         " 2 records in the file, 2 in the editor\n"
         "new: not written: line 2 of the file: 3 fields, not 2, and those at the end are not empty\n",
         ""},
        {"/to new /csv", "1,2\r\n\"3\r\n",
         "2\n2: lost: a quote is left open, so the table ends before it; 1 line is not read\n"
         " 2 records in the file, 1 in the editor\n"
         "new: not written: line 2 of the file: a quote is left open\n",
         ""},
        {"/to new /csv", "\"1\"x,2\r\n",
         "2\n1: lost: text follows a closing quote, and with a first line without fields the editor ends "
         "with a message\n"
         " 1 record in the file, 0 in the editor\n"
         "new: not written: line 1 of the file: text follows a closing quote\n",
         ""},
        {"/to new /csv", "a, \"b\"\"c\" \r\n",
         "1\n1: changed: blanks at the ends of cells are left out\n"
         "1: note: in the copy blanks at the ends of cells left out, in 1 line\n"
         "new: 1 record in the file, 1 in the editor\n"
         " 1 record in the file, 1 in the editor\n",
         "\"a\",\"b\"\"c\"\r\n"},
        {"/to new /csvh twins", "B,A,A\r\n1,2,3\r\n",
         "1\n1: changed: the titles are the specification's in another order; the specification's order "
         "would be written over columns that stay where they are\n"
         "1: note: in the copy the columns are put into the specification's order, in 2 lines\n"
         "new: 1 record in the file, 1 in the editor\n"
         " 1 record in the file, 1 in the editor\n",
         "\"A\",\"A\",\"B\"\r\n\"2\",\"3\",\"1\"\r\n"},
        {"/to new /csv", "\xFE\xFFx\r\n",
         "2\n1: lost: the file is in UTF-16, and the editor takes it for UTF-8\n"
         "1: note: bytes that aren't UTF-8\n"
         " 1 record in the file, 1 in the editor\n"
         "new: not written: line 1 of the file: the file is in UTF-16, and the editor takes it for UTF-8\n",
         ""},
        {"/to new", "a,b\r\nc,d\r\n",
         "2\n1: lost: the file doesn't begin with the number of its records, so none were read. Is it CSV? "
         "Then say /csv or /csvh.\n"
         " 1 record in the file, 0 in the editor\n"
         "new: not written: line 1 of the file: the first line isn't the numbers of records and columns\n",
         ""},
        {"/to new", "7,3\r\na,b\r\nc,d,e\r\n",
         "1\n1: lost: the first line announces 7 records, but there are 2\n"
         "1: note: in the copy the numbers of records and columns are counted\n"
         "2: lost: 2 fields, not 3, so the editor has empty records from here on; 2 lines are not read\n"
         "2: note: in the copy 1 line with too few fields filled with empty ones\n"
         "new: 2 records in the file, 2 in the editor\n"
         " 2 records in the file, 0 in the editor\n",
         "2,3\r\n\"a\",\"b\",\"\"\r\n\"c\",\"d\",\"e\"\r\n"},
        {"/to new /csv", "",
         "2\n 0 records in the file, 0 in the editor\n"
         "new: not written: there are no records\n",
         ""},
    });
}

TEST(DataCheck, CountsWhatIsTooMuch) {
    std::string bytes;
    for (int line = 0; line < 32768; ++line) {
        bytes += std::string("a\0\r\n", 4);
    }
    const CheckFolder folder;
    folder.Write("f", bytes);
    const std::string found = folder.Run("/csv f");
    EXPECT_EQ(std::count(found.begin(), found.end(), '\n'), 24);
    EXPECT_EQ(
        found.substr(found.find("f:20:")),
        "f:20: note: NUL bytes\nf: note: and 32748 more of this sort\n"
        "f:32768: lost: a table holds at most 32767 records, and this is one more, so the editor reads none\n"
        "f: 32768 records in the file, 0 in the editor\n");
}

TEST(SpecCheck, SaysWhatTheEditorRefusesAndWhatIsOddInLists) {
    const CheckFolder folder;
    folder.Write("cities", "Ulm\r\n Ulm\r\n\r\nUlm\r\n");
    folder.Write("lf", "a\nb\n");
    folder.Write("none", "");
    folder.Write("lists", "4,4\r\nA,50,1,cities\r\nB,50.5,1,lf\r\nC,1,0,none\r\nD,1,0,missing\r\n");
    const std::string odd = "cities:2: note: \" Ulm\" has blanks at its ends, which no saved cell keeps\n"
                            "cities:3: note: an empty entry; it lets the field be left empty\n"
                            "cities:4: note: \"Ulm\" stands in line 1 already\n";
    EXPECT_EQ(folder.Run("/spec spec"), "0\n" + odd + "spec: 2 columns in the file, 2 in the editor\n");
    EXPECT_EQ(
        folder.Run("-SPEC lists"),
        "1\nlists:1: note: the widths sum to more than 100 percent, so fields lie beyond the window\n"
        "lists:5: note: the list file \"missing\" isn't there, and neither is missing; the field takes any "
        "text\n" +
            odd +
            "lf:1: lost: LF alone ends 2 lines, so the editor reads each of them and the next as one entry\n"
            "none:1: note: the list is empty; the field takes any text\n"
            "lists: 4 columns in the file, 4 in the editor\n");
    folder.Write("short", "2,4\r\nA,1,0,-\r\nB,1,0\r\n");
    folder.Write("f", "2,2\r\na,b\r\nc,d\r\n");
    const std::string faults =
        "short:1: lost: Row 2 is empty: its fields are, or its line or one before it doesn't have 4 fields.\n"
        "short:3: lost: 3 fields, not 4, so the editor has empty records from here on; 1 line is not read\n";
    EXPECT_EQ(folder.Run("/spec short"), "1\n" + faults + "short: 2 columns in the file, 0 in the editor\n");
    EXPECT_EQ(folder.Run("/to new short f"), "2\n" + faults +
                                                 "f: 2 records in the file, 0 in the editor\n"
                                                 "new: not written: the editor refuses the specification\n");
}

TEST(Check, RefusesWrongWordsAndNeverReplacesAFile) {
    const std::string usage = "Usage: NorvoCheckDat [/csv|/csvh] [specfile] datfile [/to newfile]\n"
                              "       NorvoCheckDat /spec specfile\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", "2\n" + usage},
        {"a b c", "2\n" + usage},
        {"a /to", "2\n" + usage},
        {"/spec a b", "2\n" + usage},
        {"/spec spec /to b", "2\n" + usage},
        {"--help", "0\n" + usage},
        {"/?", "0\n" + usage},
        {"--version", "0\nNorvoCheckDat 1.2.3\n"},
        {"none", "2\nnone: " + std::string(TextInput("none").Fault()) + "\n"},
        {"none spec", "2\nSpecification file: none doesn't exist.\n"},
        {"cities /TO spec -csv", "2\ncities: 2 records in the file, 2 in the editor\n"
                                 "spec: not written: File exists\n"}};
    const CheckFolder folder;
    const std::string before = folder.Read("spec");
    for (const auto &[words, output] : cases) {
        EXPECT_EQ(folder.Run(words), output) << words;
    }
    EXPECT_EQ(folder.Read("spec"), before);
}
