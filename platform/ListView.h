#pragma once
/// The list control in report view: items of a text and sub items under column headings, at most one of them
/// selected. Positions count from 1 and are ints. It holds the rows once; a desktop reads them where they
/// are.
#include "platform/Control.h"
#include "platform/Event.h"
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

    /// The text holds until the item is changed.
    std::string_view Text() const { return myTexts(1); }
    void Text(std::string_view pText) { SetText(1, pText); }

    /// Place in the list, from 1.
    int Index() const;

    int SubItemCount() const { return std::max(myTexts.Count() - 1, 0); }
    /// The text of sub item pIndex, from 1; empty where there is none. It holds until the item is changed.
    std::string_view SubItems(int pIndex) const {
        return pIndex < 1 ? std::string_view() : myTexts(pIndex + 1);
    }
    /// Sets the text of sub item pIndex, from 1, and makes it and those before it where they are missing.
    void SubItems(int pIndex, std::string_view pText);

    /// Text and sub items, the text at place 1.
    const TextRow &Texts() const { return myTexts; }
    void Texts(TextRow pTexts);

private:
    void SetText(int pPlace, std::string_view pText);

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

    /// A new item at the end.
    ListItem &Add(TextRow pTexts);
    /// Removes item pIndex. When it was the selected one, the item that takes its place is selected, or the
    /// new last one when it was the last.
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

    ViewStyle View() const { return myView; }
    void View(ViewStyle pView);

    ::ListItems ListItems;
    ::ColumnHeaders ColumnHeaders;

    /// The selected item, or nothing.
    ListItem *SelectedItem() const;
    /// Place of the selected item, from 1; 0 when there is none, and to clear the selection.
    int SelectedIndex() const { return mySelected; }
    void SelectedIndex(int pIndex);

    /// Place of the item that the keys start from, from 1; 0 in an empty list. It stays when the selection
    /// is cleared.
    int CurrentIndex() const { return myCurrent; }

    /// The user picks item pIndex (from 1 to Count), by mouse or key, also when it is selected already.
    void Pick(int pIndex);

    /// Go up when rows or cells, the selection, or the columns have changed.
    int RowsRevision() const { return myRowsRevision; }
    int ColumnsRevision() const { return myColumnsRevision; }

    Event<ListItem &> ItemClick;

private:
    friend class ::ListItem;
    friend class ::ListItems;
    friend class ::ColumnHeaders;

    void RowsChanged();
    void ColumnsChanged();
    void ItemAdded();
    void ItemRemoved(int pIndex);

    ViewStyle myView = ViewStyle::Icon;
    int mySelected = 0;
    int myCurrent = 0;
    int myRowsRevision = 1;
    int myColumnsRevision = 1;
};
