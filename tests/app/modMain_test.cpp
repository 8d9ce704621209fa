#include "platform/Controls.h"
#include "platform/ListView.h"
#include "tests/support/Program.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

const std::string caption = "Norvo Data File Editor";

} // namespace

TEST(Start, ReadsFilesTitleAndFormatFromTheCommandLine) {
    const std::string row = R"("x","","")";
    const std::string titles = R"("Name","City","Kind")";
    struct Case {
        std::string command, title, dataFile, firstLine;
    };
    const std::vector<Case> cases{
        {"", caption, "", "1,3"},
        {"none.dat", caption, "none.dat", "1,3"},
        {"NorvoEditDat.dat none.dat", caption, "none.dat", "1,3"}, // found in the program's folder
        {R"(/T "My Title" none.dat)", "My Title", "none.dat", "1,3"},
        {"none.dat -t", "", "none.dat", "1,3"},
        {"-t /csv none.dat", "/csv", "none.dat", "1,3"},
        {"-t One /t Two", "Two", "", "1,3"},
        {"/v /csv none.dat", caption, "none.dat", "1,3"},
        {"/CSV none.dat", caption, "none.dat", row},
        {R"(none.dat "-csv")", caption, "none.dat", row},
        {"/csv /csvh", caption, "", titles},
        {"-CsvH /csv", caption, "", row},
        {"none.dat /csvh", caption, "none.dat", titles},
        {"/csvx", caption, "csvx", "1,3"}, // no switch, so a file's name
    };
    for (const Case &c : cases) {
        Program program;
        program.Start(c.command);
        EXPECT_EQ(program.Main().Caption(), c.title) << c.command;
        EXPECT_EQ(dynamic_cast<MenuItem &>(program.Main().Controls("mnuFileOpen")).Enabled(),
                  c.dataFile.empty())
            << c.command;
        // What a save offers and writes tells the data file and the format.
        program.Type("Name", "x").Press("Add").SaveAs(program.Files().File("saved"));
        EXPECT_EQ(program.Script().Dialogs().back().name, c.dataFile) << c.command;
        EXPECT_EQ(program.Script().Dialogs().back().pattern, c.firstLine == "1,3" ? "*.dat" : "*.csv");
        EXPECT_TRUE(program.Files().Read("saved").starts_with(c.firstLine + "\r\n")) << c.command;
    }
}

