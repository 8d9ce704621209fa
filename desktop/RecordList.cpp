#include "desktop/RecordList.h"

#include "desktop/CellDelegate.h"
#include "desktop/Look.h"
#include "desktop/WholeText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

RecordList::RecordList(Acts &pActs, ListView &pList, QWidget &pParent)
    : QTableView(&pParent), ControlView(pActs, pList), myList(pList), myModel(pList) {
    setModel(&myModel);
    Prepare();
    // Later: Qt is still changing its selection.
    connect(
        selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { SelectedByOthers(); },
        Qt::QueuedConnection);
}

RecordList::~RecordList() {
    setModel(nullptr); // Qt's part of the list is destroyed after the model.
}

void RecordList::Prepare() {
    setItemDelegate(new CellDelegate(myModel, *this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setAutoScroll(false);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerItem);

    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);

    QHeaderView &headings = *horizontalHeader();
    headings.setSectionsClickable(false);
    headings.setHighlightSections(false);
    headings.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    headings.setTextElideMode(Qt::ElideRight);
    headings.setMinimumSectionSize(0);
    headings.viewport()->installEventFilter(this);
    FitRowHeight();
}

void RecordList::FitRowHeight() {
    constexpr int roomAround = 4;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + roomAround);
}

void RecordList::changeEvent(QEvent *pEvent) {
    QTableView::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange) {
        FitRowHeight();
    }
}

QRect RecordList::PlaceOf() const {
    // The column widths add up to the control's whole width, so the frame lies outside it.
    const int frame = frameWidth();
    return ControlView::PlaceOf().adjusted(-frame, -frame, frame, frame);
}

void RecordList::Show() {
    if (myShownRows != myList.RowsRevision() || myModel.columnCount() != myList.ColumnHeaders.Count()) {
        ShowRows();
    } else {
        ShowSelection();
    }
    if (myShownColumns != myList.ColumnsRevision()) {
        ShowColumns();
    }
    if (myShownView != myList.ViewRevision()) {
        myShownView = myList.ViewRevision();
        ScrollTo(myList.WantedInView());
    }
}

void RecordList::ShowColumns() {
    myShownColumns = myList.ColumnsRevision();
    // Rounds the edges rather than the widths, so that many narrow columns keep their sum.
    double edge = 0;
    int shownEdge = 0;
    for (int column = 1; column <= myList.ColumnHeaders.Count(); ++column) {
        edge += std::max(0.0, static_cast<double>(myList.ColumnHeaders(column).Width));
        const int width = Pixels(edge) - shownEdge;
        shownEdge += width;
        setColumnWidth(column - 1, width);
    }
}

void RecordList::ShowRows() {
    myShownRows = myList.RowsRevision();
    const int top = verticalScrollBar()->value();
    const int left = horizontalScrollBar()->value();
    const int before = myShownSelected;
    if (myModel.columnCount() != myList.ColumnHeaders.Count()) {
        myShownColumns = 0;
    }
    myModel.Reset();
    updateGeometries(); // Gives the scroll bars their range before they get their values.
    verticalScrollBar()->setValue(top);
    horizontalScrollBar()->setValue(left);
    ShowSelection();
    const bool hasMoved = before != 0 && myShownSelected != 0 && before != myShownSelected;
    if (hasMoved) {
        ScrollTo(myShownSelected);
    }
}

