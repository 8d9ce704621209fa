// What it says of a specification and its lists.
#include "tests/support/CheckFolder.h"

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
