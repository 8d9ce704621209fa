// Building the fields from the specification.
#include "platform/ComboBox.h"
#include "platform/ListView.h"
#include "tests/support/Program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace {

/// The labels and fields that were built, one a line.
std::string Built(const Program &pProgram) {
    std::ostringstream text;
    for (const auto &c : pProgram.Main().Controls()) {
        if (c->Name().starts_with("lbl") || c->Name().starts_with("cbo")) {
            text << c->Name() << " " << c->TypeName() << " " << c->Left() << " " << c->Top() << " "
                 << c->Width() << " " << c->Height() << " " << c->Tag() << "\n";
        }
    }
    return text.str();
}

std::string EntriesOf(const ComboBox &pBox) {
    std::string text;
    for (int i = 0; i < pBox.ListCount(); ++i) {
        text += "[" + pBox.List(i) + "]";
    }
    return text;
}

} // namespace

TEST(Fields, AreBuiltFromTheSpecification) {
    Program program;
    program.Start();
    EXPECT_EQ(Built(program), R"(lbl20 Label 120 120 4310 240 X=0/100 W=50/100
cbo20 TextBox 120 360 4310 315 X=0/100 W=50/100
lbl21 Label 4440 120 2582 240 X=50/100 W=30/100
cbo21 ComboBox 4440 360 2582 315 X=50/100 W=30/100
lbl22 Label 7032 120 1718 240 X=80/100 W=20/100
cbo22 ComboBox 7032 360 1718 315 X=80/100 W=20/100
)");
    EXPECT_EQ(program.Window(), "Norvo Data File Editor\nName[] City[] Kind[]\n"
                                "Add (Move Up) (Delete) (Move Down) (Save As) Cancel\n");
}

TEST(Fields, TakeTheirNumbersEachInItsOwnWay) {
    Program program;
    program.Files().Write("NorvoEditDat.dat", CrLf(R"(4,4
"","12.5","99999","-"
"B","12.5","x","--"
" C ","1e1","-1",""
"","0","2.5","-"
)"));
    program.Start();
    EXPECT_EQ(Built(program), R"(lbl20 Label 120 120 1070 240 X=0/100 W=13/100
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
    EXPECT_FLOAT_EQ(headers(3).Width, 864);
    EXPECT_FLOAT_EQ(headers(4).Width, -10);
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
    EXPECT_EQ(EntriesOf(program.Combo("City")), "[Oslo, N ][][ Rom\"e\nX][Oslo, N ]");
    EXPECT_EQ(EntriesOf(program.Combo("Kind")), "[Abacus][Apple][Banana]");
}

TEST(Fields, TakeAnyTextWithoutAList) {
    Program program;
    program.Files().Write("NorvoEditDat.dat", "2,4\r\nA,50,2,missing.txt\r\nB,50,0,-\r\n");
    program.Start().Type("A", "anything").Press("Add").Type("A", "").Press("Add");
    EXPECT_EQ(program.Rows(), "  anything|\n  |\n");
}
