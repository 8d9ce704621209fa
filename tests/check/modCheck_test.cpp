#include "check/modCheck.h"

#include "system/Files.h"
#include "system/Memory.h"
#include "tests/support/Scarcity.h"
#include "tests/support/TemporaryFolder.h"

#include <sstream>

namespace {

std::string Replaced(std::string pText, const std::string &pOld, const std::string &pNew) {
    for (std::size_t at = 0; (at = pText.find(pOld, at)) != std::string::npos; at += pNew.size()) {
        pText.replace(at, pOld.size(), pNew);
    }
    return pText;
}

/// A folder with specifications. "spec" has the columns "Name" and "City", whose list insists on two values.
/// It is the program's folder too.
class CheckFolder : public TemporaryFolder {
public:
    CheckFolder() {
        Write("spec", "2,4\r\n\"Name\",\"50\",\"0\",\"-\"\r\n\"City\",\"40\",\"1\",\"cities\"\r\n");
        Write("cities", "Ulm\r\nBonn\r\n");
        Write("twins", "3,4\r\nA,1,0,-\r\nA,1,0,-\r\nB,1,0,-\r\n");
        Write("wide", "2,4\r\nA,40,1,:\r\nB, 60,0,-\r\n");
        Write("any", "2,4\r\nName,1,0,-\r\nCity,1,0,cities\r\n");
        Write("faulty", "2,4\r\nA,1,0,-\r\nB,1,0\r\n");
    }

    /// Runs the command with pWords, of which those without a slash or colon are files of the folder. Returns
    /// the status and all that was printed, without the folder's name.
    std::string Run(const std::string &pWords) const {
        std::istringstream stream(pWords);
        std::vector<std::string> words;
        for (std::string word; stream >> word;) {
            const bool isFile = word.find_first_of("/-:") != 0;
            words.push_back(isFile ? File(word) : word.substr(word.starts_with(':')));
        }
        std::ostringstream out;
        Scarcity::isCounting = true;
        const int status = modCheck::Main(words, Path(), "1.2.3", out, out);
        Scarcity::isCounting = false;
        return Replaced(std::to_string(status) + '\n' + out.str(), Path() + '/', "");
    }

    /// The bytes of the copy "new"; empty if there is none.
    std::string Copy() const { return Dir(File("new")).empty() ? "" : Read("new"); }
};

struct Case {
    std::string words; ///< without the data file "f", which is the last one
    std::string bytes; ///< "|" is CR LF, "'" a double quote and "@" a byte-order mark
    int status;
    int records;
    int shown;
    std::string findings; ///< without "f:", and why there is no copy
    std::string copy{};   ///< like bytes
};

std::string Bytes(const std::string &pText) {
    return Replaced(Replaced(Replaced(pText, "|", "\r\n"), "'", "\""), "@", "\xEF\xBB\xBF");
}

std::string Footer(const std::string &pFile, int pRecords, int pShown) {
    return "\n" + pFile + ": " + std::to_string(pRecords) + (pRecords == 1 ? " record" : " records") +
           " in the file, " + std::to_string(pShown) + " in the editor";
}

void RequireOutputs(const std::vector<Case> &pCases) {
    for (const auto &[words, bytes, status, records, shown, findings, copy] : pCases) {
        const CheckFolder folder;
        folder.Write("f", Bytes(bytes));
        std::string found = Replaced(folder.Run(words + " f"), Footer("f", records, shown), "");
        found = Replaced(found, Footer("new", records, copy.empty() ? -1 : records), "");
        EXPECT_EQ(Replaced(found, "\nf:", "\n"),
                  std::to_string(status) + '\n' + findings + (findings.empty() ? "" : "\n"))
            << words << ' ' << bytes;
        EXPECT_EQ(folder.Copy(), Bytes(copy)) << words << ' ' << bytes;
    }
}

std::string Lines(std::size_t pCount, const std::string &pLine) {
    return Replaced(std::string(pCount, '\x01'), "\x01", pLine);
}

} // namespace

