// The list, the buttons and the window itself on the real desktop, and the boxes over them.
#include "desktop/ContrastStyle.h"
#include "tests/desktop/Bench.h"
#include "tests/support/TemporaryFolder.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QScrollBar>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>
#include <QWindow>

namespace {

class Records : public Bench {
protected:
    /// The middle of row pRow, from 1, in the viewport.
    QPoint Row(int pRow) const {
        const int height = table->verticalHeader()->defaultSectionSize();
        return {20, pRow * height - height / 2};
    }
    /// The row that Qt shows as selected, from 1; 0 if that isn't one row.
    int Selected() const {
        const QModelIndexList rows = table->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() + 1 : 0;
    }
};

TEST_F(Records, arePickedByTheMouseWhateverElseIsHeld) {
    const QWidget &area = *table->viewport();
    Click(area, Row(2));
    Click(area, Row(2), Qt::ControlModifier);
    Click(area, Row(3), Qt::ShiftModifier);
    Click(area, QPoint(20, area.height() - 3));
    Click(area, QPoint(area.width() - 3, 5));
    EXPECT_EQ(acts, "2 2 3 ") << "nothing for the empty space below and beside the rows";
    EXPECT_EQ(Selected(), 3);

    QWindow *handle = window->windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, {}, area.mapTo(window, Row(1)));
    QTest::mouseMove(handle, area.mapTo(window, Row(3)));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, area.mapTo(window, Row(3)));
    Click(area, Row(3), {}, Qt::RightButton);
    EXPECT_EQ(acts, "2 2 3 1 ");
    EXPECT_EQ(Selected(), 1) << "neither a drag nor the other button picks";
}

TEST_F(Records, arePickedByTheKeysAndByAssistiveTechnology) {
    table->setFocus();
    for (const int key : {Qt::Key_Down, Qt::Key_Up}) {
        list.SelectedIndex(2);
        list.SelectedIndex(0);
        Key(key);
    }
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_End, Qt::Key_Down, Qt::Key_Home,
                          Qt::Key_PageDown, Qt::Key_Left, Qt::Key_T, Qt::Key_Space}) {
        Key(key, Qt::ControlModifier);
    }
    table->selectRow(1);
    const std::string wanted = "2 2 1 2 2 3 3 1 3 2 "; // The first arrow picks the current row.
    EXPECT_TRUE(QTest::qWaitFor([&] { return acts == wanted; })) << acts;
    table->clearSelection();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Selected() == 2; })) << "only a pick changes the selection";
    EXPECT_EQ(acts, wanted);
}

TEST_F(Records, areFoundByTheirFirstLetters) {
    list.ListItems(1).Text("\u00C4ra");
    list.ListItems.Add({}).Text("apricot");
    Sync();
    table->setFocus();
    QApplication::setKeyboardInputInterval(60'000);
    for (const int key : {Qt::Key_Space, Qt::Key_A, Qt::Key_A, Qt::Key_A}) {
        Key(key);
    }
    EXPECT_EQ(acts, "2 4 2 ") << "the same letter again goes on to the next";
    Key(Qt::Key_X); // "ax" is none.
    Key(Qt::Key_B, Qt::ControlModifier);
    QApplication::setKeyboardInputInterval(0);
    QTest::qWait(2);
    for (const int key : {Qt::Key_B, Qt::Key_B, Qt::Key_A}) {
        Key(key);
        QTest::qWait(2);
    }
    EXPECT_EQ(acts, "2 4 2 3 3 4 ") << "after a pause another search begins, and may come round";
    QApplication::setKeyboardInputInterval(60'000);
    Key(Qt::Key_A);
    Key(Qt::Key_P);
    EXPECT_EQ(acts, "2 4 2 3 3 4 2 ") << "a longer text may still fit the current record";
    QTest::simulateEvent(window->windowHandle(), true, Qt::Key_Adiaeresis, {}, "\u00E4", false);
    EXPECT_EQ(acts, "2 4 2 3 3 4 2 ");
}

TEST_F(Records, showWholeWhatIsCut) {
    list.ColumnHeaders.Width(1, 300);
    list.ListItems(2).Text("<b>Apple & pear</b>");
    Sync();
    const auto tip = [](QWidget &pWidget, const QPoint &pAt) {
        QHelpEvent help(QEvent::ToolTip, pAt, pWidget.mapToGlobal(pAt));
        QApplication::sendEvent(&pWidget, &help);
        QTextDocument document;
        document.setHtml(QToolTip::text());
        return document.toPlainText();
    };
    EXPECT_EQ(tip(*table->viewport(), {3, Row(2).y()}), "<b>Apple & pear</b>");
    EXPECT_EQ(tip(*table->horizontalHeader()->viewport(), {3, 3}), "Name");
    list.ColumnHeaders.Width(1, 3000);
    Sync();
    for (QWidget *part : {table->viewport(), table->horizontalHeader()->viewport()}) {
        tip(*part, {3, 3});
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); })) << "it isn't cut any more";
    }
}