void RecordList::ShowSelection() {
    QItemSelectionModel &selection = *selectionModel();
    if (myShownSelected != myList.SelectedIndex()) {
        selection.clearCurrentIndex(); // A screen reader hears of the row again that was current already.
    }
    myShownSelected = myList.SelectedIndex();
    ShowCurrent();
    if (myShownSelected == 0) {
        selection.clearSelection();
    } else {
        selection.select(myModel.index(myShownSelected - 1, 0),
                         QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
}

void RecordList::ShowCurrent() {
    // To assistive technology Qt's current cell has the focus, whether or not the list has it.
    const int row = hasFocus() ? myList.CurrentIndex() : 0;
    selectionModel()->setCurrentIndex(myModel.index(row - 1, 0), QItemSelectionModel::NoUpdate);
}

void RecordList::SelectedByOthers() {
    const QModelIndexList rows = selectionModel()->selectedRows();
    const int row = rows.isEmpty() ? 0 : rows.first().row() + 1;
    if (row == myList.SelectedIndex()) {
        return;
    }
    if (row > 0 && row <= myList.ListItems.Count() && MayTakeFocus()) {
        myActs.Run([&] { myList.Pick(row); });
    }
    ShowSelection(); // If nothing was picked, this restores the runtime's selection.
}

void RecordList::ScrollTo(int pRow) {
    updateGeometries(); // A scroll bar that has come leaves the last row less room.
    const int left = horizontalScrollBar()->value();
    scrollTo(myModel.index(pRow - 1, 0), EnsureVisible);
    horizontalScrollBar()->setValue(left);
}

int RecordList::PageOfRows() const {
    return std::max(viewport()->height() / verticalHeader()->defaultSectionSize() - 1, 1);
}

std::optional<int> RecordList::RowByKey(int pKey) const {
    const int current = myList.CurrentIndex();
    const bool isSelected = myList.SelectedItem() != nullptr;
    switch (pKey) {
    case Qt::Key_Up:
        return isSelected ? current - 1 : current;
    case Qt::Key_Down:
        return isSelected ? current + 1 : current;
    case Qt::Key_PageUp:
        return current - PageOfRows();
    case Qt::Key_PageDown:
        return current + PageOfRows();
    case Qt::Key_Home:
        return 1;
    case Qt::Key_End:
        return myList.ListItems.Count();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return current;
    default:
        return std::nullopt;
    }
}

void RecordList::PickByKey(int pRow) {
    if (myList.ListItems.Count() > 0) {
        const int row = std::clamp(pRow, 1, myList.ListItems.Count());
        myActs.Run([&] { myList.Pick(row); });
        ScrollTo(row);
    }
}

bool RecordList::TakeFocusOfDisabled() {
    setFocus(Qt::OtherFocusReason);
    myAwaitsUser = true;
    return true;
}

void RecordList::focusInEvent(QFocusEvent *pEvent) {
    QWidget::focusInEvent(pEvent); // QTableView's would choose a current row of its own.
    viewport()->update();
    const auto reason = pEvent->reason();
    const bool isBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                        reason == Qt::MenuBarFocusReason;
    myAwaitsUser = myAwaitsUser && isBack;
    // Later: Qt still has to tell assistive technology of the list, and the cell comes after it.
    QTimer::singleShot(0, this, [this] { ShowCurrent(); });
}

void RecordList::focusOutEvent(QFocusEvent *pEvent) {
    QTableView::focusOutEvent(pEvent);
    ShowCurrent();
}

void RecordList::keyPressEvent(QKeyEvent *pEvent) {
    const int key = pEvent->key();
    const bool decides = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (decides && myAwaitsUser) {
        return; // It was meant for the button. A pick would overwrite the fields.
    }
    if (const std::optional<int> row = RowByKey(key)) {
        PickByKey(*row);
    } else if (key == Qt::Key_Left) {
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
    } else if (key == Qt::Key_Right) {
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
    } else {
        pEvent->setAccepted(PickByText(*pEvent));
    }
    myAwaitsUser = myAwaitsUser && !pEvent->isAccepted();
}

bool RecordList::PickByText(const QKeyEvent &pEvent) {
    const auto held = pEvent.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Windows reports AltGr as both.
    const bool isTyped = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
    if (!isTyped || pEvent.text().isEmpty() || !pEvent.text().at(0).isPrint()) {
        return false;
    }
    const int row = mySearch.Typed(pEvent.text(), myList);
    if (row > 0) {
        PickByKey(row);
    }
    return true;
}

void RecordList::paintEvent(QPaintEvent *pEvent) {
    QTableView::paintEvent(pEvent);
    const int row = myList.CurrentIndex() - 1;
    if (!hasFocus() || row < 0) {
        return;
    }
    // Around the current row, selected or not: the first cell alone may be too narrow to show a mark.
    const bool isSelected = selectionModel()->isRowSelected(row);
    const int width = horizontalHeader()->length();
    const QRect place(-horizontalScrollBar()->value(), rowViewportPosition(row), width, rowHeight(row));
    QPainter painter(viewport());
    painter.setPen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Highlight));
    painter.drawRect(place.adjusted(0, 0, -2, -2)); // within the grid
}

bool RecordList::eventFilter(QObject *pWatched, QEvent *pEvent) {
    const QHeaderView &headings = *horizontalHeader();
    if (pWatched != headings.viewport() || pEvent->type() != QEvent::ToolTip) {
        return QTableView::eventFilter(pWatched, pEvent);
    }
    const auto &help = static_cast<const QHelpEvent &>(*pEvent);
    const int section = headings.logicalIndexAt(help.pos());
    const bool isCut = section >= 0 && headings.sectionSizeHint(section) > headings.sectionSize(section);
    ShowWholeText(help, *headings.viewport(),
                  isCut ? std::string_view(myList.ColumnHeaders(section + 1).Text) : std::string_view());
    return true;
}

void RecordList::mousePressEvent(QMouseEvent *pEvent) {
    myAwaitsUser = false;
    const QModelIndex cell = indexAt(pEvent->position().toPoint());
    if (pEvent->button() == Qt::LeftButton && cell.isValid()) {
        myActs.Run([&] { myList.Pick(cell.row() + 1); });
    }
}

void RecordList::mouseDoubleClickEvent(QMouseEvent *pEvent) {
    mousePressEvent(pEvent); // Two quick clicks may be on two rows.
}

void RecordList::mouseMoveEvent(QMouseEvent * /*pEvent*/) {
    // A drag picks nothing. Qt would move the selection.
}

void RecordList::mouseReleaseEvent(QMouseEvent * /*pEvent*/) {}