TEST(DataCheck, SaysWhatTheEditorWouldNotShowOrWouldChange) {
    RequireOutputs({
        {"/csv", "a,b,c|'d',' e',f|g,h, ||'x|'y'z,1|'p\rq',1|i,j,k,l|m|n,o,p |q,r,s|", 1, 10, 2,
         R"(2: changed: blanks at the ends of cells are left out
3: lost: the line ends in a comma, so the table ends before it; 8 lines are not read
3: changed: blanks at the ends of cells are left out
4: lost: the line is blank, which would end the table too
5: lost: a quote is left open, which would end the table too
6: lost: text follows a closing quote, which would end the table too
7: lost: a line end inside quotes ends the line, which would end the table too
9: lost: 4 fields, not 3, which would end the table too
10: lost: 1 field, not 3, which would end the table too
11: changed: blanks at the ends of cells are left out)"},
        {"/csv", "a,b|'c','d\ne'|\xFF, f|||", 1, 3, 3, R"(4: changed: blanks at the ends of cells are left out
4: note: bytes that aren't UTF-8)"},
        {"/csv", "|a|", 1, 1, 0,
         "1: lost: the line is blank, and with a first line without fields the editor ends with a message"},
        {"/csv", "a;b,c|d,e|", 0, 2, 2, ""},
        {"/csv", "x;'a'b|", 1, 1, 1,
         "1: lost: semicolons separate the fields, and the editor takes them for text\n"
         "1: lost: text follows a closing quote, which would end the table too"},
        {"/csv", "a;b\nc;1,5\nd", 1, 3, 1,
         R"(1: lost: LF alone ends the file's 2 lines, so the editor reads them as one
1: lost: semicolons separate the fields, and the editor takes them for text
3: lost: 1 field, not 2, which would end the table too)"},
        {"/csv", "a,b|c,d\ne,f| \ng,h|'i\nj,k\nl,m\n", 1, 7, 1,
         R"(2: lost: LF alone ends this line and 4 more, and the editor reads such a line and the next as one
4: lost: the line is blank, which would end the table too
6: lost: a quote is left open, which would end the table too)"},
        {"/csv", "@'a, ''b''',c|", 1, 1, 0,
         R"(1: lost: a byte-order mark stands before a quote, and with a first line without fields the editor ends with a message
1: changed: a byte-order mark stands at the start; the editor takes it for part of the text)"},
        {"/csvh", "'x|y'\tb|1\t2|", 1, 2, 2,
         "1: lost: a quote is left open, so nobody can tell where the header line ends"},
        {"/csvh", "A\xFF, B|1,2,3||\n4,5,6|", 1, 2, 1, R"(1: changed: blanks at the ends of cells are left out
1: changed: the header line has 2 fields and the first record 3
1: note: bytes that aren't UTF-8
3: lost: the line is blank, so the table ends before it; 1 line is not read
4: lost: LF alone ends this line, and the editor reads such a line and the next as one
4: lost: the line is blank, which would end the table too)"},
        {"", "2,3|a,b,c|d,e,f|", 0, 2, 2, ""},
        {"", "2,3|a,b,c|d,e,f|g,h,||i,j,k|l,m,n|", 1, 5, 2,
         R"(4: lost: the first line announces 2 records, so from here on 3 lines are not read
4: lost: the line ends in a comma, which would end the table too
5: lost: the line is blank, which would end the table too)"},
        {"", "4,2\na,b\nc,d\n", 1, 2, 0,
         R"(1: lost: LF alone ends the file's 3 lines, so the editor reads them as one
1: lost: the first line announces 4 records, but there are 2)"},
        {"", "@3;2\na;b\n", 1, 1, 0,
         R"(1: lost: LF alone ends the file's 2 lines, so the editor reads them as one
1: lost: the first line isn't two numbers, of the records and of the columns, so the editor refuses the file. Is it CSV? Then say /csv or /csvh.
1: changed: a byte-order mark stands at the start; the editor takes it for part of the text
2: lost: semicolons separate the fields, and the editor takes them for text)"},
        {"/csvh spec", " Name ,City|a,Bonn|", 1, 1, 1,
         "1: changed: blanks at the ends of cells are left out"},
        {"/csvh spec", "@City,Name,X|a,ul\x07m|", 1, 1, 1,
         R"(1: changed: a byte-order mark stands before the first title; it is lost with the header line
1: changed: the title of column 1 is "City", and the specification's, which would be written, is "Name"
1: changed: the title of column 2 is "Name", and the specification's, which would be written, is "City"
1: changed: the title of column 3 is "X", and the specification's, which would be written, is none
2: note: "City" has "ul?m", which isn't in its list, in 1 record)"},
        {"/csvh spec", "Name|a,b,c|d,e|", 1, 2, 0,
         R"(1: changed: the title of column 2 is "", and the specification's, which would be written, is "City"
2: lost: the first record has 3 fields and the specification has 2 columns, so the editor refuses the file
3: note: "City" has "e", which isn't in its list, in 1 record)"},
        {"spec", "1,40000|a,Ulm|", 1, 1, 0,
         R"(1: lost: the first line announces what no table can have, so the editor refuses the file. Is it CSV? Then say /csv or /csvh.)"},
        {"/csv spec", "a;b,Ulm|", 0, 1, 1, ""},
        {"/csv spec", "a,1,2;'Kiel'|b|", 1, 2, 0,
         R"(1: lost: semicolons separate the fields, and the editor takes them for text
1: note: "City" has "Kiel", which isn't in its list, in 1 record
2: lost: 1 field, not 2, which would end the table too
2: note: "City" has "", which isn't in its list, in 1 record)"},
        {"/csv any", "a,x|", 0, 1, 1, ""},
        {"/csv faulty", "a,b|", 1, 1, 0,
         R"(faulty:1: lost: Row 2 is empty: its fields are, or its line or one before it doesn't have 4 fields.
faulty:3: lost: 3 fields, not 4, so the editor has empty records from here on; 1 line is not read)"},
    });
}

TEST(CleanCopy, HoldsAllThatWasMeantAndSaysWhatItDid) {
    RequireOutputs({
        {"/to new /csvh spec", "@City;Name\n'Ulm';'a;''b'''\n\nBonn;'x||y '\nUlm\nBonn;z;;\n", 1, 4, 0,
         R"(1: lost: LF alone ends the file's 6 lines, so the editor reads them as one
1: lost: semicolons separate the fields, and the editor takes them for text
1: changed: a byte-order mark stands before the first title; it is lost with the header line
1: changed: the titles are the specification's in another order; the specification's order would be written over columns that stay where they are
1: note: in the copy 6 lines got the line end CR LF
1: note: in the copy the columns are put into the specification's order, in 5 lines
1: note: in the copy the byte-order mark is left out
2: note: in the copy 4 lines got commas between the fields
3: lost: the line is blank, which would end the table too
3: note: in the copy 1 line without text left out
4: lost: a line end inside quotes ends the line, which would end the table too
4: changed: blanks at the ends of cells are left out
4: note: in the copy line breaks inside cells made blanks, in 1 line
4: note: in the copy blanks at the ends of cells left out, in 1 line
7: lost: 1 field, not 2, which would end the table too
7: note: in the copy 1 line with too few fields filled with empty ones
8: lost: 4 fields, not 2, which would end the table too
8: note: in the copy 1 line with too many fields lost empty ones at the end)",
         "'Name','City'|'a;''b''','Ulm'|'x  y','Bonn'|'','Ulm'|'z','Bonn'|"},
        {"/to new /csvh spec", "City,Name|ulm,a|Kiel,b|Kiel,c|", 1, 3, 3,
         R"(1: changed: the titles are the specification's in another order; the specification's order would be written over columns that stay where they are
1: note: in the copy the columns are put into the specification's order, in 4 lines
3: note: "City" has "Kiel", which isn't in its list, in 2 records)",
         "'Name','City'|'a','ulm'|'b','Kiel'|'c','Kiel'|"},
        {"/to new /csvh twins", "B,A,A|1,2,3|", 1, 1, 1,
         R"(1: changed: the titles are the specification's in another order; the specification's order would be written over columns that stay where they are
1: note: in the copy the columns are put into the specification's order, in 2 lines)",
         "'A','A','B'|'2','3','1'|"},
        {"/to new /csvh", "A|1,'2\n3'|4,5|6,7|", 1, 3, 3,
         R"(1: changed: the header line has 1 field and the first record 2
1: note: in the copy 1 line with too few fields filled with empty ones
2: note: in the copy line breaks inside cells made blanks, in 1 line)",
         "'A',''|'1','2 3'|'4','5'|'6','7'|"},
        {"/to new /csv", "1\t2|3\t4\t5|", 2, 2, 2,
         R"(1: lost: tabs separate the fields, and the editor takes them for text
2: lost: 3 fields, not 2, which would end the table too
new: not written: line 2 of the file: 3 fields, not 2, and those at the end are not empty)"},
        {"/to new /csv", "1,2|'3|'4'5|", 2, 3, 1,
         R"(2: lost: a quote is left open, so the table ends before it; 2 lines are not read
3: lost: text follows a closing quote, which would end the table too
new: not written: line 2 of the file: a quote is left open)"},
        {"/to new /csv", "'1' 'x',2|", 2, 1, 1, R"(1: changed: blanks at the ends of cells are left out
new: not written: line 1 of the file: text follows a closing quote)"},
        {"/to new /csv", "\xFF\xFEx,y|", 2, 1, 1,
         R"(1: lost: the file is in UTF-16, and the editor takes it for UTF-8
1: note: bytes that aren't UTF-8
new: not written: line 1 of the file: the file is in UTF-16, and the editor takes it for UTF-8)"},
        {"/to new /csv", "", 2, 0, 0, "new: not written: there are no records"},
        {"/to new", "a,b|'c,d|", 2, 1, 0,
         R"(1: lost: the file doesn't begin with the number of its records, so none were read. Is it CSV? Then say /csv or /csvh.
2: lost: a quote is left open, so the table ends before it; 1 line is not read
new: not written: line 1 of the file: the first line isn't the numbers of records and columns)"},
        {"/to new", "7,3|a,b||c,d,e|", 1, 2, 0,
         R"(1: lost: the first line announces 7 records, but there are 2
1: note: in the copy the numbers of records and columns are counted
2: lost: 2 fields, not 3, so the editor has empty records from here on; 2 lines are not read
2: note: in the copy 1 line with too few fields filled with empty ones
3: lost: the line is blank, which would end the table too
3: note: in the copy 1 line without text left out)",
         "2,3|'a','b',''|'c','d','e'|"},
        {"/to new", "3,2|a,b|", 1, 1, 1,
         R"(1: lost: the file is too short. Its first line announces 3 records, but it holds only 1.
1: note: in the copy the numbers of records and columns are counted)",
         "1,2|'a','b'|"},
        {"/to new spec", "2,3|a,Ulm|b,Bonn|", 1, 2, 0,
         R"(1: lost: the first line announces 3 columns and the specification has 2, so the editor refuses the file
1: note: in the copy the numbers of records and columns are counted)",
         "2,2|'a','Ulm'|'b','Bonn'|"},
        {"/to new faulty", "2,2|a,b|c,d|", 2, 2, 0,
         R"(faulty:1: lost: Row 2 is empty: its fields are, or its line or one before it doesn't have 4 fields.
faulty:3: lost: 3 fields, not 4, so the editor has empty records from here on; 1 line is not read
new: not written: the editor refuses the specification)"},
    });
}

