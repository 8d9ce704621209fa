#pragma once
/// The list control in report view: items, each of a text and sub items, under column headings. At most one
/// item is selected. Rows and columns count from 1. A desktop reads the rows here and keeps no copy.
#include "forms/Control.h"
#include "forms/Event.h"
#include "text/TextRow.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class ListView;

/// One row of a ListView: Text is column 0, sub item i is column i.
class ListItem {
public:
    ListItem(ListView &pOwner, TextRow pTexts) : myOwner(pOwner), myTexts(std::move(pTexts)) {}

    /// Valid until the item changes.
    std::string_view Text() const { return myTexts(1); }
    void Text(std::string_view pText) { SetText(1, pText); }

    /// Its row, from 1.
    int Index() const;

    int SubItemCount() const { return std::max(myTexts.Count() - 1, 0); }
    /// The text of sub item pIndex, from 1; empty if there is none. Valid until the item changes.
    std::string_view SubItems(int pIndex) const {
        return pIndex < 1 ? std::string_view() : myTexts(pIndex + 1);
    }
    /// Sets the text of sub item pIndex, from 1. Adds it, and those before it, if they are missing.
    void SubItems(int pIndex, std::string_view pText);

    /// The text and the sub items, as texts 1 and up.
    const TextRow &Texts() const { return myTexts; }
    void Texts(TextRow pTexts);

private:
    void SetText(int pColumn, std::string_view pText);

    ListView &myOwner;
    TextRow myTexts;
};

/// The items of a ListView in their order.
class ListItems {
public:
    explicit ListItems(ListView &pOwner) : myOwner(pOwner) {}

    int Count() const { return static_cast<int>(myItems.size()); }
    /// Item pIndex, from 1 to Count().
    ListItem &operator()(int pIndex) const { return *myItems[static_cast<std::size_t>(pIndex - 1)]; }

    /// Appends an item, or throws and appends none.
    ListItem &Add(TextRow pTexts);
    /// Removes item pIndex. If it was selected, the item after it becomes selected, or the new last item if
    /// there is none after it.
    void Remove(int pIndex);
    void Clear();

private:
    ListView &myOwner;
    std::vector<std::unique_ptr<ListItem>> myItems;
};

struct ColumnHeader {
    std::string Text;
    float Width = 0; ///< twips; a negative width shows as 0
};

/// The columns of a ListView, from 1.
class ColumnHeaders {
public:
    explicit ColumnHeaders(ListView &pOwner) : myOwner(pOwner) {}

    int Count() const { return static_cast<int>(myHeaders.size()); }
    const ColumnHeader &operator()(int pIndex) const {
        return myHeaders[static_cast<std::size_t>(pIndex - 1)];
    }
    void Add(std::string pText);
    void Width(int pIndex, float pTwips);

private:
    ListView &myOwner;
    std::vector<ColumnHeader> myHeaders;
};

class ListView : public SizedControl {
public:
    enum class ViewStyle { Icon = 0, Report = 3 };

    ListView(Form &pParent, std::string pName);
    const char *TypeName() const override { return "ListView"; }

    Property<ViewStyle> View{*this};

    ::ListItems ListItems;
    ::ColumnHeaders ColumnHeaders;

    /// The selected item; null if none is.
    ListItem *SelectedItem() const;
    /// Row of the selected item, from 1; 0 if none is selected. Setting 0 clears the selection.
    int SelectedIndex() const { return mySelected; }
    void SelectedIndex(int pIndex);

    /// Row of the item that the arrow keys start from, from 1; 0 in an empty list. It stays when the
    /// selection is cleared.
    int CurrentIndex() const { return myCurrent; }

    /// Row of the first item whose text begins with pStart, case ignored; 0 if there is none. The search
    /// goes from pFrom to the end of the list, then from its start to the item before pFrom.
    int FindItem(std::string_view pStart, int pFrom) const;

    /// The user picks item pIndex, from 1 to Count, by mouse or key. Also raises ItemClick if the item is
    /// selected already. Picks nothing if the handler runs out of memory.
    void Pick(int pIndex);

    /// RowsRevision goes up when rows or cells change, ColumnsRevision when columns do. A change of the
    /// selection counts only in Revision.
    int RowsRevision() const { return myRowsRevision; }
    int ColumnsRevision() const { return myColumnsRevision; }

    /// Asks the desktop to scroll item pIndex into view.
    void EnsureVisible(int pIndex);
    /// The item last asked for, and a count that goes up each time.
    int WantedInView() const { return myWantedInView; }
    int ViewRevision() const { return myViewRevision; }

    Event<ListItem &> ItemClick;

private:
    friend class ::ListItem;
    friend class ::ListItems;
    friend class ::ColumnHeaders;

    void RowsChanged();
    void ColumnsChanged();
    void ItemAdded();
    void ItemRemoved(int pIndex);

    int mySelected = 0;
    int myCurrent = 0;
    int myRowsRevision = 1;
    int myColumnsRevision = 1;
    int myWantedInView = 0;
    int myViewRevision = 0;
};
