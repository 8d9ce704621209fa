#include "ui/clsListViewRpt.h"

#include "tests/support/Program.h"

using ListReport = OnAForm;
using Texts = std::vector<std::string>;

TEST_F(ListReport, GivesEachColumnItsShareOfTheWidth) {
    clsListViewRpt report;
    report.LV(myForm.Add<ListView>("list"));
    const auto widths = [&](double pWidth) {
        report.LV().Width(pWidth);
        report.Resize();
        return ColumnsOf(report.LV());
    };
    EXPECT_EQ(widths(8640), "");
    report.Headers({"A", "B", "C", "D", "E", "F"});
    EXPECT_EQ(widths(1000), "A 170 B 170 C 170 D 170 E 170 F 160 ");
    report.ColumnWidths({25, 20, 50, 1, 0, 9});
    for (const auto &[x, width] : {std::pair<std::int16_t, std::int16_t>(-1, 1), {6, 1}, {1, 25}}) {
        report.ColumnWidth(x, width);
    }
    EXPECT_EQ(widths(10140), "A 2535 B 2535 C 5070 D 101.4 E 0 F 902.6 ");
    EXPECT_EQ(report.Headers(), (Texts{"A", "B", "C", "D", "E", "F"}));
}

TEST_F(ListReport, IsAGridOfTextWithOneSelectedRow) {
    clsListViewRpt my;
    my.LV(myForm.Add<ListView>("list"));
    const auto rows = [&my] { return RowsOf(my.LV()); };
    my.Headers({"A", "B"});
    // clang-format off
    EXPECT_EQ((my.SelectedRow(0), my.Del(), my.MoveUp(), my.MoveDown(), rows()), "");
    EXPECT_EQ((my.AddRow(), my.AddRow(), my.AddRow(TextRow(Texts{"c", "d", "beyond"})), rows()), " | | c|d|beyond");
    EXPECT_EQ((my.Data(0, 0, "a"), my.Data(1, 1, "b"), my.Row(2, TextRow(Texts{"c", "d"})), rows()), " a| |b c|d");
    EXPECT_EQ((my.Data(-1, 0, "x"), my.Data(3, 0, "x"), my.Data(0, 2, "x"), my.Row(3, my.Row(0)), rows()), " a| |b c|d");
    EXPECT_EQ(my.Data(0, 0) + my.Data(1, 1) + my.Data(-1, 0) + my.Data(3, 0) + my.Data(0, 2), "ab");
    EXPECT_EQ((my.MoveUp(), my.MoveDown(), my.Del(), rows()), " a| |b c|d");
    EXPECT_EQ((my.SelectedRow(0), my.MoveUp(), rows()), ">a| |b c|d");
    EXPECT_EQ((my.MoveDown(), rows()), " |b>a| c|d");
    EXPECT_EQ((my.SelectedRow(9), my.MoveDown(), rows()), " |b a|>c|d");
    EXPECT_EQ((my.MoveUp(), rows()), " |b>c|d a|");
    EXPECT_EQ((my.Del(), rows()), " |b>a|");
    EXPECT_EQ((my.SelectedRow(-1), my.Del(), rows()), " |b a|");
    EXPECT_EQ((my.SelectedRow(1), my.Clear(), my.AddRow(), rows()), " |");
    // clang-format on
    EXPECT_EQ(my.SelectedRow() + my.Rows() + my.Cols(), -1 + 1 + 2);
}
