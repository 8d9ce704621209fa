#pragma once
/// The rows of a ListView for Qt's table, read where they are.
#include "platform/ListView.h"

#include <QAbstractTableModel>

class RecordModel : public QAbstractTableModel {
public:
    explicit RecordModel(const ListView &pList) : myList(pList) {}

    /// Tells Qt that rows, cells and columns have changed. Until then it is told the old numbers, and what it
    /// asks for beyond the new ones is empty. Selection, current row and scroll position don't survive this.
    void Reset();

    /// The text of a cell; empty when it isn't there.
    std::string_view Cell(const QModelIndex &pIndex) const;

    int rowCount(const QModelIndex &pParent = {}) const override;
    int columnCount(const QModelIndex &pParent = {}) const override;
    QVariant data(const QModelIndex &pIndex, int pRole = Qt::DisplayRole) const override;
    QVariant headerData(int pSection, Qt::Orientation pOrientation, int pRole) const override;

private:
    const ListView &myList;
    int myToldRows = 0;
    int myToldColumns = 0;
};
