// The main window's form: its design, the fields that the specification adds, and its layout.
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "tests/support/Program.h"

#include <sstream>

namespace {

/// The menu, the controls with tab index, place and size, and the columns of the list.
std::string Design(const Program &pProgram) {
    std::ostringstream text;
    for (const auto &control : pProgram.Main().Controls()) {
        if (const auto *const item = dynamic_cast<const MenuItem *>(control.get())) {
            text << item->Caption() << " " << item->Shortcut() << ", ";
        } else if (const auto *const c = dynamic_cast<const SizedControl *>(control.get())) {
            const auto *const label = dynamic_cast<const Label *>(c);
            text << c->Name() << (label == nullptr ? "" : label->Caption()) << " #" << c->TabIndex() << " "
                 << c->Left() << " " << c->Top() << " " << c->Width() << " " << c->Height() << ", ";
        }
    }
    for (int i = 1; i <= pProgram.List().ColumnHeaders.Count(); ++i) {
        text << pProgram.List().ColumnHeaders(i).Text << " " << pProgram.List().ColumnHeaders(i).Width << " ";
    }
    return text.str();
}

} // namespace

TEST(MainForm, FollowsItsSizeAndSnapsBackUnderTheMinimum) {
    Program program;
    program.Files().Write("NorvoEditDat.dat", CrLf("2,4\n\"\",12.5,0,-\n\" B \",50,1,x\n"));
    const std::string menu = "&File , &Open Ctrl+O, E&xit , &Help , &Contents F1, &About , ";
    const std::string atStart =
        "cmdAdd #0 120 3240 720 360, cmdMoveUp #1 1800 3240 361 360, cmdDel #2 960 3240 720 359, "
        "cmdMoveDown #3 2280 3240 361 360, cmdSave #4 6960 3240 840 360, cmdCancel #5 7920 3240 840 360, "
        "ListView1 #6 120 720 8640 2400, " +
        menu +
        "lbl20  #32767 120 120 1070 240, cbo20 #32767 120 360 1070 315, "
        "lbl21 B #32767 1200 120 4310 240, cbo21 #32767 1200 360 4310 315,  1036.8 B 4310 ";
    EXPECT_EQ(Design(program.Start()), atStart);
    program.Main().UserSizes(8880 + 1500, 3675 + 600, Form::stateNormal);
    EXPECT_EQ(
        Design(program),
        "cmdAdd #0 120 3840 720 360, cmdMoveUp #1 1800 3840 361 360, cmdDel #2 960 3840 720 359, "
        "cmdMoveDown #3 2280 3840 361 360, cmdSave #4 8460 3840 840 360, cmdCancel #5 9420 3840 840 360, "
        "ListView1 #6 120 720 10140 3000, " +
            menu +
            "lbl20  #32767 120 120 1265 240, cbo20 #32767 120 360 1265 315, "
            "lbl21 B #32767 1380 120 5060 240, cbo21 #32767 1380 360 5060 315,  1216.8 B 5060 ");
    for (const int state : {Form::stateMinimized, Form::stateNormal}) {
        program.Main().UserSizes(8880 - 500, 3675 - 90, state);
        const float sides = program.Main().ClientWidth() + program.Main().ClientHeight();
        EXPECT_EQ(sides, state == Form::stateNormal ? 8880 + 3675 : 8380 + 3585);
        EXPECT_EQ(Design(program), atStart);
    }
}

TEST(MainForm, TakesListsFromTheCurrentFolderFirst) {
    const std::filesystem::path before = std::filesystem::current_path();
    const TemporaryFolder current;
    std::filesystem::current_path(current.Path());
    current.Write("cities.txt", "Oslo, N \r\n\r\n Rom\"e\nX\rOslo, N ");
    current.Write("kinds.txt", "");
    Program program;
    program.Start();
    std::filesystem::current_path(before);
    std::string lists;
    for (const char *name : {"cbo21", "cbo22"}) {
        const auto &box = dynamic_cast<const ComboBox &>(program.Main().Controls(name));
        for (int i = 0; i < box.ListCount(); ++i) {
            lists += box.List(i) + "/";
        }
        lists += box.AccessibleDescription() + ";";
    }
    // The second list is empty. Its field takes any text, so it has no description.
    EXPECT_EQ(lists, "Oslo, N // Rom\"e\nX/Oslo, N /one of the listed values;;");
}
