#include "help/frmAbout.h"
#include "tests/support/Program.h"

TEST(Help, OpensThePageOfTheProgramsOwnNameFirst) {
    Program program("Other");
    program.Start().Choose("HelpContents"); // There is none yet.
    std::vector<std::string> pages{program.files.Path() + "\\Help\\index.html"};
    for (const std::string page : {"index.html", "NorvoEditDat.html", "Other.html"}) {
        program.files.Write("Help/" + page, "");
        program.Choose("HelpContents");
        pages.push_back(program.files.Path() + "\\Help\\" + page);
    }
    EXPECT_EQ(program.script.targets, pages);
}

TEST(About, ShowsTheVersionRecordAndLinksToTheMaker) {
    ScriptedDesktop desktop;
    Runtime runtime(desktop, {"", "", "Product", "Description", "Comments", "Copyright", 1, 5, 7}, "");
    frmAbout about(runtime);
    about.Show();
    about.Show();
    ASSERT_EQ(desktop.shown.size(), 1U) << "there is one box only";
    const Form &box = *desktop.shown.back();
    // clang-format off
    EXPECT_EQ(box.Caption() + "/ " + LooksOf(box),
        "About Description/ cmdOK 0 4245 2625 1260 345 1  OK  0 1 1 / lblComments 2 960 1170 4485 1005 1  Comments 0 0 / "
        "lblCopyright 3 255 2625 1590 345 1 " NORVO_HOME_PAGE " Copyright 255 1 / lblTitle 4 1680 240 3165 240 1  Product 0 0 / "
        "lblVersion 5 1680 480 3165 225 1  1.05.0007 0 0 / picIcon 1 240 240 480 480 1  / "
        "Label1 6 960 240 615 255 1  Product: 0 0 / Label2 7 960 480 615 225 1  Version: 0 0 / "
        "Line1(1) 32767 90 2445 5564 15 1  8421504 / Line1(0) 32767 105 2460 5549 30 1  16777215 / ");
    // clang-format on
    EXPECT_EQ(box.Border(), Form::BorderStyle::FixedDialog);
    EXPECT_EQ(box.ClientWidth() - box.ClientHeight(), 5730 - 3090);
    dynamic_cast<const Label &>(box.Controls("lblCopyright")).Click.Raise();
    EXPECT_EQ(desktop.targets, std::vector<std::string>{NORVO_HOME_PAGE});
    box.UserPressesEscape(); // It asks nothing here.
    EXPECT_TRUE(desktop.shown.empty());
}
