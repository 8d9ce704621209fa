/// floor_window table|tree ROWS PERCENT[,PERCENT...]: the least that the toolkit takes for a window of the
/// main window's shape. A label and a line edit for each column, with its width in percent, and under them a
/// view whose texts are made when they are painted: nothing is loaded, kept or handled, so that what the
/// program takes beyond this is the program's own.
#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTreeView>

#include <cmath>
#include <cstdio>
#include <vector>

namespace {

// In pixels, as the main window is designed, which is the client area below its menu bar.
constexpr int menuHeight = 19;
constexpr int clientWidth = 592;
constexpr int clientHeight = 245;
constexpr QRect labelPlace(8, 8, 576, 16);
constexpr QRect editPlace(8, 24, 576, 21);
constexpr QRect listPlace(8, 48, 576, 160);
constexpr double gap = 2.0 / 3; // between neighbouring fields

class Numbers : public QAbstractTableModel {
public:
    Numbers(int pRows, int pColumns) : myRows(pRows), myColumns(pColumns) {}

    int rowCount(const QModelIndex &pParent = {}) const override { return pParent.isValid() ? 0 : myRows; }

    int columnCount(const QModelIndex &pParent = {}) const override {
        return pParent.isValid() ? 0 : myColumns;
    }

    /// About as long as the cells of the standard tables are in the mean.
    QVariant data(const QModelIndex &pIndex, int pRole) const override {
        if (pRole != Qt::DisplayRole) {
            return {};
        }
        return QString::asprintf("r%05d cell%d", pIndex.row(), pIndex.column());
    }

    QVariant headerData(int pSection, Qt::Orientation /*pOrientation*/, int pRole) const override {
        return pRole == Qt::DisplayRole ? QString::asprintf("Column %d", pSection + 1) : QVariant();
    }

private:
    int myRows;
    int myColumns;
};

QFont WindowFont() {
    constexpr int fontPixels = 11;
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(fontPixels);
    return font;
}

void PrepareView(QAbstractItemView &pView) {
    pView.setSelectionBehavior(QAbstractItemView::SelectRows);
    pView.setSelectionMode(QAbstractItemView::SingleSelection);
    pView.setEditTriggers(QAbstractItemView::NoEditTriggers);
    pView.setTabKeyNavigation(false);
    pView.setTextElideMode(Qt::ElideRight);
    pView.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    pView.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
}

void PrepareHeadings(QHeaderView &pHeadings) {
    pHeadings.setSectionsClickable(false);
    pHeadings.setSectionsMovable(false);
    pHeadings.setHighlightSections(false);
    pHeadings.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pHeadings.setMinimumSectionSize(0);
    pHeadings.setStretchLastSection(false);
}

QHeaderView *PrepareTable(QTableView &pTable) {
    constexpr int roomAround = 4;
    pTable.setWordWrap(false);
    pTable.setCornerButtonEnabled(false);
    QHeaderView &rows = *pTable.verticalHeader();
    rows.hide();
    rows.setMinimumSectionSize(1);
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(pTable.fontMetrics().height() + roomAround);
    return pTable.horizontalHeader();
}

QHeaderView *PrepareTree(QTreeView &pTree) {
    pTree.setUniformRowHeights(true);
    pTree.setRootIsDecorated(false);
    pTree.setItemsExpandable(false);
    pTree.setAllColumnsShowFocus(true);
    return pTree.header();
}

class FloorWindow : public QWidget {
public:
    FloorWindow(bool pIsTree, int pRows, std::vector<int> pPercents)
        : myPercents(std::move(pPercents)), myModel(pRows, static_cast<int>(myPercents.size())),
          myClient(this) {
        myClient.setFont(WindowFont());
        MakeView(pIsTree);
        QWidget *before = myView;
        for (int column = 0; column < myModel.columnCount(); ++column) {
            auto *label = new QLabel(QString::asprintf(" Column %d", column + 1), &myClient);
            label->setTextFormat(Qt::PlainText);
            label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            myLabels.push_back(label);
            myEdits.push_back(new QLineEdit(&myClient));
            setTabOrder(before, myEdits.back());
            before = myEdits.back();
        }
        myView->setFocus();
        resize(clientWidth, clientHeight + menuHeight);
    }

protected:
    void resizeEvent(QResizeEvent * /*pEvent*/) override {
        const QSize growth(width() - clientWidth, height() - clientHeight - menuHeight);
        myClient.setGeometry(0, menuHeight, width(), height() - menuHeight);
        const QRect list(listPlace.topLeft(), listPlace.size() + growth);
        const int frame = myView->frameWidth();
        myView->setGeometry(list.adjusted(-frame, -frame, frame, frame));
        double left = 0;
        for (std::size_t column = 0; column < myPercents.size(); ++column) {
            const double right = left + list.width() * myPercents[column] / 100.0;
            PlaceColumn(column, left, right);
            left = right;
        }
    }

private:
    void MakeView(bool pIsTree) {
        QTreeView *tree = pIsTree ? new QTreeView(&myClient) : nullptr;
        QTableView *table = pIsTree ? nullptr : new QTableView(&myClient);
        myView = pIsTree ? static_cast<QAbstractItemView *>(tree) : table;
        myHeadings = pIsTree ? PrepareTree(*tree) : PrepareTable(*table);
        PrepareView(*myView);
        PrepareHeadings(*myHeadings);
        myView->setModel(&myModel);
    }

    void PlaceColumn(std::size_t pColumn, double pLeft, double pRight) {
        const auto place = [&](const QRect &pDesign, double pEnd) {
            const int left = static_cast<int>(std::lround(pDesign.left() + pLeft));
            const int right = static_cast<int>(std::lround(pDesign.left() + pEnd));
            return QRect(left, pDesign.top(), right - left, pDesign.height());
        };
        myLabels[pColumn]->setGeometry(place(labelPlace, pRight - gap));
        myEdits[pColumn]->setGeometry(place(editPlace, pRight - gap));
        myHeadings->resizeSection(static_cast<int>(pColumn), place(listPlace, pRight).width());
    }

    std::vector<int> myPercents;
    Numbers myModel;
    QWidget myClient;
    QAbstractItemView *myView = nullptr;
    QHeaderView *myHeadings = nullptr;
    std::vector<QLabel *> myLabels;
    std::vector<QLineEdit *> myEdits;
};

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    constexpr int wordCount = 4;
    if (words.size() != wordCount) {
        std::fputs("Usage: floor_window table|tree ROWS PERCENT[,PERCENT...]\n", stderr);
        return 1;
    }
    std::vector<int> percents;
    for (const QString &percent : words[3].split(QLatin1Char(','))) {
        percents.push_back(percent.toInt());
    }
    FloorWindow window(words[1] == QStringLiteral("tree"), words[2].toInt(), std::move(percents));
    window.show();
    return QApplication::exec();
}
