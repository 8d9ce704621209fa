// Records go from the list into the fields and back, and the buttons follow.
#include "tests/support/Program.h"

TEST(Records, AreAddedUpdatedDeletedAndMoved) {
    Program program;
    program.StartOn("3,3\nAnn,Rome,Apple\nBob,Oslo,Abacus\nCid,,\"\"\n");
    // The program checks a field that the user leaves, and not a text that comes from a row.
    program.Pick(1).Type(0, "Zoe").Type(1, "Rom").Press("MoveUp").Pick(0);
    EXPECT_EQ(program.Window(),
              "Name[Zoe]City[Rom]!Kind[Abacus] Ann|Rome|Apple>Bob|Oslo|Abacus Cid|| UMDMSC");
    // The update goes to the row's new place, and empties the fields. Case doesn't matter to the check.
    program.Type(1, "rOME").Press("MoveUp").Press("Add");
    EXPECT_EQ(program.Window(), "Name[]City[]Kind[]>Zoe|rOME|Abacus Ann|Rome|Apple Cid|| A-DMSC");
    program.Press("MoveDown").Press("MoveDown").Type(0, "Dee");
    EXPECT_EQ(program.Window(), "Name[Dee]City[]Kind[] Ann|Rome|Apple Cid||>Zoe|rOME|Abacus AMD-SC");
    program.Press("Add"); // It keeps the fields and the selection, and shows the new record.
    EXPECT_EQ(program.Window(), "Name[Dee]City[]Kind[] Ann|Rome|Apple Cid||>Zoe|rOME|Abacus Dee|| AMDMSC");
    EXPECT_EQ(program.List().WantedInView(), 4);
    // A delete keeps the fields too. It leaves no row selected and nothing to update.
    program.Pick(0).Type(0, "unfinished").Pick(1).Type(2, "banana").Press("Del");
    EXPECT_EQ(program.Window(), "Name[Cid]City[]Kind[Banana] Ann|Rome|Apple Zoe|rOME|Abacus Dee|| A---SC");
    // The keys go on from the row after the deleted one, or from the last row.
    EXPECT_EQ(program.List().CurrentIndex(), 2);
    EXPECT_EQ(program.Pick(2).Press("Del").List().CurrentIndex(), 2);
    program.Pick(0).Press("Del").Pick(0);
    EXPECT_EQ(program.Window(), "Name[Zoe]City[rOME]Kind[Abacus]>Zoe|rOME|Abacus U-D-SC");
    EXPECT_EQ(program.Press("Del").Window(), "Name[Zoe]City[rOME]Kind[Abacus] A----C");
}

TEST(Records, AreAtMostAsManyAsATableHolds) {
    const std::string caption = "Norvo Data File Editor";
    std::string rows;
    for (int i = 0; i < 32766; ++i) {
        rows += "x\r\n";
    }
    Program program;
    program.files.Write("NorvoEditDat.dat", "1,4\r\nA,100,0,-\r\n");
    program.Start("/csv " + program.files.Write("full.csv", rows + "last\r\n"));
    program.script.Expect("The list is full: it holds at most 32767 records.", caption);
    program.Type(0, "more").Press("Add").Pick(32765).Type(0, "other").Press("Add").Press("MoveDown");
    EXPECT_TRUE(program.Window().ends_with(" x last>other AMD-SC"));
    program.SaveAs(program.files.File("saved"));
    EXPECT_TRUE(program.files.Read("saved").ends_with("\"x\"\r\n\"last\"\r\n\"other\"\r\n"));
    const std::string name = program.files.Write("tooLong.csv", rows + "y\r\nz\r\n");
    const std::string tooMany = " has too many records. A table holds at most 32767, so none were read.";
    program.script.Expect("File " + name + tooMany, caption);
    EXPECT_EQ(program.Start("/csv " + name).Window(), "A[] A----C");
}
