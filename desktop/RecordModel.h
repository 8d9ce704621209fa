#pragma once
/// The rows of a ListView as a Qt model. It reads them in the list and keeps no copy.
#include "forms/ListView.h"

#include <QAbstractTableModel>

class RecordModel : public QAbstractTableModel {
public:
    explicit RecordModel(const ListView &pList) : myList(pList) {}

    /// Tells Qt that rows, cells and columns have changed. Until then Qt sees the old counts, and cells that
    /// are gone read empty. Drops selection, current row and scroll position.
    void Reset();

    /// The text of a cell; empty if it isn't there.
    std::string_view Cell(const QModelIndex &pIndex) const;

    int rowCount(const QModelIndex &pParent = {}) const override {
        return pParent.isValid() ? 0 : myToldRows;
    }
    int columnCount(const QModelIndex &pParent = {}) const override {
        return pParent.isValid() ? 0 : myToldColumns;
    }
    QVariant data(const QModelIndex &pIndex, int pRole = Qt::DisplayRole) const override;
    QVariant headerData(int pSection, Qt::Orientation pOrientation, int pRole) const override;

private:
    const ListView &myList;
    int myToldRows = 0;
    int myToldColumns = 0;
};