TEST(CleanCopy, HoldsAsManyRecordsAsATableAndNoMore) {
    const CheckFolder folder;
    folder.Write("f", Lines(32767, "a\r\n"));
    EXPECT_EQ(folder.Run("/csv f /to new"),
              "0" + Footer("new", 32767, 32767) + Footer("f", 32767, 32767) + "\n");
    EXPECT_EQ(folder.Copy(), Lines(32767, "\"a\"\r\n"));
    folder.Write("f", Lines(32768, std::string("a\0\r\n", 4)));
    const std::string found = folder.Run("/csv f /to more");
    EXPECT_EQ(found.substr(found.find("f:20:")), R"(f:20: note: NUL bytes
f: note: and 32748 more of this sort
f:32768: lost: a table holds at most 32767 records, and this is one more, so the editor reads none
f: 32768 records in the file, 0 in the editor
more: not written: line 32768 of the file: a table holds at most 32767 records
)");
    folder.Write("f", "a\r\n" + Lines(39999, ",") + "x\r\n");
    EXPECT_EQ(folder.Run("/csv f /to more"), R"(2
f:2: lost: a table holds at most 32767 columns
f: 2 records in the file, 1 in the editor
more: not written: line 2 of the file: 40000 fields, not 1, and those at the end are not empty
)");
}

