#include "ui/clsListViewRpt.h"

#include "platform/Form.h"
#include "platform/ListView.h"
#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace {

class ListReport : public testing::Test {
protected:
    ListReport() {
        myList.Width(8640);
        myRpt.LV(myList);
    }

    void Fill(int pRows) {
        myRpt.Headers({"A", "B", "C"});
        for (std::int16_t i = 0; i < pRows; ++i) {
            myRpt.AddRow();
            for (std::int16_t c = 0; c < 3; ++c) {
                myRpt.Data(i, c, std::string(1, static_cast<char>('a' + c)) + std::to_string(i));
            }
        }
    }

    /// The first letters of the rows' places at the beginning, the selected one in brackets; each row has to
    /// have kept its cells.
    std::string Order() const {
        std::string text;
        for (std::int16_t i = 0; i < myRpt.Rows(); ++i) {
            const std::string number = myRpt.Data(i, 0).substr(1);
            EXPECT_EQ(myRpt.Data(i, 1) + myRpt.Data(i, 2), "b" + number + "c" + number);
            text += i == myRpt.SelectedRow() ? "[" + number + "]" : number;
        }
        return text;
    }

    ScriptedDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
    ListView &myList = myRuntime.NewForm("form").Add<ListView>("list");
    clsListViewRpt myRpt;
};

} // namespace

TEST_F(ListReport, SharesTheWidthAmongItsColumns) {
    myRpt.Resize(); // without columns: nothing
    myRpt.Headers({"A", "B"});
    myRpt.ColumnWidths({25, 60});
    myRpt.ColumnWidth(1, 50);
    myRpt.ColumnWidth(2, 99); // no such column
    myRpt.Resize();
    EXPECT_EQ(myList.ColumnHeaders(1).Width, 2160);
    EXPECT_EQ(myList.ColumnHeaders(2).Width, 4310);
    const std::vector<std::pair<std::size_t, float>> shares{{1, 100}, {2, 50}, {4, 25}, {6, 17},
                                                            {8, 12},  {40, 2}, {200, 0}};
    for (const auto &[columns, share] : shares) {
        auto &list = myRuntime.NewForm("another").Add<ListView>("list");
        list.Width(1000);
        clsListViewRpt rpt;
        rpt.LV(list);
        rpt.Headers(std::vector<std::string>(columns));
        rpt.Resize();
        const float first = list.ColumnHeaders(1).Width;
        EXPECT_EQ(columns == 1 ? first + 10 : first, share * 10) << columns;
        EXPECT_EQ(list.ColumnHeaders(static_cast<int>(columns)).Width, share * 10 - 10) << columns;
    }
}

TEST_F(ListReport, MovesTheSelectedRow) {
    Fill(4);
    myRpt.MoveUp(); // no row selected: nothing
    myRpt.MoveDown();
    EXPECT_EQ(Order(), "0123");
    myRpt.SelectedRow(1);
    myRpt.MoveUp();
    EXPECT_EQ(Order(), "[1]023");
    myRpt.MoveUp();
    EXPECT_EQ(Order(), "[1]023");
    myRpt.MoveDown();
    myRpt.MoveDown();
    EXPECT_EQ(Order(), "02[1]3");
    myRpt.MoveDown();
    EXPECT_EQ(Order(), "023[1]");
    myRpt.MoveDown();
    EXPECT_EQ(Order(), "023[1]");
    for (std::int16_t row = 0; row < 3; ++row) { // up and down restores the order
        const std::string before = (myRpt.SelectedRow(row), Order());
        myRpt.MoveDown();
        EXPECT_NE(Order(), before);
        myRpt.MoveUp();
        EXPECT_EQ(Order(), before);
    }
}

TEST_F(ListReport, SelectsAndDeletesRows) {
    myRpt.Headers({"A", "B", "C", "D"});
    myRpt.SelectedRow(0);
    EXPECT_EQ(myRpt.SelectedRow(), -1);
    myRpt.AddRow();
    myRpt.Data(0, 4, "x"); // no such cells
    myRpt.Data(1, 0, "x");
    EXPECT_EQ(myList.ListItems(1).SubItemCount(), 3);
    EXPECT_EQ(myRpt.Data(0, 0) + myRpt.Data(0, 3) + myRpt.Data(0, 4) + myRpt.Data(1, 0), "");
    myRpt.AddRow();
    myRpt.SelectedRow(9);
    EXPECT_EQ(myRpt.SelectedRow(), 1);
    myRpt.SelectedRow(-1);
    myRpt.Del();
    EXPECT_EQ(myRpt.Rows(), 2);
    myRpt.SelectedRow(0);
    myRpt.Del();
    EXPECT_EQ(myRpt.Rows(), 1);
    myRpt.Clear();
    EXPECT_EQ(myRpt.Rows(), 0);
    EXPECT_EQ(myRpt.Cols(), 4);
    EXPECT_EQ(myRpt.SelectedRow(), -1);
}
