// Files and leaving.
#include "platform/Controls.h"
#include "tests/support/Program.h"

#include <gtest/gtest.h>

#ifdef __linux__
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

const std::string caption = "Norvo Data File Editor";
const Message question{"Are you sure?", 1, "Quit"};

} // namespace

TEST(Opening, ShowsTheRecordsOrOneMessage) {
    struct Case {
        std::string bytes, rows, message;
    };
    const std::vector<Case> cases{
        {"2,3\na,b,c\nd,e,f\n", "  a|b|c\n  d|e|f\n", ""},
        {"0,3\n", "", ""},
        {"3,3\na,b,c\nd,e\nf,g,h\n", "  a|b|c\n  ||\n  ||\n", ""},
        {"3,3\na,b,c\n", "  a|b|c\n",
         "File {} is too short. Its first line announces 3 records, but it holds only 1."},
        {"32768,3\na,b,c\n", "",
         "File {} announces 32768 records. A table holds at most 32767, so none were read."},
        {"5,4\na,b,c,d\n", "",
         "File {} is not in the correct format. It has 4 columns.\n\nSpecification {spec} is for 3 column "
         "data "
         "files."},
        {"", "",
         "File {} is not in the correct format. It has 0 columns.\n\nSpecification {spec} is for 3 column "
         "data "
         "files."},
    };
    for (const Case &c : cases) {
        Program program;
        const std::string name = program.Files().Write("data.dat", CrLf(c.bytes));
        std::string message = c.message;
        if (!message.empty()) {
            message.replace(message.find("{}"), 2, name);
            if (const std::size_t at = message.find("{spec}"); at != std::string::npos) {
                message.replace(at, 6, program.Files().Path() + "\\NorvoEditDat.dat");
            }
            program.Script().Expect({message, 0, "Title"});
        }
        program.Start("/t Title " + name);
        EXPECT_EQ(program.Rows(), c.rows) << c.bytes;
        EXPECT_EQ(program.Buttons(), c.rows.empty() ? "Add (Move Up) (Delete) (Move Down) (Save As) Cancel"
                                                    : "Add (Move Up) (Delete) (Move Down) Save As Cancel")
            << c.bytes;
    }
}

TEST(Opening, ReplacesTheListWhateverTheFile) {
    Program program;
    program.Start().Type("Name", "Ann").Press("Add").Pick(0);
    program.Script().ExpectOpen({}); // dismissed
    program.Choose("Open");
    EXPECT_EQ(program.Rows(), "> Ann||\n");
    program.Script().ExpectOpen(program.Files().File("new.dat"));
    program.Choose("Open");
    EXPECT_EQ(program.Window(), caption + "\nName[Ann] City[] Kind[]\n" +
                                    "Update (Move Up) (Delete) (Move Down) (Save As) Cancel\n");
    // The name that wasn't there is the one that a save offers.
    program.Press("Update").Press("Add");
    program.SaveAs(program.Files().File("new.dat"));
    EXPECT_EQ(program.Script().Dialogs().back().name, "new.dat");
    EXPECT_EQ(program.Script().Dialogs().back().folder, program.Files().Path() + "/");
    EXPECT_EQ(program.Files().Read("new.dat"), "1,3\r\n\"Ann\",\"\",\"\"\r\n");

    program.Script().ExpectOpen(program.Files().Write("other.dat", "1,2\r\na,b\r\n"));
    program.Script().Expect({"File " + program.Files().File("other.dat") +
                                 " is not in the correct format. It has 2 columns.\n\nSpecification " +
                                 program.Files().Path() + "\\NorvoEditDat.dat is for 3 column data files.",
                             0, caption});
    program.Choose("Open");
    EXPECT_EQ(program.Rows(), "");
}

TEST(Opening, IsOfferedOnlyInARunThatNamesNoFile) {
    Program program;
    program.StartWith({"Ann|Rome|Apple"}).Choose("Open");
    EXPECT_TRUE(program.Script().Dialogs().empty());

    Program csv;
    csv.Files().Write("a.csv", "Ann,Rome,Apple\r\n");
    csv.Script().ExpectOpen(csv.Files().File("a.csv"));
    csv.Start("/csv").Choose("Open");
    EXPECT_EQ(csv.Rows(), "  Ann|Rome|Apple\n");
    const FileDialogRequest &dialog = csv.Script().Dialogs().back();
    EXPECT_EQ(dialog.description, "Comma Separated Values (*.csv)");
    EXPECT_EQ(dialog.pattern, "*.csv");
}

