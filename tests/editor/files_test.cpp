// Opening, saving and leaving.
#include "tests/support/Program.h"

#ifdef __linux__
#include <sys/stat.h>
#endif

const std::string caption = "Norvo Data File Editor";

TEST(Opening, ShowsTheRecordsOrOneMessage) {
    Program program;
    const std::string spec = program.Start().Files().Path() + "\\NorvoEditDat.dat";
    const std::string wrong = " is not in the correct format. It has ";
    const std::string wanted = " columns.\n\nSpecification " + spec + " is for 3 column data files.";
    const std::tuple<const char *, std::string, std::string> cases[] = {
        {"3,3\na,b,c\nd,e\nf,g,h\n", "  a|b|c\n  ||\n  ||\n", ""},
        {"3,3\na,b,c\n", "  a|b|c\n",
         " is too short. Its first line announces 3 records, but it holds only 1."},
        {"32768,3\n", "", " announces 32768 records. A table holds at most 32767, so none were read."},
        {"x,3\na,b,c\n", "", " doesn't begin with the number of its records, so none were read."},
        {"5,4\na,b,c,d\n", "", wrong + "4" + wanted},
        {"", "", wrong + "0" + wanted}};
    for (const auto &[bytes, rows, message] : cases) {
        const std::string name = program.Files().Write("new.dat", CrLf(bytes));
        program.Press("Add"); // Each file replaces this row.
        program.Script().ExpectOpen(name);
        if (!message.empty()) {
            program.Script().Expect({"File " + name + message, MessageButtons::Ok, caption});
        }
        EXPECT_EQ(program.Choose("FileOpen").Rows(), rows) << bytes;
        EXPECT_EQ(program.Buttons().find("(Save As)") != std::string::npos, rows.empty()) << bytes;
    }
    Program titles; // The titles come from the specification, so a file without records fits.
    EXPECT_EQ(titles.Start("/csvh " + titles.Files().Write("t.csv", "x\r\n")).Rows(), "");
    Program csv; // A CSV file whose first line has no words ends the program.
    csv.Script().Expect({"clsDatFile.Cols out of bounds ( 0)", MessageButtons::Ok, "NorvoEditDat"});
    EXPECT_EQ(csv.Start("/csv " + csv.Files().Write("a.csv", "\"a\r\n")).ExitStatus(), 1);
}

TEST(Opening, TakesANameThatIsNotThereForANewFile) {
    Program program;
    program.Start().Type("Name", "Ann").Press("Add").Pick(0).Open({}); // dismissed
    EXPECT_EQ(program.Rows(), "> Ann||\n");
    EXPECT_EQ(program.Script().Dialogs().back().pattern, "*.dat");
    // Opening leaves no row selected. The update then changes no row, and the fields keep their texts.
    const std::string name = program.Files().File("new.dat");
    EXPECT_EQ(program.Open(name).Press("Update").Window(),
              caption + "\nName[Ann] City[] Kind[]\nAdd (Move Up) (Delete) (Move Down) (Save As) Cancel\n");
    program.Press("Add").SaveAs(name);
    EXPECT_EQ(program.Script().Dialogs().back().folder + program.Script().Dialogs().back().name, name);
    EXPECT_EQ(program.Files().Read("new.dat"), "1,3\r\n\"Ann\",\"\",\"\"\r\n");
}

TEST(Saving, WritesTheListAndChangesNothingElse) {
    Program program;
    program.StartOn("2,3\nAnn,Rome,Apple\n\"B\"\"ob\",x,\"a,b\"\n").Pick(0);
    const std::string before = program.Choose("FileOpen").Window(); // disabled after a start on a file
    program.SaveAs({}).SaveAs(program.Files().File("copy.csv")).SaveAs({});
    EXPECT_EQ(program.Window(), before);
    EXPECT_TRUE(program.Files().Read("data.dat").starts_with("2,3\r\nAnn,")); // The first save was dismissed.
    EXPECT_EQ(program.Files().Read("copy.csv"), // The command line alone decides the format.
              "2,3\r\n\"Ann\",\"Rome\",\"Apple\"\r\n\"B\"\"ob\",\"x\",\"a,b\"\r\n");
    const FileDialogRequest &offered = program.Script().Dialogs().back();
    EXPECT_EQ(offered.description + "|" + offered.pattern + "|" + offered.name,
              "Data (*.dat)|*.dat|copy.csv");
}

#ifdef __linux__
TEST(Saving, TellsAFailureOnceAndKeepsTheRecords) {
    Program program;
    const std::string window = program.StartOn("1,3\nAnn,,Apple\n").Pick(0).Window();
    const std::string whole = "1,3\r\n\"Ann\",\"\",\"Apple\"\r\n";
    const auto fails = [&](const std::string &pTarget, const std::string &pReason) {
        program.Script().ExpectSave(pTarget);
        program.Script().Expect(
            {"File " + pTarget + " can't be saved: " + pReason, MessageButtons::Ok, caption});
        EXPECT_EQ(program.Press("Save As").Window(), window);
    };
    const std::string kept = ". The records are still in the list.";
    const std::string pipe = program.Files().File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0); // Nobody reads it: a writer that waits hangs.
    fails(pipe, "Not a regular file" + kept);
    fails(program.Files().Path(), "Is a directory" + kept);
    const std::string lost = program.Files().File("no/folder.dat");
    fails(lost, "No such file or directory" + kept);
    fails("/dev/full", "No space left on device" + kept);
    EXPECT_EQ(program.Script().Dialogs().back().name, lost) << "the bare name is another file elsewhere";
    // A file that can't grow beyond a limit, at any byte of it.
    for (std::size_t size = 0; size < whole.size(); ++size) {
        WithFileLimit(size, [&] {
            fails(program.Files().File("saved.dat"),
                  "File too large" + kept + " The file itself may now be incomplete.");
        });
        EXPECT_EQ(program.Files().Read("saved.dat"), whole.substr(0, size));
    }
}
#endif

TEST(Leaving, AsksOnEveryWayButTheCloseBox) {
    const Message question{"Are you sure?", MessageButtons::OkAndCancel, "Quit"};
    Program program;
    const std::string before = program.StartOn("1,3\na,Oslo,c\n").Pick(0).Type("City", "unlisted").Window();
    program.Script().Expect(question, MessageAnswer::Cancel);
    program.Script().Expect(question, MessageAnswer::Cancel);
    EXPECT_EQ(program.PressEscape().Choose("FileExit").Window(), before);
    program.Script().Expect(question);
    EXPECT_EQ(program.Type("City", "Rome").Press("Cancel").ExitStatus(), 0);
    EXPECT_TRUE(program.Script().Shown().empty());

    Program other; // The About box, and with it the program, outlives the main window.
    EXPECT_EQ(other.Start().Choose("HelpAbout").CloseWindow().ExitStatus(), std::nullopt);
    EXPECT_EQ(other.Press("OK").ExitStatus(), 0);
}