#ifdef __linux__
TEST(CleanCopy, LeavesNothingOnAFullDisk) {
    const CheckFolder folder;
    folder.Write("f", Lines(500, "a,b\r\n"));
    WithFileLimit(1000, [&] {
        EXPECT_EQ(folder.Run("/csv f /to new"),
                  "2" + Footer("f", 500, 500) + "\nnew: not written: File too large\n");
    });
    EXPECT_TRUE(Dir(folder.File("new")).empty());
}
#endif

TEST(Memory, MayRunOutWhileACopyIsMade) {
    const CheckFolder folder;
    folder.Write("f", Bytes("City;Name\nUlm;a\n\nBonn;'a long \nname in two lines'\n"));
    const std::string whole = Bytes("'Name','City'|'a','Ulm'|'a long  name in two lines','Bonn'|");
    int refusals = 0;
    Scarcity::lasts = false;
    Scarcity::hasCome = true;
    for (Scarcity::granted = 0; Scarcity::hasCome; ++Scarcity::granted) {
        const long granted = Scarcity::granted;
        os::RemoveFile(folder.File("new"));
        std::string output;
        Scarcity::hasCome = false;
        HasMemoryFor([&] { output = folder.Run("/csvh spec f /to new"); });
        Scarcity::isCounting = false;
        refusals += output.ends_with("new: not written: there is not enough memory\n") ? 1 : 0;
        ASSERT_EQ(folder.Copy(), output.starts_with('1') ? whole : "") << granted << output;
        Scarcity::granted = granted;
    }
    Scarcity::granted = -1;
    EXPECT_GT(refusals, 0);
}

