#include "help/frmAbout.h"
#include "tests/support/Program.h"

TEST(Help, OpensThePageOfTheProgramsOwnNameFirst) {
    Program program("Other");
    program.Start();
    std::vector<std::string> pages;
    for (const std::string page : {"index.html", "NorvoEditDat.html", "Other.html"}) {
        program.Files().Write("Help/" + page, "");
        program.Choose("HelpContents");
        pages.push_back(program.Files().Path() + "\\Help\\" + page);
    }
    EXPECT_EQ(program.Script().Targets(), pages);
}

TEST(About, ShowsTheVersionRecordAndLinksToTheMaker) {
    ScriptedDesktop desktop;
    Runtime runtime(desktop, {"", "", "Product", "Description", "Comments", "Copyright", 1, 5, 7}, "");
    frmAbout about(runtime);
    about.Show();
    about.Show(); // There is one box only.
    ASSERT_EQ(desktop.Shown().size(), 1U);
    const Form &box = *desktop.Shown().back();
    std::string text = box.Caption();
    for (const char *name : {"lblTitle", "lblVersion", "lblComments", "lblCopyright"}) {
        text += "|" + dynamic_cast<const Label &>(box.Controls(name)).Caption();
    }
    EXPECT_EQ(text, "About Description|Product|1.05.0007|Comments|Copyright");
    dynamic_cast<const Label &>(box.Controls("lblCopyright")).Click.Raise();
    EXPECT_EQ(desktop.Targets(), std::vector<std::string>{NORVO_HOME_PAGE});
    box.UserPressesEscape(); // It asks nothing here.
    EXPECT_TRUE(desktop.Shown().empty());
}
