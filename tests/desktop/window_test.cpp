// The list, the buttons and the window itself on the real desktop, and the boxes over them.
#include "desktop/FileDialog.h"
#include "desktop/TextCodec.h"
#include "tests/desktop/Bench.h"

#include <QAccessible>
#include <QLabel>
#include <QMessageBox>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>

namespace {

using Records = Bench;
using Window = Bench;
using Boxes = Bench;

/// The rows that Qt shows as selected, from 1.
std::vector<int> Selected(const QTableView &pTable) {
    std::vector<int> rows;
    for (const QModelIndex &index : pTable.selectionModel()->selectedRows()) {
        rows.push_back(index.row() + 1);
    }
    return rows;
}

TEST_F(Records, arePickedByTheMouseWhateverElseIsHeld) {
    auto &table = Of<QTableView>(list);
    const QWidget &area = *table.viewport();
    Click(area, Row(1));
    Click(area, Row(1));
    Click(area, Row(1), Qt::ControlModifier);
    Click(area, Row(2), Qt::ShiftModifier);
    EXPECT_EQ(acts, "2 2 2 3 ");
    Click(area, QPoint(20, area.height() - 3));
    Click(area, QPoint(area.width() - 3, 5));
    EXPECT_EQ(acts, "2 2 2 3 ") << "empty space below and beside the rows";
    EXPECT_EQ(Selected(table), std::vector{3});

    MouseDown(area, Row(0));
    QMouseEvent drag(QEvent::MouseMove, Row(2), area.mapToGlobal(Row(2)), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(table.viewport(), &drag);
    MouseUp(area, Row(2));
    EXPECT_EQ(acts, "2 2 2 3 1 ");
    EXPECT_EQ(Selected(table), std::vector{1}) << "a drag moves nothing";
}

TEST_F(Records, arePickedByTheKeys) {
    auto &table = Of<QTableView>(list);
    table.setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(acts, "1 ") << "the first arrow picks the current row";
    for (const int key :
         {Qt::Key_Down, Qt::Key_Return, Qt::Key_End, Qt::Key_Down, Qt::Key_Home, Qt::Key_PageDown}) {
        Key(key, Qt::ControlModifier);
    }
    EXPECT_EQ(acts, "1 2 2 3 3 1 3 ");
    Key(Qt::Key_Left);
    Key(Qt::Key_T, {}, "t");
    Key(Qt::Key_Space, {}, " ");
    EXPECT_EQ(acts, "1 2 2 3 3 1 3 ");
    Key(Qt::Key_Escape);
    EXPECT_EQ(acts, "1 2 2 3 3 1 3 Cancel ");
}

TEST_F(Records, pickedByAssistiveTechnologyArePicked) {
    auto &table = Of<QTableView>(list);
    table.selectRow(1);
    EXPECT_TRUE(Until([&] { return acts == "2 "; })) << acts;
    table.clearSelection();
    EXPECT_TRUE(Until([&] { return Selected(table) == std::vector{2}; }))
        << "only a pick changes the selection";
    EXPECT_EQ(acts, "2 ");
}

TEST_F(Records, stayWhereTheyAreOnTheScreenWhenOthersChange) {
    auto &table = Of<QTableView>(list);
    for (int row = 0; row < 100; ++row) {
        list.ListItems.Add("more");
    }
    list.SelectedItem(&list.ListItems(60));
    Sync();
    EXPECT_EQ(table.verticalScrollBar()->value(), 0) << "a selection by the program doesn't scroll";
    table.verticalScrollBar()->setValue(58);
    list.ListItems.Add("last");
    Sync();
    EXPECT_EQ(table.verticalScrollBar()->value(), 58);
    EXPECT_EQ(Selected(table), std::vector{60});

    list.SelectedItem(&list.ListItems(58)); // as a move does: other rows, another place
    list.ListItems(58).Text("moved");
    Sync();
    EXPECT_EQ(table.verticalScrollBar()->value(), 57) << "a moved row stays in view";

    const QModelIndex last = table.model()->index(103, 0);
    list.ListItems.Clear();
    EXPECT_FALSE(table.model()->data(last).isValid()) << "Qt hasn't heard of it yet";
    Sync();
    EXPECT_EQ(table.model()->rowCount(), 0);
    Key(Qt::Key_Down);
    EXPECT_EQ(acts, "");
}

TEST_F(Records, haveColumnsThatFollowTheirEdges) {
    for (int column = 2; column <= 5; ++column) {
        list.ColumnHeaders.Add("c");
        list.ColumnHeaders.Width(column, column == 5 ? -10.0F : 22.0F);
    }
    Sync();
    auto &table = Of<QTableView>(list);
    std::vector<int> widths;
    for (int column = 0; column < 5; ++column) {
        widths.push_back(table.columnWidth(column));
    }
    EXPECT_EQ(widths, (std::vector{200, 1, 2, 1, 0})); // edges at 201.5, 202.9, 204.4 pixels
}

TEST_F(Window, givesTheFocusOfADisabledButtonToTheList) {
    cmdMoveUp.Click.Connect([this] {
        acts += "Up ";
        cmdMoveUp.Enabled(acts != "Up Up ");
    });
    EXPECT_TRUE(Of(cmdAdd).hasFocus()) << "the first in the tab order";
    Key(Qt::Key_Tab, {}, "\t");
    Key(Qt::Key_Space, {}, " ");
    Key(Qt::Key_Return);
    Key(Qt::Key_Space, {}, " ");
    EXPECT_EQ(acts, "Up Up ");
    EXPECT_TRUE(Of(list).hasFocus());
    Key(Qt::Key_A, Qt::AltModifier, "a");
    EXPECT_EQ(acts, "Up Up Save ");
    EXPECT_TRUE(Of(cmdSave).hasFocus());
}

TEST_F(Window, snapsBackToItsMinimumEachTime) {
    const QSize atStart = window->size();
    window->resize(atStart + QSize(90, 60));
    EXPECT_EQ(form.ClientWidth(), 6000 + 90 * 15);
    EXPECT_EQ(form.ClientHeight(), 3000 + 60 * 15);
    EXPECT_EQ(window->minimumSize(), QSize(0, 0)) << "nothing limits the drag beforehand";
    for (int drag = 0; drag < 2; ++drag) {
        window->resize(300, 120);
        EXPECT_TRUE(Until([&] { return window->size() == atStart; })) << drag;
        EXPECT_EQ(form.ClientWidth(), 6000);
    }
}

/// A window system that gives a window its own idea of a size, whatever the window asks for.
class Stubborn : public QObject {
public:
    int asked = 0;
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override {
        auto *widget = static_cast<QWidget *>(pWatched);
        if (pEvent->type() == QEvent::Resize && widget->size() != own) {
            ++asked;
            QTimer::singleShot(0, widget, [this, widget] { widget->resize(own); });
        }
        return false;
    }
    const QSize own{300, 120};
};

TEST_F(Window, doesNotFightAWindowSystemThatInsists) {
    Stubborn system;
    window->installEventFilter(&system);
    window->resize(system.own);
    EXPECT_FALSE(Until([&] { return system.asked > 3; })) << "asked again and again";
    EXPECT_GE(system.asked, 1);
    EXPECT_EQ(window->size(), system.own);
}

TEST_F(Window, saysItsNames) {
    const auto says = [](QObject &pWidget, QAccessible::Text pWhat) {
        return FromQt(QAccessible::queryAccessibleInterface(&pWidget)->text(pWhat));
    };
    QObject &inner = *Of<QComboBox>(fruit).lineEdit();
    EXPECT_EQ(says(Of(name), QAccessible::Name), "Name");
    EXPECT_EQ(says(Of(fruit), QAccessible::Name), "Fruit");
    EXPECT_EQ(says(inner, QAccessible::Name), "Fruit");
    EXPECT_EQ(says(inner, QAccessible::Description), "one of the listed values");
    EXPECT_EQ(says(Of(list), QAccessible::Name), "Records");
    EXPECT_EQ(says(Of(cmdMoveUp), QAccessible::Name), "Move Up");
    EXPECT_EQ(says(Of(cmdSave), QAccessible::Name), "Save As");

    list.ListItems(1).Text(std::string(2000, 'x'));
    form.Caption("100% [*] & more");
    Sync();
    const auto *model = Of<QTableView>(list).model();
    EXPECT_EQ(model->index(0, 0).data().toString().size(), 1000);
    EXPECT_EQ(model->index(0, 0).data(Qt::AccessibleTextRole).toString().size(), 2000);
    EXPECT_EQ(window->windowHandle()->title(), "100% [*] & more");
}

TEST_F(Boxes, takeEscAndLetNothingThrough) {
    const auto ask = [&](int pButtons, auto pMeanwhile) {
        QTimer::singleShot(
            0, window, [&] { pMeanwhile(dynamic_cast<QMessageBox &>(*QApplication::activeModalWidget())); });
        return desktop.ShowMessage({"<b>\"a\"</b> & b", pButtons, "Quit"});
    };
    const auto escape = [](QMessageBox &pBox) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, {});
        QApplication::sendEvent(&pBox, &key);
    };
    EXPECT_EQ(ask(1, escape), 2);
    EXPECT_EQ(ask(0, escape), 1);
    EXPECT_EQ(ask(16, escape), 1);
    const int answer = ask(1, [&](QMessageBox &pBox) {
        Of<QPushButton>(cmdAdd).click(); // as assistive technology can
        Of<QLineEdit>(name).setText("kept");
        EXPECT_EQ(pBox.findChild<QLabel *>("qt_msgbox_label")->textFormat(), Qt::PlainText);
        EXPECT_EQ(pBox.parentWidget(), window);
        pBox.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(answer, 1);
    EXPECT_EQ(acts, "");
    EXPECT_EQ(name.Text(), "kept");
}

TEST_F(Boxes, showWhatTheHandlerHasDoneSoFar) {
    cmdAdd.Click.Connect([this] {
        cmdAdd.Caption("Update");
        QTimer::singleShot(0, window, [this] {
            acts += FromQt(Of<QPushButton>(cmdAdd).text());
            QApplication::activeModalWidget()->close();
        });
        desktop.ShowMessage({"Now", 0, "Bench"});
        acts += " done";
    });
    Click(Of(cmdAdd));
    EXPECT_EQ(acts, "Update done");
}

TEST_F(Boxes, giveTheNameThatStandsInTheField) {
    QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    QFile(folder.filePath("there.dat")).open(QIODevice::WriteOnly);
    const auto ask = [&](bool pIsSave, const char *pPreset, const char *pTyped) {
        QTimer::singleShot(0, window, [pTyped] {
            auto &dialog = dynamic_cast<QFileDialog &>(*QApplication::activeModalWidget());
            if (pTyped == nullptr) {
                dialog.reject();
                return;
            }
            auto *edit = dialog.findChild<QLineEdit *>("fileNameEdit");
            EXPECT_EQ(dialog.focusWidget(), edit);
            edit->setText(pTyped);
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, {});
            QApplication::sendEvent(&dialog, &enter);
        });
        return desktop.ShowFileDialog(form, {pIsSave, "Data (*.dat)", "*.dat", path, pPreset});
    };
    EXPECT_EQ(ask(true, "there.dat", nullptr), std::nullopt) << "a preset name isn't a chosen one";
    EXPECT_EQ(ask(true, "", "there.dat"), path + "/there.dat") << "nothing is asked before it is replaced";
    EXPECT_EQ(ask(true, "", "plain"), path + "/plain") << "no suffix is added";
    EXPECT_EQ(ask(false, "", "new.dat"), path + "/new.dat") << "a name that isn't there can be opened";
    EXPECT_EQ(ask(true, "", "a\"b\"c.dat"), path + "/a\"b\"c.dat") << "quotes are part of the name";
}

} // namespace
