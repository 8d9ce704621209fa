#pragma once
/// The view of a ListView: a table in which the user picks rows. The runtime decides which row is selected;
/// Qt's selection only shows it.
#include "desktop/ControlView.h"
#include "desktop/RecordModel.h"
#include "desktop/TypedSearch.h"

#include <QTableView>

#include <optional>

class RecordList : public QTableView, public ControlView {
public:
    RecordList(Acts &pActs, ListView &pList, QWidget &pParent);
    ~RecordList() override;
    QWidget &Widget() override { return *this; }
    bool TakeFocusOfDisabled() override;

protected:
    Qt::FocusPolicy FocusPolicy() const override { return Qt::StrongFocus; }
    QRect PlaceOf() const override;
    void Show() override;
    void focusInEvent(QFocusEvent *pEvent) override;
    void focusOutEvent(QFocusEvent *pEvent) override;
    void keyPressEvent(QKeyEvent *pEvent) override;
    void mousePressEvent(QMouseEvent *pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent *pEvent) override;
    void mouseMoveEvent(QMouseEvent *pEvent) override;
    void mouseReleaseEvent(QMouseEvent *pEvent) override;
    void changeEvent(QEvent *pEvent) override;
    void paintEvent(QPaintEvent *pEvent) override;
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;

private:
    void Prepare();
    void FitRowHeight();
    void ShowColumns();
    void ShowRows();
    void ShowSelection();
    void ShowCurrent();
    /// Picks the row that Qt shows as selected if the runtime has another one: assistive technology selects
    /// so.
    void SelectedByOthers();
    void ScrollTo(int pRow);
    // Rows count from 1, as in the ListView.
    void PickByKey(int pRow);
    bool PickByText(const QKeyEvent &pEvent);
    /// The row that the key leads to, perhaps outside the list; none if it isn't such a key.
    std::optional<int> RowByKey(int pKey) const;
    int PageOfRows() const;

    ListView &myList;
    RecordModel myModel;
    TypedSearch mySearch;
    bool myAwaitsUser = false; ///< has the focus of a disabled button, and the user has done nothing here yet
    int myShownRows = 0;
    int myShownColumns = 0;
    int myShownSelected = 0;
    int myShownView = 0;
};
