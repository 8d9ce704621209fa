// Opening, saving and leaving.
#include "tests/support/Program.h"

#ifdef __linux__
#include <sys/stat.h>
#endif

const std::string caption = "Norvo Data File Editor";

TEST(Opening, ShowsTheRecordsOrOneMessage) {
    Program program;
    const std::string wrong = " is not in the correct format. It has ";
    const std::string wanted = " columns.\n\nSpecification " + program.Start().files.Path() +
                               "\\NorvoEditDat.dat is for 3 column data files.";
    const std::string tooShort = " is too short. Its first line announces 3 records, but it holds only 1.";
    // clang-format off
    const std::tuple<const char *, std::string, std::string> cases[] = {
        {"3,3\na,b,c\nd,e\nf,g,h\n", " a|b|c || || A---SC", ""}, {"3,3\na,b,c\n", " a|b|c A---SC", tooShort},
        {"5,4\na,b,c,d\n", " A----C", wrong + "4" + wanted}, {"", " A----C", wrong + "0" + wanted}};
    // clang-format on
    for (const auto &[bytes, rows, message] : cases) {
        const std::string name = program.files.Write("new.dat", CrLf(bytes));
        program.Press("Add"); // Each file replaces this row.
        program.script.ExpectOpen(name);
        if (!message.empty()) {
            program.script.Expect("File " + name + message, caption);
        }
        EXPECT_EQ(program.Choose("FileOpen").Window(), "Name[]City[]Kind[]" + rows) << bytes;
        EXPECT_TRUE(rows[1] == 'A' || program.List().WantedInView() == 1) << "it opens at the top";
    }
}

TEST(Opening, TakesANameThatIsNotThereForANewFile) {
    Program program;
    program.Start("/csvh").Type(0, "Ann").Press("Add").Pick(0).Open({}); // dismissed
    EXPECT_EQ(program.Window(), "Name[Ann]City[]Kind[]>Ann|| U-D-SC");
    // Opening leaves no row selected. The update then changes no row, and the fields keep their texts.
    const std::string name = program.files.File("new.dat");
    EXPECT_EQ(program.Open(name).Press("Add").Window(), "Name[Ann]City[]Kind[] A----C");
    program.Press("Add").SaveAs(name);
    EXPECT_EQ(program.script.asked, program.files.Path() + "/|new.dat|Comma Separated Values (*.csv)|*.csv");
    EXPECT_EQ(program.files.Read("new.dat"), "\"Name\",\"City\",\"Kind\"\r\n\"Ann\",\"\",\"\"\r\n");
}

TEST(Saving, WritesTheListAndChangesNothingElse) {
    Program program;
    program.StartOn("2,3\nAnn,Rome,Apple\n\"B\"\"ob\",x,\"a,b\"\n").Pick(0);
    const std::string before = program.Choose("FileOpen").Window(); // disabled after a start on a file
    program.SaveAs({}).SaveAs(program.files.File("copy.csv")).SaveAs({}).SaveAs({});
    EXPECT_EQ(program.Window(), before);
    EXPECT_TRUE(program.files.Read("data.dat").starts_with("2,3\r\nAnn,")); // The first save was dismissed.
    EXPECT_EQ(program.files.Read("copy.csv"), // The command line alone decides the format.
              "2,3\r\n\"Ann\",\"Rome\",\"Apple\"\r\n\"B\"\"ob\",\"x\",\"a,b\"\r\n");
    EXPECT_EQ(program.script.asked, program.files.Path() + "/|copy.csv|Data (*.dat)|*.dat");
}

#ifdef __linux__
TEST(Saving, TellsAFailureOnceAndKeepsTheRecords) {
    Program program;
    const std::string window = program.StartOn("1,3\nAnn,,Apple\n").Pick(0).Window();
    const auto fails = [&](const std::string &pTarget, const std::string &pReason, const char *pMore = "") {
        const std::string fault = "File " + pTarget + " can't be saved: " + pReason;
        program.script.ExpectSave(pTarget);
        program.script.Expect(fault + ". The records are still in the list." + pMore, caption);
        EXPECT_EQ(program.Press("Save").Window(), window);
    };
    const TemporaryFolder &files = program.files;
    ASSERT_EQ(mkfifo(files.File("pipe").c_str(), 0600), 0); // Nobody reads it: a writer that waits hangs.
    fails(files.File("pipe"), "Not a regular file");
    fails(files.Path(), "Is a directory");
    fails(files.File("no/folder.dat"), "No such file or directory");
    fails("/dev/full", "No space left on device");
    const std::string whole = "1,3\r\n\"Ann\",\"\",\"Apple\"\r\n";
    for (std::size_t size = 0; size < whole.size(); ++size) { // The file can't grow beyond any byte of it.
        WithFileLimit(size, [&] {
            fails(files.File("f"), "File too large", " The file itself may now be incomplete.");
        });
        EXPECT_EQ(files.Read("f"), whole.substr(0, size));
    }
}
#endif

TEST(Leaving, AsksOnEveryWayButTheCloseBox) {
    Program program;
    const auto answer = [&](MessageAnswer pAnswer) {
        program.script.Expect("Are you sure?", "Quit", MessageButtons::OkAndCancel, pAnswer);
    };
    const std::string before = program.StartOn("1,3\na,Oslo,c\n").Pick(0).Type(1, "unlisted").Window();
    answer(MessageAnswer::Cancel);
    answer(MessageAnswer::Cancel);
    EXPECT_EQ(program.Act([&] { program.Main().UserPressesEscape(); }).Choose("FileExit").Window(), before);
    answer(MessageAnswer::Ok);
    EXPECT_EQ(program.Type(1, "Rome").Press("Cancel").ExitStatus(), 0);
    EXPECT_TRUE(program.script.shown.empty());
    // The About box, and with it the program, outlives the main window.
    EXPECT_EQ(program.Start().Choose("HelpAbout").Act([&] { program.Main().UserCloses(); }).ExitStatus(),
              std::nullopt);
    EXPECT_EQ(program.Press("OK").ExitStatus(), 0);
}
