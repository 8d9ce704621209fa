#include "desktop/RecordModel.h"

#include "desktop/TextCodec.h"

void RecordModel::Reset() {
    beginResetModel();
    myToldRows = myList.ListItems.Count();
    myToldColumns = myList.ColumnHeaders.Count();
    endResetModel();
}

std::string_view RecordModel::Cell(const QModelIndex &pIndex) const {
    const bool isThere = pIndex.isValid() && pIndex.row() < myList.ListItems.Count();
    return isThere ? myList.ListItems(pIndex.row() + 1).Texts()(pIndex.column() + 1) : std::string_view();
}

QVariant RecordModel::data(const QModelIndex &pIndex, int pRole) const {
    switch (pRole) {
    case Qt::DisplayRole:
        return ToQtLine(Cell(pIndex), mostShown);
    case Qt::AccessibleTextRole:
        return ToQt(Cell(pIndex));
    default:
        return {};
    }
}

QVariant RecordModel::headerData(int pSection, Qt::Orientation pOrientation, int pRole) const {
    const bool isThere =
        pOrientation == Qt::Horizontal && pSection >= 0 && pSection < myList.ColumnHeaders.Count();
    if (!isThere || (pRole != Qt::DisplayRole && pRole != Qt::AccessibleTextRole)) {
        return {};
    }
    return ToQtLine(myList.ColumnHeaders(pSection + 1).Text, mostShown);
}