TEST_F(Records, scrollOnlyToTheOneThatTheUserPicksOrMoves) {
    for (int row = 0; row < 100; ++row) {
        list.ListItems.Add({}).Text("more");
    }
    list.SelectedIndex(60);
    Sync();
    EXPECT_EQ(table->verticalScrollBar()->value(), 0) << "a selection by the program doesn't scroll";
    table->verticalScrollBar()->setValue(58);
    list.ListItems.Add({}).Text("last");
    Sync();
    EXPECT_EQ(table->verticalScrollBar()->value(), 58) << "nor does a change of other rows";
    EXPECT_EQ(Selected(), 60);

    const auto isInView = [this](int pRow) {
        return table->viewport()->rect().contains(table->visualRect(table->model()->index(pRow - 1, 0)));
    };
    list.EnsureVisible(104);
    Sync();
    EXPECT_TRUE(isInView(104)) << "asked for by the program";
    list.ListItems(5).Text("moved up");
    list.SelectedIndex(5);
    Sync();
    EXPECT_TRUE(isInView(5));
    table->setFocus();
    Key(Qt::Key_Up);
    EXPECT_TRUE(isInView(4));
}

TEST_F(Records, keepEachTextInItsCell) {
    list.ColumnHeaders.Add("Next");
    list.ColumnHeaders.Width(2, 600);
    const auto picture = [&](const std::string &pText, float pWidth, int pColumn) {
        list.ListItems(1).Text(pText);
        list.ColumnHeaders.Width(1, pWidth);
        Sync();
        // Draws the whole table. If only this cell were drawn, its neighbour could not paint over it.
        const QRect cell = table->visualRect(table->model()->index(0, pColumn));
        return table->grab().toImage().copy(cell.translated(table->viewport()->pos()));
    };
    for (const std::string text :
         {"a text that is far too long", "שלום לכולם ולכל מי שבא", "left שלום לכולם right"}) {
        for (const float width : {90.0F, 210.0F, 330.0F, 600.0F}) {
            EXPECT_EQ(picture(text, width, 1), picture("", width, 1)) << text << " in " << width << " twips";
        }
        EXPECT_NE(picture(text, 600, 0), picture("", 600, 0)) << text;
    }
}

TEST_F(Records, areNotPickedInAWindowThatGoes) {
    table->selectRow(1); // by assistive technology; the pick comes later
    desktop.CloseForm(form);
    QApplication::processEvents();
    EXPECT_EQ(acts, "");
}

using Window = Bench;

TEST_F(Window, outlinesItsPartsOnBlack) {
    ContrastStyle style("fusion");
    for (QWidget *part :
         std::initializer_list<QWidget *>{addButton, nameEdit, box, table, table->horizontalHeader()}) {
        part->setStyle(&style);
        part->setPalette(QPalette(Qt::black, Qt::black));
        part->resize(90, 30);
        const auto outline = part->hasFocus() ? QPalette::Highlight : QPalette::WindowText;
        EXPECT_EQ(part->grab().toImage().pixelColor(0, 15), part->palette().color(outline))
            << part->metaObject()->className();
    }
}

TEST_F(Window, snapsBackToItsMinimumEachTime) {
    const QSize atStart = window->size();
    window->resize(atStart + QSize(90, 60));
    EXPECT_EQ(form.ClientWidth(), 6000 + 90 * 15);
    EXPECT_EQ(form.ClientHeight(), 3000 + 60 * 15);
    EXPECT_EQ(window->minimumSize(), QSize(0, 0)) << "nothing limits the drag";
    for (int drag = 0; drag < 2; ++drag) {
        window->windowHandle()->resize(300 + drag, 120);
        QApplication::processEvents();
        EXPECT_EQ(window->size(), atStart) << "at once";
        EXPECT_EQ(form.ClientWidth(), 6000);
    }
}

