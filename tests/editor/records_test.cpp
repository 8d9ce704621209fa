// Moving records between the fields and the list, and the buttons that follow from it.
#include "platform/ListView.h"
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
    // The update goes to the row's new place.
    program.Press("Move Up");
    EXPECT_EQ(program.Buttons(), "Update (Move Up) Delete Move Down Save As Cancel");
    program.Press("Update");
    EXPECT_EQ(program.Window(), R"(Norvo Data File Editor
Name[] City[] Kind[]
> Zoe|Rome|Abacus
  Ann|Rome|Apple
  Cid||
Add (Move Up) Delete Move Down Save As Cancel
)");
    // An update empties the fields, an add keeps them, and the selection stays where it was.
    program.Press("Move Down").Press("Move Down");
    EXPECT_EQ(program.Buttons(), "Add Move Up Delete (Move Down) Save As Cancel");
    program.Type("Name", "Dee").Press("Add").Press("Add");
    EXPECT_EQ(program.Window(), R"(Norvo Data File Editor
Name[Dee] City[] Kind[]
  Ann|Rome|Apple
  Cid||
> Zoe|Rome|Abacus
  Dee||
  Dee||
Add Move Up Delete Move Down Save As Cancel
)");
    // A delete keeps the fields too, and leaves no row selected and nothing to update.
    program.Pick(0).Type("Name", "unfinished").Pick(1).Type("Kind", "banana").Press("Delete");
    EXPECT_EQ(program.Window(), R"(Norvo Data File Editor
Name[Cid] City[] Kind[Banana]
  Ann|Rome|Apple
  Zoe|Rome|Abacus
  Dee||
  Dee||
Add (Move Up) (Delete) (Move Down) Save As Cancel
)");
}

TEST(Records, LeaveTheirPlaceToTheNextOne) {
    Program program;
    program.StartOn("3,3\na,,\"\"\nb,,\"\"\nc,,\"\"\n");
    const auto &list = dynamic_cast<const ListView &>(program.Main().Controls("ListView1"));
    program.Pick(1).Press("Delete");
    EXPECT_EQ(list.CurrentIndex(), 2);
    program.Pick(1).Press("Delete");
    EXPECT_EQ(list.CurrentIndex(), 1) << "the last one leaves it to the one before";
}

TEST(Records, MayBeTheOnlyOne) {
    Program program;
    program.Start().Press("Add").Pick(0);
    EXPECT_EQ(program.Rows() + program.Buttons(), "> ||\nUpdate (Move Up) Delete (Move Down) Save As Cancel");
    program.Pick(0).Press("Delete");
    EXPECT_EQ(program.Rows() + program.Buttons(), "Add (Move Up) (Delete) (Move Down) (Save As) Cancel");
}

TEST(Records, KeepAFieldFromBeingLeftWithAnUnlistedText) {
    Program program;
    program.StartOn("2,3\nAnn,Oslo,Apple\nBob,Rome,none\n");
    // What a row brings is not tested; what the user leaves is.
    program.Pick(0).Type("Name", "Eve").Type("City", "Rom").Press("Update").Pick(1).Type("Kind", "apple");
    EXPECT_EQ(program.Window(), R"(Norvo Data File Editor
Name[Eve] City[Rom] Kind[Apple]
> Ann|Oslo|Apple
  Bob|Rome|none
Update (Move Up) Delete Move Down Save As Cancel
)");
    // A difference in case is none, and stays as typed.
    program.Type("City", "rOME").Press("Update");
    EXPECT_EQ(program.Rows(), "> Eve|rOME|Apple\n  Bob|Rome|none\n");
    // The update has left the field empty; who enters it now has to choose, who doesn't need not.
    program.Press("Add").Type("City", "").Press("Add");
    EXPECT_EQ(program.Rows(), "> Eve|rOME|Apple\n  Bob|Rome|none\n  ||\n");
}

TEST(Records, AreAtMostAsManyAsATableHolds) {
    std::string rows;
    for (int i = 0; i < 32766; ++i) {
        rows += "x\r\n";
    }
    Program program;
    program.Files().Write("NorvoEditDat.dat", "1,4\r\nA,100,0,-\r\n");
    program.Start("/csv " + program.Files().Write("full.csv", rows + "last\r\n"));
    program.Script().Expect(
        {"The list is full: it holds at most 32767 records.", MessageButtons::Ok, "Norvo Data File Editor"});
    program.Type("A", "more").Press("Add");
    EXPECT_EQ(program.Fields(), "A[more]");
    program.Pick(32765).Type("A", "other").Press("Update").Press("Move Down");
    EXPECT_TRUE(program.Rows().ends_with("  x\n  last\n> other\n"));
    program.SaveAs(program.Files().File("saved"));
    EXPECT_TRUE(program.Files().Read("saved").ends_with("\"last\"\r\n\"other\"\r\n"));

    Program other;
    const std::string name = other.Files().Write("tooLong.csv", rows + "y\r\nz\r\n");
    const std::string tooMany = " has too many records. A table holds at most 32767, so none were read.";
    other.Script().Expect({"File " + name + tooMany, MessageButtons::Ok, "Norvo Data File Editor"});
    EXPECT_EQ(other.Start("/csv " + name).Rows(), "");
}
