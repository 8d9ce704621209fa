#include "app/modMain.h"

#include "platform/Controls.h"
#include "platform/ListView.h"
#include "tests/support/Program.h"

#include <sstream>

const std::string caption = "Norvo Data File Editor";

TEST(Start, ReadsFilesTitleAndFormatFromTheCommandLine) {
    const std::string row = R"("x","","")";
    const std::string titles = R"("Name","City","Kind")";
    struct Case {
        std::string command, title, dataFile, firstLine;
    };
    const Case cases[] = {
        {"", caption, "", "1,3"},
        {"NorvoEditDat.dat none.dat", caption, "none.dat", "1,3"}, // found beside the program
        {R"(/T "My Title" none.dat)", "My Title", "none.dat", "1,3"},
        {"none.dat -t", "", "none.dat", "1,3"},
        {"-t /csv none.dat", "/csv", "none.dat", "1,3"},
        {"/v /csv none.dat", caption, "none.dat", "1,3"},
        {"/CSV none.dat", caption, "none.dat", row},
        {"/csv /csvh", caption, "", titles},
        {"-CsvH /csv", caption, "", row},
        {"/csvx", caption, "csvx", "1,3"}}; // no switch, so a file's name
    for (const Case &c : cases) {
        Program program;
        // What a save offers and writes tells name and format.
        program.Start(c.command).Type("Name", "x").Press("Add").SaveAs(program.Files().File("saved"));
        EXPECT_EQ(program.Main().Caption(), c.title) << c.command;
        EXPECT_EQ(program.Script().Dialogs().back().name, c.dataFile) << c.command;
        EXPECT_EQ(program.Script().Dialogs().back().pattern, c.firstLine == "1,3" ? "*.dat" : "*.csv");
        EXPECT_TRUE(program.Files().Read("saved").starts_with(c.firstLine + "\r\n")) << c.command;
    }
}

TEST(Start, EndsWithOneMessageOnABadCommandLine) {
    for (const char *command :
         {"a b c", "\"\" b /csv c", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23"}) {
        Program program;
        program.Script().Expect({"Usage: \r\nNorvoEditDat [[specfile] datfile] [/t title] [/csv|/csvh]",
                                 MessageButtons::Ok, "NorvoEditDat"});
        EXPECT_EQ(program.Start(command).ExitStatus(), 1);
    }
    Program program;
    program.Script().Expect({"Specification file: " + program.Files().Path() + "\\no spec doesn't exist.",
                             MessageButtons::CriticalStop, caption});
    EXPECT_EQ(program.Start("/t Title \"no spec\" a.dat").ExitStatus(), 1);
}

TEST(Start, ShowsAFaultOfTheSpecificationUnderTheDesignCaption) {
    Program program;
    const std::string spec = program.Files().Write("spec.csv", "0,4\r\n");
    program.Script().Expect({"Error in specification file:\n" + spec + "\nIt has no rows.",
                             MessageButtons::CriticalStop, caption});
    EXPECT_EQ(program.Start("/csv /t Title \"" + spec + "\" a.dat").ExitStatus(), 1);
}

#ifndef _WIN32 // Elsewhere /dev/null is no file that is there and can't be read as a table.
TEST(Start, SaysWhichFileCanNotBeRead) {
    Program program;
    program.Files().Write("NorvoEditDat.dat", "1,4\r\nA,100,1,/dev/null\r\n");
    program.Script().Expect({"List file /dev/null can't be read: Not a regular file. The list of \"A\" is "
                             "empty, and the field takes any text.",
                             MessageButtons::Ok, caption});
    program.Script().Expect({"File /dev/null can't be read: Not a regular file.", MessageButtons::Ok, "T"});
    program.Start("/t T /dev/null").Type("A", "any").Press("Add");
    EXPECT_EQ(program.Window(), "T\nA[any]\n  any\nAdd (Move Up) (Delete) (Move Down) Save As Cancel\n");
}
#endif

TEST(MainWindow, FollowsItsSizeAndSnapsBackUnderTheMinimum) {
    Program program;
    const Form &form = program.Start().Main();
    const auto places = [&] {
        std::ostringstream text;
        for (const char *name : {"cmdAdd", "cmdSave", "cmdCancel", "ListView1", "lbl21", "cbo22"}) {
            const auto &c = dynamic_cast<const SizedControl &>(form.Controls(name));
            text << name << " " << c.Left() << " " << c.Top() << " " << c.Width() << " " << c.Height()
                 << ", ";
        }
        const auto &headers = dynamic_cast<ListView &>(form.Controls("ListView1")).ColumnHeaders;
        text << headers(1).Width << " " << headers(2).Width << " " << headers(3).Width;
        return text.str();
    };
    const std::string atStart =
        "cmdAdd 120 3240 720 360, cmdSave 6960 3240 840 360, cmdCancel 7920 3240 840 360, "
        "ListView1 120 720 8640 2400, "
        "lbl21 4440 120 2582 240, cbo22 7032 360 1718 315, 4320 2592 1718";
    EXPECT_EQ(places(), atStart);
    program.Main().UserSizes(8880 + 1500, 3675 + 600, Form::stateNormal);
    EXPECT_EQ(places(), "cmdAdd 120 3840 720 360, cmdSave 8460 3840 840 360, cmdCancel 9420 3840 840 360, "
                        "ListView1 120 720 10140 3000, "
                        "lbl21 5190 120 3032 240, cbo22 8232 360 2018 315, 5070 3042 2018");
    for (const int state : {Form::stateMinimized, Form::stateNormal}) {
        program.Main().UserSizes(8880 - 500, 3675, state);
        EXPECT_EQ(form.ClientWidth(), state == Form::stateNormal ? 8880 : 8380);
        EXPECT_EQ(places(), atStart);
    }
}

TEST(MainWindow, HasItsTabOrderAndShortcutsFromTheDesign) {
    Program program;
    std::string design;
    for (const auto &control : program.Start().Main().Controls()) {
        if (const auto *button = dynamic_cast<const CommandButton *>(control.get())) {
            design += button->Name() + " " + std::to_string(button->TabIndex()) + ", ";
        } else if (const auto *item = dynamic_cast<const MenuItem *>(control.get())) {
            design += item->Caption() + " " + item->Shortcut() + ", ";
        }
    }
    EXPECT_EQ(design, "cmdAdd 0, cmdMoveUp 1, cmdDel 2, cmdMoveDown 3, cmdSave 4, cmdCancel 5, "
                      "&File , &Open Ctrl+O, E&xit , &Help , &Contents F1, &About , ");
}
