// The main window's form: its design, the fields that the specification adds, and its layout.
#include "tests/support/Program.h"

TEST(MainForm, HasTheDesignAndTheFieldsOfTheSpecificationAndFollowsItsSize) {
    Program program;
    program.files.Write("NorvoEditDat.dat",
                        CrLf("4,4\n\"\",12.5,0,-\n\" B \",49,1,cities.txt\nC,21.5,0,kinds.txt\nD,9,1,no\n"));
    program.files.Write("current/cities.txt", "Oslo"); // The current folder comes first.
    const auto looks = [&] { return LooksOf(program.Main()) + ColumnsOf(program.List()); };
    const auto size = [&](float pWidth, float pHeight, int pState) {
        program.Act([&] { program.Main().UserSizes(pWidth, pHeight, pState); });
        return program.Main().ClientWidth() + program.Main().ClientHeight();
    };
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(program.files.File("current"));
    program.Start();
    std::filesystem::current_path(before);
    const std::string atStart = looks();
    // clang-format off
    EXPECT_EQ(atStart, "cDlg / cmdAdd 0 120 3240 720 360 1 Y=1 Add  0 0 0 / cmdMoveUp 1 1800 3240 361 360 0 Y=1  Move Up 1 0 0 / "
        "cmdDel 2 960 3240 720 359 0 Y=1 Delete  0 0 0 / cmdMoveDown 3 2280 3240 361 360 0 Y=1  Move Down 2 0 0 / "
        "cmdSave 4 6960 3240 840 360 0 X=1 Y=1 Save &As  0 0 0 / cmdCancel 5 7920 3240 840 360 1 X=1 Y=1 Cancel  0 0 1 / "
        "ListView1 6 120 720 8640 2400 1 H=1 W=1 Records 1 0 0 0 / mnuFile &File  1 / mnuFileOpen &Open Ctrl+O 1 / "
        "mnuFileExit E&xit  1 / mnuHelp &Help  1 / mnuHelpContents &Contents F1 1 / mnuHelpAbout &About  1 / "
        "lbl20 32767 120 120 1070 240 1 X=0/100 W=13/100   0 0 / cbo20 32767 120 360 1070 315 1 X=0/100 W=13/100   / "
        "lbl21 32767 1200 120 4224 240 1 X=12/100 W=49/100  B 0 0 / "
        "cbo21 32767 1200 360 4224 315 1 X=12/100 W=49/100 B  one of the listed values 1 -1 0 0 0 / "
        "lbl22 32767 5434 120 1848 240 1 X=61/100 W=22/100  C 0 0 / cbo22 32767 5434 360 1848 315 1 X=61/100 W=22/100 C   3 -1 0 0 0 / "
        "lbl23 32767 7291 120 768 240 1 X=82/100 W=9/100  D 0 0 / cbo23 32767 7291 360 768 315 1 X=82/100 W=9/100 D   0 -1 0 0 0 / "
        " 1036.8 B 4233.6 C 1900.8 D 767.6 ");
    EXPECT_EQ(size(8880 + 1500, 3675 + 600, Form::stateNormal), 8880 + 1500 + 3675 + 600);
    EXPECT_EQ(LookOf(program.Main().Controls("cmdSave")) + LookOf(program.Main().Controls("lbl22")) + ColumnsOf(program.List()),
        "cmdSave 4 8460 3840 840 360 0 X=1 Y=1 Save &As  0 0 0 lbl22 32767 6349 120 2178 240 1 X=61/100 W=22/100  C 0 0 "
        " 1216.8 B 4968.6 C 2230.8 D 902.6 ");
    // clang-format on
    EXPECT_EQ(size(8880 - 500, 3675 - 90, Form::stateMinimized), 8380 + 3585);
    EXPECT_EQ(looks(), atStart);
    EXPECT_EQ(size(8880 - 500, 3675 - 90, Form::stateNormal), 8880 + 3675);
    EXPECT_EQ(looks(), atStart);
}
