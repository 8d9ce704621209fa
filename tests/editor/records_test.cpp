// Records go from the list into the fields and back, and the buttons follow.
#include "tests/support/Program.h"

TEST(Records, AreAddedUpdatedDeletedAndMoved) {
    Program program;
    program.StartOn("3,3\nAnn,Rome,Apple\nBob,Paris,Abacus\nCid,,\"\"\n");
    program.Pick(1).Type("Name", "Zoe").Type("City", "Rome");
    EXPECT_EQ(program.Window(), R"(Norvo Data File Editor
Name[Zoe] City[Rome] Kind[Abacus]
  Ann|Rome|Apple
> Bob|Paris|Abacus
  Cid||
Update Move Up Delete Move Down Save As Cancel
)");
    // The update goes to the row's new place, and empties the fields.
    EXPECT_EQ(program.Press("Move Up").Buttons(), "Update (Move Up) Delete Move Down Save As Cancel");
    program.Press("Update").Press("Move Down");
    EXPECT_EQ(program.Fields() + "\n" + program.Rows() + program.Buttons(), R"(Name[] City[] Kind[]
  Ann|Rome|Apple
> Zoe|Rome|Abacus
  Cid||
Add Move Up Delete Move Down Save As Cancel)");
    // An add keeps the fields and the selection.
    program.Press("Move Down").Type("Name", "Dee").Press("Add");
    EXPECT_EQ(program.Fields(), "Name[Dee] City[] Kind[]");
    EXPECT_EQ(program.Rows(), "  Ann|Rome|Apple\n  Cid||\n> Zoe|Rome|Abacus\n  Dee||\n");
    // A delete keeps the fields too. It leaves no row selected and nothing to update.
    program.Pick(0).Type("Name", "unfinished").Pick(1).Type("Kind", "banana").Press("Delete");
    EXPECT_EQ(program.Window(), R"(Norvo Data File Editor
Name[Cid] City[] Kind[Banana]
  Ann|Rome|Apple
  Zoe|Rome|Abacus
  Dee||
Add (Move Up) (Delete) (Move Down) Save As Cancel
)");
    // The keys go on from the row after the deleted one, or from the last row.
    EXPECT_EQ(program.List().CurrentIndex(), 2);
    EXPECT_EQ(program.Pick(2).Buttons(), "Update Move Up Delete (Move Down) Save As Cancel");
    EXPECT_EQ(program.Press("Delete").List().CurrentIndex(), 2);
    program.Pick(0).Press("Delete").Pick(0);
    EXPECT_EQ(program.Buttons(), "Update (Move Up) Delete (Move Down) Save As Cancel");
    EXPECT_EQ(program.Press("Delete").Buttons(), "Add (Move Up) (Delete) (Move Down) (Save As) Cancel");
}

TEST(Records, KeepAFieldFromBeingLeftWithAnUnlistedText) {
    Program program;
    program.StartOn("2,3\nAnn,Oslo,Apple\nBob,Rome,none\n");
    // The program checks a field that the user leaves, and not a text that comes from a row.
    program.Pick(0).Type("Name", "Eve").Type("City", "Rom").Press("Update").Pick(1).Type("Kind", "apple");
    EXPECT_EQ(program.Fields(), "Name[Eve] City[Rom] Kind[Apple]");
    EXPECT_EQ(program.Rows(), "> Ann|Oslo|Apple\n  Bob|Rome|none\n");
    // The check ignores case, and the text stays as typed.
    program.Type("City", "rOME").Press("Update");
    EXPECT_EQ(program.Rows(), "> Eve|rOME|Apple\n  Bob|Rome|none\n");
    // The update has emptied the field. Only a user who enters it has to choose an entry.
    program.Press("Add").Type("City", "").Press("Add");
    EXPECT_EQ(program.Rows(), "> Eve|rOME|Apple\n  Bob|Rome|none\n  ||\n");
}

TEST(Records, AreAtMostAsManyAsATableHolds) {
    const std::string caption = "Norvo Data File Editor";
    std::string rows;
    for (int i = 0; i < 32766; ++i) {
        rows += "x\r\n";
    }
    Program program;
    program.Files().Write("NorvoEditDat.dat", "1,4\r\nA,100,0,-\r\n");
    program.Start("/csv " + program.Files().Write("full.csv", rows + "last\r\n"));
    program.Script().Expect(
        {"The list is full: it holds at most 32767 records.", MessageButtons::Ok, caption});
    EXPECT_EQ(program.Type("A", "more").Press("Add").Fields(), "A[more]");
    program.Pick(32765).Type("A", "other").Press("Update").Press("Move Down");
    EXPECT_TRUE(program.Rows().ends_with("  x\n  last\n> other\n"));
    program.SaveAs(program.Files().File("saved"));
    EXPECT_TRUE(program.Files().Read("saved").ends_with("\"last\"\r\n\"other\"\r\n"));

    const std::string name = program.Files().Write("tooLong.csv", rows + "y\r\nz\r\n");
    const std::string tooMany = " has too many records. A table holds at most 32767, so none were read.";
    program.Script().Expect({"File " + name + tooMany, MessageButtons::Ok, caption});
    EXPECT_EQ(program.Start("/csv " + name).Rows(), "");
}
