#pragma once
/// Draws a cell of the list as the style would, but lays its text out once, where the style does three times,
/// and not at all where none of it can be seen: of a wide table many columns are narrow.
#include <QAbstractItemDelegate>

class RecordModel;

class CellDelegate : public QAbstractItemDelegate {
public:
    CellDelegate(const RecordModel &pModel, QObject &pParent)
        : QAbstractItemDelegate(&pParent), myModel(pModel) {}

    void paint(QPainter *pPainter, const QStyleOptionViewItem &pOption,
               const QModelIndex &pIndex) const override;
    QSize sizeHint(const QStyleOptionViewItem &pOption, const QModelIndex &pIndex) const override;

private:
    const RecordModel &myModel;
};
