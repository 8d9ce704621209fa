#include "ui/clsListViewRpt.h"

#include "forms/ListView.h"
#include "text/Numbers.h"

#include <algorithm>
#include <utility>

namespace {

constexpr double lastColumnGapTwips = 10;

/// The control counts in int, this class in 16 bits.
std::int16_t Count16(int pCount) {
    return static_cast<std::int16_t>(std::min(pCount, 32767));
}

} // namespace

void clsListViewRpt::LV(ListView &pLV) {
    myLV = &pLV;
    myLV->View(ListView::ViewStyle::Report);
}

void clsListViewRpt::Headers(const std::vector<std::string> &pHeaders) {
    if (pHeaders.empty()) {
        return;
    }
    const std::int16_t share = Integer16(100.0 / static_cast<double>(pHeaders.size())).value_or(0);
    myWidths.assign(pHeaders.size(), share);
    for (const std::string &title : pHeaders) {
        myLV->ColumnHeaders.Add(title);
    }
}

std::vector<std::string> clsListViewRpt::Headers() const {
    std::vector<std::string> titles;
    for (int index = 1; index <= myLV->ColumnHeaders.Count(); ++index) {
        titles.push_back(myLV->ColumnHeaders(index).Text);
    }
    return titles;
}

void clsListViewRpt::ColumnWidth(std::int16_t x, std::int16_t pWidth) {
    if (x >= 0 && std::cmp_less(x, myWidths.size())) {
        myWidths[static_cast<std::size_t>(x)] = pWidth;
    }
}

std::int16_t clsListViewRpt::Rows() const {
    return Count16(myLV->ListItems.Count());
}

std::int16_t clsListViewRpt::Cols() const {
    return Count16(myLV->ColumnHeaders.Count());
}

std::int16_t clsListViewRpt::SelectedRow() const {
    return Count16(myLV->SelectedIndex() - 1);
}

void clsListViewRpt::SelectedRow(std::int16_t pRow) {
    const int row = std::min<int>(pRow, myLV->ListItems.Count() - 1);
    myLV->SelectedIndex(std::max(row, -1) + 1);
}

ListItem *clsListViewRpt::Item(std::int16_t pRow) const {
    return pRow >= 0 && pRow < myLV->ListItems.Count() ? &myLV->ListItems(pRow + 1) : nullptr;
}

std::string clsListViewRpt::Data(std::int16_t pRow, std::int16_t pCol) const {
    const ListItem *item = Item(pRow);
    if (item == nullptr) {
        return {};
    }
    return std::string(pCol == 0 ? item->Text() : item->SubItems(pCol));
}

void clsListViewRpt::Data(std::int16_t pRow, std::int16_t pCol, const std::string &pText) {
    ListItem *item = Item(pRow);
    if (item == nullptr) {
        return;
    }
    if (pCol == 0) {
        item->Text(pText);
    } else if (pCol <= item->SubItemCount()) {
        item->SubItems(pCol, pText);
    }
}

/// Swaps the selected row with the one at place pIndex, and selects that place.
void clsListViewRpt::MoveSelectedTo(int pIndex) {
    ListItem &selected = *myLV->SelectedItem();
    ListItem &other = myLV->ListItems(pIndex);
    const TextRow moved = selected.Texts();
    selected.Texts(other.Texts());
    other.Texts(moved);
    myLV->SelectedIndex(pIndex);
}

void clsListViewRpt::MoveUp() {
    const int index = myLV->SelectedIndex();
    if (index > 1) {
        MoveSelectedTo(index - 1);
    }
}

void clsListViewRpt::MoveDown() {
    const int index = myLV->SelectedIndex();
    if (index > 0 && index < myLV->ListItems.Count()) {
        MoveSelectedTo(index + 1);
    }
}

void clsListViewRpt::Clear() {
    myLV->ListItems.Clear();
}

void clsListViewRpt::AddRow(TextRow pCells) {
    if (pCells.Count() < Cols()) {
        pCells.Set(Cols(), "");
    }
    myLV->ListItems.Add(std::move(pCells));
}

TextRow clsListViewRpt::Row(std::int16_t pRow) const {
    const ListItem *item = Item(pRow);
    return item == nullptr ? TextRow() : item->Texts();
}

void clsListViewRpt::Row(std::int16_t pRow, TextRow pCells) {
    ListItem *item = Item(pRow);
    if (item != nullptr) {
        item->Texts(std::move(pCells));
    }
}

void clsListViewRpt::Del() {
    if (myLV->SelectedIndex() > 0) {
        myLV->ListItems.Remove(myLV->SelectedIndex());
    }
}

void clsListViewRpt::Resize() {
    const int cols = std::min<int>(Cols(), static_cast<int>(myWidths.size()));
    const double width = static_cast<float>(myLV->Width()); // The control gives it in single precision.
    double w = 0;
    for (int i = 0; i < cols; ++i) {
        w = width * (myWidths[static_cast<std::size_t>(i)] / 100.0);
        myLV->ColumnHeaders.Width(i + 1, static_cast<float>(w));
    }
    if (cols > 0) {
        myLV->ColumnHeaders.Width(cols, static_cast<float>(w - lastColumnGapTwips));
    }
}
