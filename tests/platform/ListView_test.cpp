#include "platform/ListView.h"

#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

class ListViewTest : public testing::Test {
protected:
    /// A list of the items a, b, c and so on, with item pSelected (from 1) selected; 0: none.
    void Fill(int pCount, int pSelected) {
        list.ListItems.Clear();
        for (int i = 0; i < pCount; ++i) {
            list.ListItems.Add(std::string(1, static_cast<char>('a' + i)));
        }
        list.SelectedItem(pSelected == 0 ? nullptr : &list.ListItems(pSelected));
    }

    /// The items in a row, the selected one in brackets.
    std::string Rows() const {
        std::string rows;
        for (int i = 1; i <= list.ListItems.Count(); ++i) {
            const ListItem &item = list.ListItems(i);
            EXPECT_EQ(item.Index(), i);
            rows += &item == list.SelectedItem() ? "[" + item.Text() + "]" : item.Text();
        }
        return rows;
    }

    ScriptedDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    ListView &list = runtime.NewForm("frmMain").Add<ListView>("ListView1");
};

TEST_F(ListViewTest, AfterARemovalTheItemThatTookThePlaceIsSelected) {
    const std::tuple<int, int, int, const char *> rows[] = {
        // count, selected, removed
        {4, 2, 2, "a[c]d"}, {4, 4, 4, "ab[c]"}, {1, 1, 1, ""},   {4, 3, 1, "b[c]d"},
        {4, 2, 3, "a[b]d"}, {4, 4, 3, "ab[d]"}, {3, 0, 1, "bc"}, {3, 0, 3, "ab"}};
    for (const auto &[count, selected, removed, wanted] : rows) {
        Fill(count, selected);
        list.ListItems.Remove(removed);
        EXPECT_EQ(Rows(), wanted) << selected << " selected, " << removed << " removed";
    }
}

TEST_F(ListViewTest, AnInsertionMovesTheSelectionWithItsItem) {
    const std::tuple<int, int, const char *> rows[] = {// selected, place of the new one
                                                       {2, 1, "+a[b]c"},
                                                       {2, 2, "a+[b]c"},
                                                       {2, 3, "a[b]+c"},
                                                       {3, 4, "ab[c]+"},
                                                       {0, 1, "+abc"}};
    for (const auto &[selected, place, wanted] : rows) {
        Fill(3, selected);
        EXPECT_EQ(list.ListItems.Add(place, "+").Index(), place);
        EXPECT_EQ(Rows(), wanted) << selected << " selected, added at " << place;
    }
}

// The way in which rows are moved: a copy at the new place, then the old one goes.
TEST_F(ListViewTest, ACopiedAndRemovedRowCanBeFollowed) {
    Fill(3, 2);
    list.ListItems.Add(1, "b");
    list.ListItems.Remove(list.SelectedItem()->Index());
    EXPECT_EQ(Rows(), "ba[c]");
    list.ListItems(1).Select();
    EXPECT_EQ(Rows(), "[b]ac");
    list.ListItems.Add(3, "b");
    list.ListItems.Remove(list.SelectedItem()->Index());
    EXPECT_EQ(Rows(), "[a]bc");
}

TEST_F(ListViewTest, TheKeysStartFromTheCurrentItemAlsoWithoutASelection) {
    EXPECT_EQ(list.CurrentIndex(), 0);
    Fill(4, 0);
    EXPECT_EQ(list.CurrentIndex(), 1) << "the first item that came, though others followed";
    list.Pick(3);
    list.SelectedItem(nullptr);
    EXPECT_EQ(list.SelectedItem(), nullptr);
    EXPECT_EQ(list.CurrentIndex(), 3);
    list.ListItems.Remove(4);
    list.ListItems.Remove(3);
    EXPECT_EQ(list.CurrentIndex(), 2) << "behind the last item there is none";
    list.Pick(2);
    list.ListItems.Clear();
    EXPECT_EQ(list.CurrentIndex() + list.SelectedIndex(), 0);
}

TEST_F(ListViewTest, ARowHasTheSubItemsThatItWasGiven) {
    ListItem &item = list.ListItems.Add("own");
    EXPECT_EQ(item.SubItems(1), "");
    item.SubItems(2, "second");
    item.SubItems(1, "first");
    item.SubItems(0, "nowhere");
    EXPECT_EQ(item.SubItemCount(), 2);
    EXPECT_EQ(item.Text() + "|" + item.SubItems(0) + "|" + item.SubItems(1) + "|" + item.SubItems(2),
              "own||first|second");
}
