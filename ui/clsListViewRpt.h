#pragma once
/// A list control in report view as a grid of text. Rows and columns count from 0, at most one row is
/// selected, and column widths are shares of the control's width. The control holds the rows. A cell that
/// isn't there reads as empty and ignores writes.
#include "text/TextRow.h"

#include <cstdint>
#include <string>
#include <vector>

class ListItem;
class ListView;

class clsListViewRpt {
public:
    /// The control that all other members operate on. Setting it puts it in report view.
    void LV(ListView &pLV);
    ListView &LV() const { return *myLV; }

    /// Appends a column for each title, and gives all columns the same share of the width: 100 percent
    /// divided by the number of titles.
    void Headers(const std::vector<std::string> &pHeaders);
    std::vector<std::string> Headers() const;

    /// Replaces all shares, in percent.
    void ColumnWidths(const std::vector<std::int16_t> &pWidths) { myWidths = pWidths; }
    /// Share of column x (from 0), in percent of the control's width.
    void ColumnWidth(std::int16_t x, std::int16_t pWidth);

    std::int16_t Rows() const;
    std::int16_t Cols() const;

    /// The selected row; -1 when none is.
    std::int16_t SelectedRow() const;
    /// Selects row pRow; -1 clears the selection, a row past the end selects the last row.
    void SelectedRow(std::int16_t pRow);

    std::string Data(std::int16_t pRow, std::int16_t pCol) const;
    void Data(std::int16_t pRow, std::int16_t pCol, const std::string &pText);

    /// Moves the selected row one place, and keeps it selected. No effect if that would leave the list.
    void MoveUp();
    void MoveDown();

    /// Removes all rows. Columns and shares stay.
    void Clear();
    /// Appends a row, column c being text c + 1 of pCells. Missing texts are empty.
    void AddRow(TextRow pCells = {});
    /// All cells of row pRow at once, column c being text c + 1.
    TextRow Row(std::int16_t pRow) const;
    void Row(std::int16_t pRow, TextRow pCells);
    /// Removes the selected row, if there is one.
    void Del();

    /// Gives each column its share of the control's present width, and the last one 10 twips less.
    void Resize();

private:
    ListItem *Item(std::int16_t pRow) const;
    void MoveSelectedTo(int pIndex);

    ListView *myLV = nullptr;
    std::vector<std::int16_t> myWidths;
};