TEST(Saving, WritesTheListAndChangesNothingElse) {
    Program program;
    program.StartWith({"Ann|Rome|Apple", "B\"ob| x |a,b"}).Pick(0);
    const std::string before = program.Window();
    program.Script().ExpectSave({}); // dismissed
    program.Press("Save As");
    program.SaveAs(program.Files().File("copy.csv"));
    EXPECT_EQ(program.Window(), before);
    EXPECT_EQ(program.Files().Read("copy.csv"), // The form goes by the command line alone.
              "2,3\r\n\"Ann\",\"Rome\",\"Apple\"\r\n\"B\"\"ob\",\"x\",\"a,b\"\r\n");
    program.Script().ExpectSave({});
    program.Press("Save As");
    EXPECT_EQ(program.Script().Dialogs()[0].name, "data.dat");
    EXPECT_EQ(program.Script().Dialogs()[1].name, "data.dat");
    EXPECT_EQ(program.Script().Dialogs()[2].name, "copy.csv");
    EXPECT_EQ(program.Script().Dialogs()[2].description, "Data (*.dat)");
}

TEST(Saving, TellsAFailureOnceAndKeepsTheRecords) {
    Program program;
    program.StartWith({"Ann|Rome|Apple"}).Pick(0);
    const std::string before = program.Window();
    std::vector<std::pair<std::string, std::string>> targets{
        {program.Files().Path(), "Is a directory"},
        {program.Files().File("no/folder.dat"), "No such file or directory"}};
#ifdef __linux__
    targets.emplace_back("/dev/full", "No space left on device");
#endif
    for (const auto &[target, reason] : targets) {
        program.Script().ExpectSave(target);
        program.Script().Expect(
            {"File " + target + " can't be saved: " + reason + ". The records are still in the list.", 0,
             caption});
        program.Press("Save As");
        EXPECT_EQ(program.Window(), before);
    }
    program.SaveAs(program.Files().File("saved.dat"));
    EXPECT_EQ(program.Files().Read("saved.dat"), "1,3\r\n\"Ann\",\"Rome\",\"Apple\"\r\n");
}

#ifdef __linux__
TEST(Saving, SurvivesAFileThatCanNotGrowAtAnyByte) {
    std::signal(SIGXFSZ, SIG_IGN); // as the program itself has it
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    Program program;
    program.StartWith({"Ann||Apple"}).Pick(0);
    const std::string window = program.Window();
    const std::string target = program.Files().File("saved.dat");
    const std::string whole = "1,3\r\n\"Ann\",\"\",\"Apple\"\r\n";
    for (std::size_t limit = 0; limit <= whole.size(); ++limit) {
        program.Script().ExpectSave(target);
        if (limit < whole.size()) {
            program.Script().Expect({"File " + target +
                                         " can't be saved: File too large. The records are still in the "
                                         "list. The file itself may now be incomplete.",
                                     0, caption});
        }
        const rlimit lowered{limit, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &lowered);
        program.Press("Save As");
        setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_EQ(program.Files().Read("saved.dat"), whole.substr(0, limit));
        EXPECT_EQ(program.Window(), window);
    }
}
#endif

TEST(Leaving, AsksOnEveryWayButTheCloseBox) {
    using Verb = Program &(*)(Program &);
    for (const Verb leave : {Verb([](Program &p) -> Program & { return p.Press("Cancel"); }),
                             Verb([](Program &p) -> Program & { return p.PressEscape(); }),
                             Verb([](Program &p) -> Program & { return p.Choose("Exit"); })}) {
        Program program;
        program.StartWith({"Ann|Rome|Apple"}).Pick(0).Type("Name", "Zoe");
        const std::string before = program.Window();
        program.Script().Expect(question, ScriptedDesktop::answerCancel);
        leave(program);
        EXPECT_EQ(program.Window(), before);
        program.Script().Expect(question);
        EXPECT_EQ(leave(program).ExitStatus(), 0);
        EXPECT_TRUE(program.Script().Shown().empty());
    }
    Program program;
    EXPECT_EQ(program.StartWith({"Ann|Rome|Apple"}).Pick(0).CloseWindow().ExitStatus(), 0);
}

TEST(Leaving, LeavesTheAboutBoxOpenOnlyByTheCloseBox) {
    Program program;
    program.Start().Choose("About").CloseWindow();
    EXPECT_EQ(program.ExitStatus(), std::nullopt);
    EXPECT_EQ(program.Press("OK").ExitStatus(), 0);

    Program quit;
    quit.Script().Expect(question);
    EXPECT_EQ(quit.Start().Choose("About").Press("Cancel").ExitStatus(), 0);
}
