#include "forms/ListView.h"

#include "system/Memory.h"
#include "text/Text.h"

#include <algorithm>
#include <tuple>
#include <utility>

void ListItem::Texts(TextRow pTexts) {
    myTexts = std::move(pTexts);
    myOwner.RowsChanged();
}

void ListItem::SetText(int pColumn, std::string_view pText) {
    myTexts.Set(pColumn, pText);
    myOwner.RowsChanged();
}

int ListItem::Index() const {
    const int selected = myOwner.SelectedIndex();
    if (selected > 0 && &myOwner.ListItems(selected) == this) {
        return selected;
    }
    int index = 1;
    while (&myOwner.ListItems(index) != this) {
        ++index;
    }
    return index;
}

void ListItem::SubItems(int pIndex, std::string_view pText) {
    if (pIndex >= 1) {
        SetText(pIndex + 1, pText);
    }
}

ListItem &ListItems::Add(TextRow pTexts) {
    myItems.push_back(std::make_unique<ListItem>(myOwner, std::move(pTexts)));
    myOwner.ItemAdded();
    return *myItems.back();
}

void ListItems::Remove(int pIndex) {
    myItems.erase(myItems.begin() + (pIndex - 1));
    myOwner.ItemRemoved(pIndex);
}

void ListItems::Clear() {
    myItems.clear();
    myOwner.mySelected = 0;
    myOwner.myCurrent = 0;
    myOwner.RowsChanged();
}

void ColumnHeaders::Add(std::string pText) {
    myHeaders.push_back({std::move(pText), 0});
    myOwner.ColumnsChanged();
}

void ColumnHeaders::Width(int pIndex, float pTwips) {
    myHeaders[static_cast<std::size_t>(pIndex - 1)].Width = pTwips;
    myOwner.ColumnsChanged();
}

ListView::ListView(Form &pParent, std::string pName)
    : SizedControl(pParent, std::move(pName)), ListItems(*this), ColumnHeaders(*this) {}

ListItem *ListView::SelectedItem() const {
    return mySelected == 0 ? nullptr : &ListItems(mySelected);
}

void ListView::SelectedIndex(int pIndex) {
    mySelected = pIndex;
    if (mySelected != 0) {
        myCurrent = mySelected;
    }
    Touch();
}

void ListView::EnsureVisible(int pIndex) {
    myWantedInView = pIndex;
    ++myViewRevision;
    Touch();
}

int ListView::FindItem(std::string_view pStart, int pFrom) const {
    const int count = ListItems.Count();
    for (int step = 0; step < count; ++step) {
        const int row = (pFrom - 1 + step) % count + 1;
        if (BeginsWithIgnoringCase(ListItems(row).Text(), pStart)) {
            return row;
        }
    }
    return 0;
}

void ListView::Pick(int pIndex) {
    const std::pair before(mySelected, myCurrent);
    mySelected = myCurrent = pIndex;
    Touch();
    RunOrUndo([&] { ItemClick.Raise(ListItems(pIndex)); }, [&] { std::tie(mySelected, myCurrent) = before; });
}

void ListView::RowsChanged() {
    ++myRowsRevision;
    Touch();
}

void ListView::ColumnsChanged() {
    ++myColumnsRevision;
    Touch();
}

void ListView::ItemAdded() {
    myCurrent = std::max(myCurrent, 1);
    RowsChanged();
}

void ListView::ItemRemoved(int pIndex) {
    // The item after the removed one moves into its row, so only rows further down change. If the removed
    // item was the last one, the new last item follows it.
    const auto follow = [&](int pRow) { return std::min(pRow - (pIndex < pRow ? 1 : 0), ListItems.Count()); };
    mySelected = follow(mySelected);
    myCurrent = follow(myCurrent);
    RowsChanged();
}
