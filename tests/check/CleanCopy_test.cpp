// The copy that the command writes.
#include "system/Memory.h"
#include "tests/support/CheckFolder.h"

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