/// A window system may choose a window's size itself, whatever the window asks for.
TEST_F(Window, doesNotFightAWindowSystemThatInsists) {
    const QSize own(300, 120);
    int asked = 0;
    QObject::connect(window->windowHandle(), &QWindow::widthChanged, window, [&](int pWidth) {
        if (pWidth != own.width()) {
            ++asked;
            QTimer::singleShot(0, window, [&] { window->windowHandle()->resize(own); });
        }
    });
    window->windowHandle()->resize(own);
    EXPECT_FALSE(QTest::qWaitFor([&] { return asked > 4; }, 1000)) << "asked again and again";
    EXPECT_GE(asked, 1);
    EXPECT_EQ(window->size(), own);
}

class Boxes : public Bench {
protected:
    /// Does pAct to the box or dialog that is about to wait.
    template <typename Waiting> void Meanwhile(const std::function<void(Waiting &)> &pAct) {
        const auto act = [pAct] { pAct(dynamic_cast<Waiting &>(*QApplication::activeModalWidget())); };
        QTimer::singleShot(0, window, act);
    }
};

TEST_F(Boxes, takeEsc) {
    for (const auto &[buttons, answer] : {std::pair{MessageButtons::OkAndCancel, MessageAnswer::Cancel},
                                          {MessageButtons::Ok, MessageAnswer::Ok},
                                          {MessageButtons::CriticalStop, MessageAnswer::Ok}}) {
        Meanwhile<QMessageBox>([](QMessageBox &pBox) {
            EXPECT_EQ(pBox.windowTitle(), " ") << "Qt would make a title of its own";
            EXPECT_EQ(pBox.text(), QString(2000, 'a') + "…" + QString(1996, 'a') + "why");
            QTest::keyClick(&pBox, Qt::Key_Escape);
        });
        EXPECT_EQ(desktop.ShowMessage({std::string(9000, 'a') + "why", buttons, ""}), answer);
    }
}

TEST_F(Boxes, letNothingThroughAndShowWhatTheHandlerHasDoneSoFar) {
    cmdAdd.Click.Connect([this] {
        cmdAdd.Caption("Update");
        Meanwhile<QMessageBox>([this](QMessageBox &pBox) {
            EXPECT_EQ(addButton->text(), "Update");
            addButton->click(); // as assistive technology can
            nameEdit->setText("kept");
            EXPECT_EQ(pBox.textFormat(), Qt::PlainText);
            EXPECT_EQ(pBox.parentWidget(), window);
            pBox.button(QMessageBox::Ok)->click();
        });
        const Message question{"<b>\"a\"</b> & b", MessageButtons::OkAndCancel, "Quit"};
        acts += desktop.ShowMessage(question) == MessageAnswer::Ok ? "OK" : "Cancel";
    });
    addButton->click();
    EXPECT_EQ(acts, "OK");
    EXPECT_EQ(name.Text(), "kept");
}

TEST_F(Boxes, giveTheNameThatStandsInTheField) {
    const TemporaryFolder folder;
    folder.Write("there.dat", "");
    folder.Write("sub/there.dat", "");
    const auto ask = [&](bool pIsSave, const std::vector<const char *> &pTyped, const char *pFolder = "") {
        Meanwhile<QFileDialog>([pTyped](QFileDialog &pDialog) {
            auto *edit = pDialog.findChild<QLineEdit *>("fileNameEdit");
            EXPECT_TRUE(QTest::qWaitFor([&] { return edit->hasFocus(); }));
            for (const char *typed : pTyped) {
                edit->insert(typed == nullptr ? edit->text()
                                              : typed); // over the preset name, which is selected
                QTest::keyClick(&pDialog, Qt::Key_Return);
            }
            pDialog.close();
        });
        const FileDialogRequest request{pIsSave, "Data (*.dat)", "*.dat", folder.File(pFolder), "there.dat"};
        return desktop.ShowFileDialog(form, request).value_or("nothing");
    };
    EXPECT_EQ(ask(true, {}), "nothing") << "a preset name isn't a chosen one";
    EXPECT_EQ(ask(true, {"there.dat"}), folder.File("there.dat")) << "nothing is asked before it is replaced";
    EXPECT_EQ(ask(true, {"plain"}), folder.File("plain")) << "no suffix is added";
    EXPECT_EQ(ask(false, {"new.dat"}), folder.File("new.dat")) << "a name that isn't there can be opened";
    EXPECT_EQ(ask(true, {"a\"b\"c.dat"}), folder.File("a\"b\"c.dat")) << "quotes are part of the name";
    folder.Write("b\xFF/there.dat", "");
    EXPECT_EQ(ask(true, {nullptr}, "b\xFF/"), folder.File("b\xFF/there.dat")) << "not the one elsewhere";
    EXPECT_EQ(ask(true, {"sub", "in.dat"}), folder.File("sub/in.dat")) << "a folder's name leads into it";
}

} // namespace
