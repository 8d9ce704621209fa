#include "platform/Controls.h"
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

TEST(About, ShowsTheVersionRecordInOneBox) {
    Program program;
    program.Start().Choose("HelpAbout").Choose("HelpAbout");
    ASSERT_EQ(program.Script().Shown().size(), 2U);
    const Form &about = *program.Script().Shown().back();
    EXPECT_EQ(about.Caption(), "About Norvo Data File Editor");
    EXPECT_EQ(dynamic_cast<const Label &>(about.Controls("lblVersion")).Caption(), "1.00.0020");
    program.PressEscape(); // which asks nothing here
    EXPECT_EQ(program.Script().Shown().size(), 1U);
}
