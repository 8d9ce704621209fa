// Building the fields from the specification.
#include "platform/ComboBox.h"
#include "platform/ListView.h"
#include "tests/support/Program.h"

#include <sstream>

TEST(Fields, TakeTheirNumbersEachInItsOwnWay) {
    Program program;
    program.Files().Write("NorvoEditDat.dat", CrLf(R"(4,4
"","12.5","99999","-"
"B","12.5","x","--"
" C ","1e1","-1",""
"","0","2.5","-"
)"));
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
lbl21 Label 1200 120 1070 240 X=12/100 W=13/100
cbo21 ComboBox 1200 360 1070 315 X=12/100 W=13/100
lbl22 Label 2280 120 854 240 X=24/100 W=10/100
cbo22 ComboBox 2280 360 854 315 X=24/100 W=10/100
lbl23 Label 3144 120 -10 240 X=34/100 W=0/100
cbo23 TextBox 3144 360 -10 315 X=34/100 W=0/100
)");
    const auto &headers = dynamic_cast<ListView &>(program.Main().Controls("ListView1")).ColumnHeaders;
    EXPECT_FLOAT_EQ(headers(1).Width, 8640 * 0.12F);
    EXPECT_EQ(headers(3).Text, "C");
}

TEST(Fields, LookForTheirListInTheCurrentFolderFirst) {
    const std::filesystem::path before = std::filesystem::current_path();
    const TemporaryFolder current;
    std::filesystem::current_path(current.Path());
    current.Write("cities.txt", "Oslo, N \r\n\r\n Rom\"e\nX\rOslo, N ");
    Program program;
    program.Start();
    std::filesystem::current_path(before);
    const auto &box = dynamic_cast<const ComboBox &>(program.Main().Controls("cbo21"));
    ASSERT_EQ(box.ListCount(), 4);
    EXPECT_EQ(box.List(0) + "/" + box.List(1) + "/" + box.List(2), "Oslo, N // Rom\"e\nX");
}
