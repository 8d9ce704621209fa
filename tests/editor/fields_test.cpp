// Building the fields from the specification.
#include "platform/ComboBox.h"
#include "platform/ListView.h"
#include "tests/support/Program.h"

#include <sstream>

TEST(Fields, StandSideBySideAsWideAsTheirColumns) {
    Program program;
    program.Files().Write("NorvoEditDat.dat", CrLf("2,4\n\"\",12.5,0,-\n\" B \",0,1,cities.txt\n"));
    std::ostringstream built;
    for (const auto &c : program.Start().Main().Controls()) {
        const auto *const sized = dynamic_cast<const SizedControl *>(c.get());
        if (sized != nullptr && (c->Name().starts_with("lbl") || c->Name().starts_with("cbo"))) {
            built << c->Name() << " " << c->TypeName() << " " << sized->Left() << " " << sized->Top() << " "
                  << sized->Width() << " " << sized->Height() << " " << c->Tag() << "\n";
        }
    }
    EXPECT_EQ(built.str(), R"(lbl20 Label 120 120 1070 240 X=0/100 W=13/100
cbo20 TextBox 120 360 1070 315 X=0/100 W=13/100
lbl21 Label 1200 120 -10 240 X=12/100 W=0/100
cbo21 ComboBox 1200 360 -10 315 X=12/100 W=0/100
)");
    const auto &headers = dynamic_cast<ListView &>(program.Main().Controls("ListView1")).ColumnHeaders;
    EXPECT_FLOAT_EQ(headers(1).Width, 8640 * 0.12F);
    EXPECT_EQ(headers(2).Text, "B");
}

TEST(Fields, LookForTheirListInTheCurrentFolderFirst) {
    const std::filesystem::path before = std::filesystem::current_path();
    const TemporaryFolder current;
    std::filesystem::current_path(current.Path());
    current.Write("cities.txt", "Oslo, N \r\n\r\n Rom\"e\nX\rOslo, N ");
    current.Write("kinds.txt", "");
    Program program;
    program.Start();
    std::filesystem::current_path(before);
    const auto &box = dynamic_cast<const ComboBox &>(program.Main().Controls("cbo21"));
    ASSERT_EQ(box.ListCount(), 4);
    EXPECT_EQ(box.List(0) + "/" + box.List(1) + "/" + box.List(2), "Oslo, N // Rom\"e\nX");
    EXPECT_EQ(box.AccessibleDescription(), "one of the listed values");
    const auto &empty = dynamic_cast<const ComboBox &>(program.Main().Controls("cbo22"));
    EXPECT_EQ(empty.AccessibleDescription(), "") << "an empty list takes any text";
}
