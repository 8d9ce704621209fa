#include "desktop/CellDelegate.h"

#include "desktop/RecordModel.h"
#include "desktop/TextCodec.h"

#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTextLayout>
#include <QWidget>

namespace {

/// Draws pText on one line in pPlace, cut with an ellipsis where it doesn't fit, and left out where
/// not even that does.
void DrawText(QPainter &pPainter, const QRect &pPlace, const QString &pText) {
    const QFontMetrics metrics = pPainter.fontMetrics();
    const QPoint place(pPlace.left(), pPlace.top() + (pPlace.height() - metrics.height()) / 2);
    QTextLayout layout(pText, pPainter.font());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(QWIDGETSIZE_MAX);
    layout.endLayout();
    if (line.naturalTextWidth() <= pPlace.width()) {
        layout.draw(&pPainter, place);
        return;
    }
    const QString ellipsis(QChar(0x2026));
    const double room = pPlace.width() - metrics.horizontalAdvance(ellipsis);
    if (room >= 0) {
        const int fitting = line.xToCursor(room, QTextLine::CursorOnCharacter);
        pPainter.drawText(place + QPoint(0, metrics.ascent()), pText.left(fitting) + ellipsis);
    }
}

QPalette::ColorGroup GroupOf(QStyle::State pState) {
    if (!pState.testFlag(QStyle::State_Enabled)) {
        return QPalette::Disabled;
    }
    return pState.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

/// The mark of the keyboard's place.
void DrawFocus(QPainter &pPainter, const QStyleOptionViewItem &pOption, QPalette::ColorGroup pGroup) {
    QStyleOptionFocusRect mark;
    mark.QStyleOption::operator=(pOption);
    mark.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    mark.backgroundColor = pOption.palette.color(pGroup, QPalette::Base);
    pOption.widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &mark, &pPainter, pOption.widget);
}

} // namespace

void CellDelegate::paint(QPainter *pPainter, const QStyleOptionViewItem &pOption,
                         const QModelIndex &pIndex) const {
    const auto group = GroupOf(pOption.state);
    const bool isSelected = pOption.state.testFlag(QStyle::State_Selected);
    if (isSelected) {
        pPainter->fillRect(pOption.rect, pOption.palette.brush(group, QPalette::Highlight));
    }
    const QWidget *view = pOption.widget;
    const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &pOption, view) + 1;
    const QRect place = pOption.rect.adjusted(margin, 0, -margin, 0);
    if (place.width() >= pOption.fontMetrics.averageCharWidth()) {
        pPainter->setFont(pOption.font);
        const auto role = isSelected ? QPalette::HighlightedText : QPalette::Text;
        pPainter->setPen(pOption.palette.color(group, role));
        DrawText(*pPainter, place, ToQtLine(myModel.Cell(pIndex), mostShown));
    }
    if (pOption.state.testFlag(QStyle::State_HasFocus) && !isSelected) {
        DrawFocus(*pPainter, pOption, group); // Else the selection shows it.
    }
}
