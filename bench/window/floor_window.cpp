/// floor_window ROWS PERCENT[,PERCENT...]: a window of the main window's shape that does the least that the
/// toolkit can do. It has a label and a line edit for each column, with its width in percent, and under them
/// a table that makes its texts when it paints them. It loads, keeps and handles nothing, so whatever the
/// program takes beyond this is the program's own.
#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

#include <cmath>
#include <vector>

namespace {

// In pixels, as the main window is designed. Places are in the client area, below the menu bar.
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

    int rowCount(const QModelIndex & /*pParent*/ = {}) const override { return myRows; }
    int columnCount(const QModelIndex & /*pParent*/ = {}) const override { return myColumns; }

    QVariant data(const QModelIndex &pIndex, int pRole) const override {
        // A text as long as most cells.
        return pRole == Qt::DisplayRole ? QString::asprintf("r%05d cell%d", pIndex.row(), pIndex.column())
                                        : QVariant();
    }

    QVariant headerData(int pSection, Qt::Orientation /*pOrientation*/, int pRole) const override {
        return pRole == Qt::DisplayRole ? QString::asprintf("Column %d", pSection + 1) : QVariant();
    }

private:
    int myRows;
    int myColumns;
};

void Prepare(QTableView &pTable) {
    constexpr int roomAround = 4;
    pTable.setSelectionBehavior(QAbstractItemView::SelectRows);
    pTable.setSelectionMode(QAbstractItemView::SingleSelection);
    pTable.setEditTriggers(QAbstractItemView::NoEditTriggers);
    pTable.setTabKeyNavigation(false);
    pTable.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    pTable.setWordWrap(false);
    QHeaderView &rows = *pTable.verticalHeader();
    rows.hide();
    rows.setMinimumSectionSize(1);
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(pTable.fontMetrics().height() + roomAround);
    QHeaderView &headings = *pTable.horizontalHeader();
    headings.setSectionsClickable(false);
    headings.setHighlightSections(false);
    headings.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    headings.setMinimumSectionSize(0);
}

class FloorWindow : public QWidget {
public:
    FloorWindow(int pRows, const QStringList &pPercents)
        : myPercents(pPercents), myModel(pRows, static_cast<int>(pPercents.size())) {
        constexpr int fontPixels = 11;
        QFont font(QStringLiteral("Liberation Sans"));
        font.setPixelSize(fontPixels);
        myClient.setFont(font);
        Prepare(myTable);
        myTable.setModel(&myModel);
        for (int column = 0; column < myModel.columnCount(); ++column) {
            myLabels.push_back(new QLabel(QString::asprintf(" Column %d", column + 1), &myClient));
            myLabels.back()->setTextFormat(Qt::PlainText);
            myLabels.back()->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            myEdits.push_back(new QLineEdit(&myClient));
        }
        myTable.setFocus();
        resize(clientWidth, clientHeight + menuHeight);
    }

protected:
    void resizeEvent(QResizeEvent * /*pEvent*/) override {
        const QSize growth(width() - clientWidth, height() - clientHeight - menuHeight);
        myClient.setGeometry(0, menuHeight, width(), height() - menuHeight);
        const QRect list(listPlace.topLeft(), listPlace.size() + growth);
        const int frame = myTable.frameWidth();
        myTable.setGeometry(list.adjusted(-frame, -frame, frame, frame));
        double left = 0;
        for (int column = 0; column < myModel.columnCount(); ++column) {
            const double right = left + list.width() * myPercents[column].toInt() / 100.0;
            const auto place = [&](const QRect &pDesign, double pEnd) {
                const int from = static_cast<int>(std::lround(pDesign.left() + left));
                const int to = static_cast<int>(std::lround(pDesign.left() + pEnd));
                return QRect(from, pDesign.top(), to - from, pDesign.height());
            };
            myLabels[column]->setGeometry(place(labelPlace, right - gap));
            myEdits[column]->setGeometry(place(editPlace, right - gap));
            myTable.setColumnWidth(column, place(listPlace, right).width());
            left = right;
        }
    }

private:
    QStringList myPercents;
    Numbers myModel;
    QWidget myClient{this};
    QTableView myTable{&myClient};
    QList<QLabel *> myLabels;
    QList<QLineEdit *> myEdits;
};

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    FloorWindow window(words[1].toInt(), words[2].split(QLatin1Char(',')));
    window.show();
    return QApplication::exec();
}