TEST(Start, ShowsTheUsageOnMoreThanTwoFiles) {
    for (const std::string command :
         {"a b c", "\"\" b /csv c", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23"}) {
        Program program;
        program.Script().Expect(
            {"Usage: \r\nNorvoEditDat [[specfile] datfile] [/t title] [/csv|/csvh]", 0, "NorvoEditDat"});
        program.Start(command);
        EXPECT_EQ(program.ExitStatus(), 1);
        EXPECT_TRUE(program.Script().Shown().empty());
    }
}

TEST(Start, EndsWithoutASpecification) {
    for (const std::string name : {"no spec", ""}) {
        Program program;
        program.Script().Expect(
            {"Specification file: " + program.Files().Path() + "\\" + name + " doesn't exist.", 16, caption});
        EXPECT_EQ(program.Start("/t Title \"" + name + "\" a.dat").ExitStatus(), 1);
        EXPECT_EQ(program.Script().ClosedCount(), 1);
    }
}

TEST(Start, SaysWhatIsWrongWithASpecification) {
    struct Case {
        std::string bytes, fault;
    };
    const std::string cannotBeNumber = ", which is not a number from -32768 to 32767.";
    const std::vector<Case> cases{
        {"1,3\n\"a\",\"1\",\"0\"\n", "It should have 4 columns."},
        {"", "It should have 4 columns."},
        {"a,1,0,-\n", "It should have 4 columns."},
        {"0,4\n", "It has no rows."},
        {"2,4\na,1,0,-\n", "File {} is too short. Its first line announces 2 records, but it holds only 1."},
        {"2,4\na,1,0,-\nb,1,0\n",
         "Row 2 is empty: its fields are, or its line or one before it doesn't have 4 fields."},
        {"1,4\na,1x,0,-\n", "Row 1 has the width \"1x\"" + cannotBeNumber},
        {"1,4\na,\"\",0,-\n", "Row 1 has the width \"\"" + cannotBeNumber},
        {"1,4\na,32768,0,-\n", "Row 1 has the width \"32768\"" + cannotBeNumber},
        {"1,4\na,1,32768,x.txt\n", "Row 1 has the mode \"32768\", which is beyond -32768 to 32767."},
        {"2,4\na,20000,0,-\nb,20000,0,-\n", "Row 2 brings the sum of the widths beyond -32768 to 32767."},
    };
    for (const Case &c : cases) {
        Program program;
        const std::string spec = program.Files().Write("spec.csv", CrLf(c.bytes));
        const std::string fault =
            c.fault.starts_with("File {}") ? "File " + spec + c.fault.substr(7) : c.fault;
        program.Script().Expect({"Error in specification file:\n" + spec + "\n" + fault, 16, caption});
        program.Start("/csv /t Title \"" + spec + "\" a.dat");
        EXPECT_EQ(program.ExitStatus(), 1) << c.bytes;
    }
}

#ifndef _WIN32 // Elsewhere /dev/null is no file that is there and can't be read as a table.
TEST(Start, SaysWhichFileCanNotBeRead) {
    Program program;
    program.Files().Write("NorvoEditDat.dat", "1,4\r\nA,100,1,/dev/null\r\n");
    program.Script().Expect({"List file /dev/null can't be read: Not a regular file. The list of \"A\" is "
                             "empty, and the field takes any text.",
                             0, caption});
    program.Script().Expect({"File /dev/null can't be read: Not a regular file.", 0, "T"});
    program.Start("/t T /dev/null");
    EXPECT_EQ(program.Window(), "T\nA[]\nAdd (Move Up) (Delete) (Move Down) (Save As) Cancel\n");

    Program broken;
    broken.Script().Expect({"Error in specification file:\n/dev/null\nFile /dev/null can't be read: Not a "
                            "regular file.",
                            16, caption});
    EXPECT_EQ(broken.Start("/dev/null a.dat").ExitStatus(), 1);
}
#endif

TEST(MainWindow, FollowsItsSizeAndSnapsBackUnderTheMinimum) {
    Program program;
    program.Start();
    const auto places = [&] {
        std::ostringstream text;
        for (const char *name : {"cmdAdd", "cmdSave", "ListView1", "lbl21", "cbo22"}) {
            const Control &c = program.Main().Controls(name);
            text << name << " " << c.Left() << " " << c.Top() << " " << c.Width() << " " << c.Height()
                 << ", ";
        }
        const auto &headers = dynamic_cast<ListView &>(program.Main().Controls("ListView1")).ColumnHeaders;
        text << headers(1).Width << " " << headers(2).Width << " " << headers(3).Width;
        return text.str();
    };
    const std::string atStart =
        "cmdAdd 120 3240 720 360, cmdSave 6960 3240 840 360, ListView1 120 720 8640 2400, "
        "lbl21 4440 120 2582 240, cbo22 7032 360 1718 315, 4320 2592 1718";
    EXPECT_EQ(places(), atStart);
    program.Drag(1500, 600);
    EXPECT_EQ(places(), "cmdAdd 120 3840 720 360, cmdSave 8460 3840 840 360, ListView1 120 720 10140 3000, "
                        "lbl21 5190 120 3032 240, cbo22 8232 360 2018 315, 5070 3042 2018");
    program.Drag(0, 0);
    EXPECT_EQ(places(), atStart);
    program.Drag(-500, 600);
    EXPECT_EQ(program.Main().ClientWidth(), 8880);
    EXPECT_EQ(program.Main().ClientHeight(), 3675 + 600);
    EXPECT_EQ(program.Main().Controls("cmdSave").Left(), 6960);
    EXPECT_EQ(program.Main().Controls("cmdSave").Top(), 3840);
    program.Drag(-500, -500, Form::stateMinimized);
    EXPECT_EQ(program.Main().ClientWidth(), 8380);
    EXPECT_EQ(places(), atStart);
}
