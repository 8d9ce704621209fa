#include "platform/CommonDialog.h"

#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

class CommonDialogTest : public testing::Test {
protected:
    /// Shows the Save dialog and gives "folder|name" as it was asked for. pChosen: what the user does.
    std::string Offered(const std::optional<std::string> &pChosen = {}) {
        desktop.ExpectSave(pChosen);
        dialog.ShowSave();
        return desktop.Dialogs().back().folder + "|" + desktop.Dialogs().back().name;
    }

    TemporaryFolder folder;
    std::string inFolder = folder.Path() + "/";
    ScriptedDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    CommonDialog &dialog = runtime.NewForm("frmMain").Add<CommonDialog>("cDlg");
};

TEST_F(CommonDialogTest, TheFilterIsSplitAtItsBar) {
    dialog.Filter(" Data (*.dat) | *.dat ");
    desktop.ExpectOpen("x.dat");
    dialog.ShowOpen();
    EXPECT_EQ(desktop.Dialogs()[0].description, "Data (*.dat)");
    EXPECT_EQ(desktop.Dialogs()[0].pattern, "*.dat");
    EXPECT_EQ(dialog.FileName(), "x.dat");
    dialog.Filter("Data");
    Offered();
    EXPECT_EQ(desktop.Dialogs()[1].description + "|" + desktop.Dialogs()[1].pattern, "Data|");
}

TEST_F(CommonDialogTest, ADismissedDialogLeavesNoName) {
    dialog.FileName("preset.dat");
    EXPECT_EQ(Offered(), "|preset.dat");
    EXPECT_EQ(dialog.FileName(), "");
}

TEST_F(CommonDialogTest, TheFolderIsThePresetFilesElseTheInitialElseTheLastOne) {
    folder.Write("sub/x.dat", "");
    dialog.InitDir(inFolder);
    dialog.FileName(inFolder + "sub\\x.dat");
    EXPECT_EQ(Offered(), inFolder + "sub/|x.dat");
    dialog.FileName("bare.dat");
    EXPECT_EQ(Offered(), inFolder + "|bare.dat");
    dialog.InitDir("c:\\nowhere");
    EXPECT_EQ(Offered(inFolder + "new.dat"), inFolder + "sub/|");
    dialog.FileName("");
    EXPECT_EQ(Offered(), inFolder + "|");
    dialog.FileName(inFolder + "none/x.dat");
    EXPECT_EQ(Offered(), "|x.dat");
}
