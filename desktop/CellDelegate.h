#pragma once
/// Draws a cell of the list as the style would, but faster: it lays the text out once instead of three times,
/// and not at all in a column too narrow to show any of it. A cell that is cut shows its whole text as a tool
/// tip.
#include <QAbstractItemDelegate>

class RecordModel;

class CellDelegate : public QAbstractItemDelegate {
public:
    CellDelegate(const RecordModel &pModel, QObject &pParent)
        : QAbstractItemDelegate(&pParent), myModel(pModel) {}

    void paint(QPainter *pPainter, const QStyleOptionViewItem &pOption,
               const QModelIndex &pIndex) const override;
    bool helpEvent(QHelpEvent *pEvent, QAbstractItemView *pView, const QStyleOptionViewItem &pOption,
                   const QModelIndex &pIndex) override;
    QSize sizeHint(const QStyleOptionViewItem &pOption, const QModelIndex &pIndex) const override;

private:
    const RecordModel &myModel;
};
