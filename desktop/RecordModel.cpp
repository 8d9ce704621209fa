#include "desktop/RecordModel.h"

#include "desktop/TextCodec.h"

void RecordModel::Reset() {
    beginResetModel();
    myToldRows = myList.ListItems.Count();
    myToldColumns = myList.ColumnHeaders.Count();
    endResetModel();
}

int RecordModel::rowCount(const QModelIndex &pParent) const {
    return pParent.isValid() ? 0 : myToldRows;
}

int RecordModel::columnCount(const QModelIndex &pParent) const {
    return pParent.isValid() ? 0 : myToldColumns;
}

QVariant RecordModel::data(const QModelIndex &pIndex, int pRole) const {
    const bool isThere = pIndex.isValid() && pIndex.row() < myList.ListItems.Count();
    if (!isThere || (pRole != Qt::DisplayRole && pRole != Qt::AccessibleTextRole)) {
        return {};
    }
    const ListItem &item = myList.ListItems(pIndex.row() + 1);
    const std::string_view cell = pIndex.column() == 0 ? item.Text() : item.SubItems(pIndex.column());
    return pRole == Qt::DisplayRole ? ToQtLine(cell, mostShown) : ToQt(cell);
}

QVariant RecordModel::headerData(int pSection, Qt::Orientation pOrientation, int pRole) const {
    const bool isThere =
        pOrientation == Qt::Horizontal && pSection >= 0 && pSection < myList.ColumnHeaders.Count();
    if (!isThere || (pRole != Qt::DisplayRole && pRole != Qt::AccessibleTextRole)) {
        return {};
    }
    return ToQtLine(myList.ColumnHeaders(pSection + 1).Text, mostShown);
}
