#include "desktop/CellDelegate.h"

#include "desktop/RecordModel.h"
#include "desktop/TextCodec.h"
#include "desktop/WholeText.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTextLayout>

#include <algorithm>

namespace {

int MarginOf(const QStyleOptionViewItem &pOption) {
    return pOption.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &pOption, pOption.widget) + 1;
}

/// Whether pText runs from left to right, letter by letter, as all scripts before Hebrew in Unicode do.
bool IsPlain(const QString &pText) {
    constexpr char16_t hebrew = 0x0590;
    return std::all_of(pText.begin(), pText.end(), [](QChar pUnit) { return pUnit < hebrew; });
}

/// pText cut to pWidth, with an ellipsis; empty if not even that fits. pLine is the layout of pText.
QString Cut(const QString &pText, const QTextLine &pLine, const QFontMetrics &pMetrics, int pWidth) {
    if (!IsPlain(pText)) {
        return pMetrics.elidedText(pText, Qt::ElideRight, pWidth);
    }
    const QString ellipsis(QChar(0x2026));
    const double room = pWidth - pMetrics.horizontalAdvance(ellipsis);
    return room < 0 ? QString() : pText.left(pLine.xToCursor(room, QTextLine::CursorOnCharacter)) + ellipsis;
}

/// Draws pText on one line in pPlace.
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
    } else {
        pPainter.drawText(place + QPoint(0, metrics.ascent()), Cut(pText, line, metrics, pPlace.width()));
    }
}

QPalette::ColorGroup GroupOf(QStyle::State pState) {
    const auto enabled = pState.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    return pState.testFlag(QStyle::State_Enabled) ? enabled : QPalette::Disabled;
}

} // namespace

QSize CellDelegate::sizeHint(const QStyleOptionViewItem &pOption, const QModelIndex &pIndex) const {
    const QString text = ToQtLine(myModel.Cell(pIndex), mostShown);
    return {pOption.fontMetrics.horizontalAdvance(text) + 2 * MarginOf(pOption),
            pOption.fontMetrics.height()};
}

bool CellDelegate::helpEvent(QHelpEvent *pEvent, QAbstractItemView *pView,
                             const QStyleOptionViewItem &pOption, const QModelIndex &pIndex) {
    if (pEvent->type() != QEvent::ToolTip) {
        return QAbstractItemDelegate::helpEvent(pEvent, pView, pOption, pIndex);
    }
    const bool isCut = pIndex.isValid() && sizeHint(pOption, pIndex).width() > pOption.rect.width();
    ShowWholeText(*pEvent, *pView->viewport(), isCut ? myModel.Cell(pIndex) : std::string_view());
    return true;
}

void CellDelegate::paint(QPainter *pPainter, const QStyleOptionViewItem &pOption,
                         const QModelIndex &pIndex) const {
    const auto group = GroupOf(pOption.state);
    const bool isSelected = pOption.state.testFlag(QStyle::State_Selected);
    if (isSelected) {
        pPainter->fillRect(pOption.rect, pOption.palette.brush(group, QPalette::Highlight));
    }
    const int margin = MarginOf(pOption);
    const QRect place = pOption.rect.adjusted(margin, 0, -margin, 0);
    if (place.width() >= pOption.fontMetrics.averageCharWidth()) {
        pPainter->setFont(pOption.font);
        const auto role = isSelected ? QPalette::HighlightedText : QPalette::Text;
        pPainter->setPen(pOption.palette.color(group, role));
        DrawText(*pPainter, place, ToQtLine(myModel.Cell(pIndex), mostShown));
    }
}
