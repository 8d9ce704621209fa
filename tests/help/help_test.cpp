#include "platform/Controls.h"
#include "platform/VersionRecord.h"
#include "tests/support/Program.h"

#include <gtest/gtest.h>

TEST(Help, OpensThePageOfTheProgramsOwnNameFirst) {
    Program program;
    program.Start("/t x"); // A run whose program file bears the product's name: both look for one page.
    const std::string folder = program.Files().Path() + "\\Help\\";
    program.Choose("Contents");
    program.Files().Write("Help/index.html", "");
    program.Choose("Contents");
    program.Files().Write("Help/NorvoEditDat.html", "");
    program.Choose("Contents");
    EXPECT_EQ(program.Script().Targets(),
              (std::vector<std::string>{folder + "index.html", folder + "index.html",
                                        folder + "NorvoEditDat.html"}));

    Program renamed("Other");
    const std::string itsFolder = renamed.Files().Path() + "\\Help\\";
    renamed.Files().Write("Help/NorvoEditDat.html", "");
    renamed.Start().Choose("Contents");
    renamed.Files().Write("Help/Other.html", "");
    renamed.Choose("Contents");
    EXPECT_EQ(renamed.Script().Targets(),
              (std::vector<std::string>{itsFolder + "NorvoEditDat.html", itsFolder + "Other.html"}));
}

TEST(About, ShowsTheVersionRecordInOneBox) {
    Program program;
    program.Start().Choose("About").Choose("About");
    ASSERT_EQ(program.Script().Shown().size(), 2U);
    const Form &about = *program.Script().Shown().back();
    std::string text = about.Caption() + "\n";
    for (const auto &control : about.Controls()) {
        if (const auto *label = dynamic_cast<const Label *>(control.get())) {
            text += label->Name() + " " + label->Caption() + "\n";
        }
    }
    EXPECT_EQ(text, "About Norvo Data File Editor\n"
                    "lblComments Easily edit data files.\n"
                    "lblCopyright " +
                        std::string(versionRecord::legalCopyright) +
                        "\n"
                        "lblTitle NorvoEditDat\n"
                        "lblVersion 1.00.0020\n"
                        "Label1 Product:\n"
                        "Label2 Version:\n");
    const auto &link = dynamic_cast<const Label &>(about.Controls("lblCopyright"));
    link.Click.Raise();
    EXPECT_EQ(program.Script().Targets(), std::vector<std::string>{link.Tag()});
    EXPECT_TRUE(link.Tag().starts_with("https://"));

    program.Press("OK");
    EXPECT_EQ(program.Script().Shown().size(), 1U);
    program.Choose("About").PressEscape(); // again, and gone by Esc, which asks nothing here
    EXPECT_EQ(program.Script().ClosedCount(), 2);
    EXPECT_EQ(program.ExitStatus(), std::nullopt);
}
