// What the command says of a data file.
#include "tests/support/CheckFolder.h"

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
         R"(1: lost: semicolons separate the fields, and the editor takes them for text
1: lost: text follows a closing quote, which would end the table too)"},
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
