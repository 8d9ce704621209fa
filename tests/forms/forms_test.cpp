// What the runtime keeps and tells, for a desktop and for the program.
#include "forms/CommonDialog.h"
#include "tests/support/Program.h"

using Forms = OnAForm;

TEST_F(Forms, FindListItemsFromAPlaceOnAndRoundToIt) {
    auto &list = myForm.Add<ListView>("list");
    EXPECT_EQ(list.FindItem("", 1), 0);
    for (const char *const text : {"Ann", "bob", "Alan", "BO"}) {
        list.ListItems.Add({}).Text(text);
        EXPECT_EQ(list.CurrentIndex(), 1);
    }
    // clang-format off
    for (const auto &[start, from, found] : {std::tuple("b", 1, 2), {"B", 3, 4}, {"bob", 3, 2}, {"a", 4, 1}, {"al", 4, 3},
             {"an", 1, 1}, {"ann ", 1, 0}, {"", 3, 3}}) {
        // clang-format on
        EXPECT_EQ(list.FindItem(start, from), found) << start << from;
    }
    list.SelectedIndex(2); // The arrow keys go on from here, and from the same row when rows go.
    list.ListItems.Remove(1);
    EXPECT_EQ(RowsOf(list), ">bob Alan BO");
    EXPECT_EQ(list.ListItems(1).Index() * 100 + list.ListItems(3).Index() * 10 + list.CurrentIndex(), 131);
}

TEST_F(Forms, StartAFileDialogWhereItsFileIs) {
    const TemporaryFolder files;
    const std::string top = files.Path() + "/";
    files.Write("sub/x.dat", "");
    auto &dialog = myForm.Add<CommonDialog>("dialog");
    dialog.Filter(" All ");
    // The name to offer, the folder to start in, the user's choice; what the dialog is asked for.
    // clang-format off
    const std::tuple<std::string, std::string, std::optional<std::string>, std::string> cases[] = {
        {"", "", {}, "||All|"}, {"", top, "elsewhere/y.dat", top + "||A|*.a"},
        {"", "", top + "sub/y.dat", "||A|*.a"}, // The folder chosen last isn't there.
        {"", top + "none", {}, top + "sub/||A|*.a"}, {"bare.dat", top, {}, "./|bare.dat|A|*.a"}, // in the current folder
        {top + "x.dat", "", {}, top + "|x.dat|A|*.a"}, {top + "none/x.dat", "", {}, top + "|" + top + "none/x.dat|A|*.a"},
        {files.Path() + "\\sub\\z.dat", top, {}, top + "sub/|z.dat|A|*.a"}};
    // clang-format on
    for (const auto &[name, folder, chosen, asked] : cases) {
        dialog.FileName(name);
        dialog.InitDir(folder);
        myDesktop.ExpectSave(chosen);
        dialog.ShowSave();
        EXPECT_EQ(dialog.FileName(), chosen.value_or(""));
        EXPECT_EQ(myDesktop.asked, asked) << name << folder;
        dialog.Filter(" A | *.a ");
    }
}