TEST(SpecCheck, SaysWhatTheEditorRefusesAndWhatIsOddInLists) {
    const CheckFolder folder;
    folder.Write("cities", "Ulm\r\n Ulm\r\n\r\nBonn\r\n  \r\nUlm\r\nBonn\r\n");
    folder.Write("lf", "a\nb\nc\n");
    folder.Write("none", "");
    folder.Write("lists",
                 "5,4\r\nA,50,1,cities\r\nB,50.5,1,lf\r\nC,1,0,none\r\nD, 1,0,missing\r\nE,1,1,-\r\n");
    const std::string odd = R"(cities:2: note: " Ulm" has blanks at its ends, which no saved cell keeps
cities:3: note: an empty entry; it lets the field be left empty
cities:5: note: an entry of blanks, which no saved cell keeps
cities:6: note: "Ulm" stands in line 1 already
cities:7: note: "Bonn" stands in line 4 already
)";
    EXPECT_EQ(folder.Run("/spec spec"), "0\n" + odd + "spec: 2 columns in the file, 2 in the editor\n");
    EXPECT_EQ(folder.Run("-SPEC lists"),
              R"(1
lists:1: note: the widths sum to more than 100 percent, so fields lie beyond the window
lists:5: note: blanks at the ends of cells are left out
lists:5: note: the list file "missing" isn't there, and neither is missing; the field takes any text
)" + odd + R"(lf:1: lost: LF alone ends 3 lines, so the editor reads each of them and the next as one entry
none:1: note: the list is empty; the field takes any text
lists: 5 columns in the file, 5 in the editor
)");
}

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
