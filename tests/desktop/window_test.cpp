// The list, the buttons and the window itself on the real desktop, and the boxes over them.
#include "desktop/ContrastStyle.h"
#include "help/frmAbout.h"
#include "tests/desktop/RealWindow.h"
#include "tests/support/TemporaryFolder.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QToolTip>

namespace {

class Records : public RealWindow {
protected:
    /// The place of a cell in the viewport. Rows and columns count from 1.
    QRect Place(int pRow, int pColumn = 1) const {
        return table->visualRect(table->model()->index(pRow - 1, pColumn - 1));
    }
    QPoint Middle(int pRow) const { return Place(pRow).center(); }
    QImage Cell(int pRow, int pColumn = 1) const {
        return Screen(*table->viewport()).copy(Place(pRow, pColumn));
    }
};

TEST_F(Records, ArePickedByTheMouseWhateverElseIsHeld) {
    const QWidget &area = *table->viewport();
    Click(area, Middle(2));
    Click(area, Middle(2), Qt::ControlModifier);
    Click(area, Middle(3), Qt::ShiftModifier);
    Click(area, QPoint(20, area.height() - 3)); // on the empty space below the rows, and beside them
    Click(area, QPoint(area.width() - 3, 5));
    QWindow *handle = window->windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, {}, area.mapTo(window, Middle(1)));
    QTest::mouseMove(handle, area.mapTo(window, Middle(3)));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, area.mapTo(window, Middle(3)));
    Click(area, Middle(3), {}, Qt::RightButton);
    EXPECT_EQ(acts, "2 2 3 1 ") << "neither a drag nor the other button picks";
    QTest::mouseDClick(handle, Qt::LeftButton, {}, area.mapTo(window, Middle(2)));
    EXPECT_EQ(acts, "2 2 3 1 2 2 ") << "two quick clicks may be on two rows";
}

TEST_F(Records, ArePickedByTheKeysAndByAssistiveTechnology) {
    table->setFocus();
    list.SelectedIndex(2);
    list.SelectedIndex(0);
    Keys("Down Ctrl+Up Ctrl+Down Return Enter End Down Home PgDown Left Ctrl+T Ctrl+Space");
    table->selectRow(1);
    const std::string wanted = "2 1 2 2 2 3 3 1 3 2 "; // The first arrow picks the current row.
    EXPECT_TRUE(QTest::qWaitFor([&] { return acts == wanted; })) << acts;
    table->clearSelection();
    EXPECT_TRUE(QTest::qWaitFor([&] { return table->selectionModel()->isRowSelected(1); }))
        << "only a pick changes it";
    table->selectRow(0); // The pick comes later, and the window goes.
    desktop.CloseForm(form);
    QApplication::processEvents();
    EXPECT_EQ(acts, wanted);
}

TEST_F(Records, ShowWholeWhatIsCut) {
    list.ListItems(2).Text("<b>Apple & pear</b>");
    list.ColumnHeaders.Width(1, 300);
    Sync();
    QString shown;
    for (QWidget *part : {table->viewport(), table->horizontalHeader()->viewport()}) {
        QHelpEvent help(QEvent::ToolTip, Middle(2), part->mapToGlobal(Middle(2)));
        QApplication::sendEvent(part, &help);
        shown += QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    }
    EXPECT_EQ(shown, "<b>Apple & pear</b>Name");
}

TEST_F(Records, ScrollOnlyToTheOneThatTheUserPicksOrMoves) {
    for (int row = 0; row < 100; ++row) {
        list.ListItems.Add({}).Text("more");
    }
    list.SelectedIndex(60);
    list.ColumnHeaders.Width(1, 30'000);
    Sync();
    EXPECT_EQ(table->verticalScrollBar()->value(), 0) << "a selection by the program doesn't scroll";
    table->verticalScrollBar()->setValue(58);
    list.ListItems.Add({}).Text("last");
    Sync();
    EXPECT_EQ(table->verticalScrollBar()->value(), 58) << "nor does a change of other rows";
    list.EnsureVisible(104);
    Sync();
    EXPECT_LT(Place(104).bottom(), table->viewport()->height()) << "the program asks for an added one";
    list.ListItems(5).Text("moved up");
    list.SelectedIndex(5);
    Sync();
    EXPECT_EQ(Place(5).top(), 0);
    table->setFocus();
    Keys("Up Right Right Left PgDown");
    EXPECT_EQ(table->horizontalScrollBar()->value(), table->horizontalScrollBar()->singleStep());
    EXPECT_TRUE(Place(4).bottom() > 0 && list.SelectedIndex() > 6) << "a page down leaves one row in view";
}

TEST_F(Records, StandInColumnsThatKeepTheirSum) {
    for (int column = 1; column <= 78; ++column) {
        column == 1 ? void() : list.ColumnHeaders.Add("x");
        list.ColumnHeaders.Width(column, 73); // 4.9 pixels
    }
    Sync();
    EXPECT_EQ(table->columnViewportPosition(75), 365);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !table->horizontalScrollBar()->isVisible(); }))
        << "there is just room";
}

TEST_F(Records, KeepEachTextInItsCell) {
    list.ColumnHeaders.Add("Next");
    list.ColumnHeaders.Width(2, 600);
    const auto cell = [&](const std::string &pText, float pWidth, int pColumn) {
        list.ListItems(2).Texts(TextRow(std::array{pText}));
        list.ColumnHeaders.Width(1, pWidth);
        Sync();
        return Cell(2, pColumn);
    };
    for (const std::string text :
         {"a text that is far too long", "שלום לכולם ולכל מי שבא", "left שלום לכולם right"}) {
        for (const float width : {90.0F, 210.0F, 330.0F, 600.0F}) {
            EXPECT_EQ(cell(text, width, 2), cell("", width, 2)) << text << " in " << width << " twips";
        }
        EXPECT_NE(cell(text, 600, 1), cell("", 600, 1)) << "a changed row is painted anew";
    }
    list.SelectedIndex(2);
    Sync();
    EXPECT_EQ(Cell(2).pixelColor(1, 1), table->palette().color(QPalette::Highlight));
    const QColor mixed =
        Cell(2).scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
    EXPECT_GT(mixed.lightness(), table->palette().color(QPalette::Highlight).lightness())
        << "with white text";
}

using Window = RealWindow;

TEST_F(Window, OutlinesItsPartsOnBlack) {
    ContrastStyle style("fusion");
    QPalette black(Qt::black, Qt::black);
    black.setColor(QPalette::Highlight, Qt::cyan);
    style.polish(black);
    addButton->setEnabled(false);
    nameEdit->setFocus();
    for (QWidget *part :
         std::initializer_list<QWidget *>{addButton, nameEdit, box, table, table->horizontalHeader()}) {
        part->setStyle(&style);
        part->setPalette(black);
        part->resize(90, 30);
        const QColor wanted = part == addButton ? Qt::gray : part == nameEdit ? Qt::cyan : Qt::white;
        EXPECT_EQ(part->grab().toImage().pixelColor(0, 15), wanted) << part->metaObject()->className();
    }
}

TEST_F(Window, ShowsFromTheStartWhatTheKeysActOn) {
    const QImage atStart = Screen(*addButton);
    Keys("Tab");
    EXPECT_NE(Screen(*addButton), atStart);
    Keys("Shift+Tab");
    EXPECT_EQ(Screen(*addButton), atStart);
    Keys("Alt+A Esc");
    EXPECT_EQ(acts, "Add Add ");
    cmdAdd.Enabled(false);
    cmdAdd.Caption("");
    cmdAdd.Shows(CommandButton::Picture::TriangleUp);
    Sync();
    EXPECT_NE(Screen(*addButton).pixelColor(31, 14), Screen(*addButton).pixelColor(31, 9))
        << "broad below, a tip above";
    EXPECT_TRUE(table->hasFocus()) << "the next press must not act on the next button";
}

TEST_F(Window, KeepsItsLeastSizeAndFollowsTheWindowSystem) {
    const QSize least = window->size();
    EXPECT_EQ(least.width(), 400);
    EXPECT_EQ(box->geometry(), QRect(100, 0, 101, 21)) << "neighbours meet";
    window->resize(least + QSize(90, 60));
    EXPECT_EQ(QSizeF(form.ClientWidth(), form.ClientHeight()), QSizeF(6000 + 90 * 15, 3000 + 60 * 15));
    EXPECT_EQ(window->minimumSize(), QSize(0, 0)) << "nothing limits the drag";
    for (int drag = 0; drag < 2; ++drag) {
        window->windowHandle()->resize(300 + drag, 120);
        QApplication::processEvents();
        EXPECT_EQ(window->size(), least) << "at once";
        EXPECT_EQ(form.ClientWidth(), 6000);
    }
    window->showMaximized();
    EXPECT_EQ(form.WindowState(), Form::stateMaximized);
    window->showMinimized();
    EXPECT_EQ(form.WindowState(), Form::stateMinimized);
    form.WindowState(Form::stateNormal);
    Sync();
    EXPECT_FALSE(window->isMinimized() || window->isMaximized());
}

TEST_F(Window, OfTheAboutBoxIsLightAndComesBack) {
    QApplication::setPalette(QPalette(Qt::black));
    frmAbout about(runtime);
    desktop.Run([&] { about.Show(); });
    QApplication::setPalette({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() != window; }));
    QWidget &shown = *QApplication::activeWindow();
    EXPECT_EQ(shown.minimumSize(), shown.maximumSize());
    for (const auto &[y, colour] : {std::pair{100, 0xF0F0F0U}, {163, 0x808080U}, {164, 0xFFFFFFU}}) {
        EXPECT_EQ(Screen(shown).pixelColor(300, y), QColor::fromRgb(colour)) << y;
    }
    for (QLabel *label : shown.findChildren<QLabel *>()) {
        QImage blank = Screen(*label);
        blank.fill(blank.pixel(0, 0));
        EXPECT_NE(Screen(*label), blank) << label->text().toStdString();
        const bool isLink = label->text() == "link";
        EXPECT_EQ(label->cursor().shape() == Qt::PointingHandCursor, isLink);
        EXPECT_EQ(label->palette().color(QPalette::WindowText), isLink ? Qt::blue : Qt::black);
    }
    shown.showMinimized();
    desktop.Run([&] { about.Show(); });
    EXPECT_FALSE(shown.isMinimized());
    QTest::keyClick(&shown, Qt::Key_Return);
    EXPECT_FALSE(shown.isVisible());
}

TEST_F(Window, LetsNothingThroughUnderABoxAndShowsWhatIsDoneSoFar) {
    const std::string prompt = "<b>" + std::string(9000, 'a') + "why";
    Message message{prompt, MessageButtons::Ok, ""};
    int key = Qt::Key_Escape;
    cmdAdd.Click.Connect([&] {
        cmdAdd.Caption("Update");
        QTimer::singleShot(0, window, [&] {
            auto &asked = dynamic_cast<QMessageBox &>(*QApplication::activeModalWidget());
            EXPECT_EQ(asked.icon() == QMessageBox::Critical, message.buttons == MessageButtons::CriticalStop);
            EXPECT_EQ(asked.windowTitle(), " ") << "Qt would make a title of its own";
            EXPECT_EQ(asked.text(), "<b>" + QString(1997, 'a') + "…" + QString(1996, 'a') + "why");
            EXPECT_TRUE(asked.textFormat() == Qt::PlainText && asked.parentWidget() == window);
            EXPECT_EQ(addButton->text(), "Update");
            addButton->click(); // as assistive technology can
            nameEdit->setText("kept");
            QTest::keyClick(&asked, static_cast<Qt::Key>(key));
        });
        acts += desktop.ShowMessage(message) == MessageAnswer::Ok ? "OK " : "Cancel ";
    });
    for (const auto one : {MessageButtons::Ok, MessageButtons::CriticalStop, MessageButtons::OkAndCancel}) {
        message.buttons = one;
        addButton->click();
    }
    key = Qt::Key_Return;
    addButton->click();
    EXPECT_EQ(acts + name.Text(), "OK OK Cancel OK kept");
}

TEST_F(Window, GetsTheNameThatStandsInTheFileDialog) {
    const TemporaryFolder folder;
    for (const char *file : {"there.dat", "sub/there.dat", "b\xFF/there.dat"}) {
        folder.Write(file, "");
    }
    const auto ask = [&](bool pIsSave, const std::vector<const char *> &pTyped, const char *pFolder = "") {
        QTimer::singleShot(0, window, [&] {
            auto &asked = dynamic_cast<QFileDialog &>(*QApplication::activeModalWidget());
            EXPECT_EQ(asked.windowTitle(), pIsSave ? "Save As" : "Open");
            EXPECT_EQ(asked.nameFilters(), QStringList("Data (*.dat)"));
            auto *edit = asked.findChild<QLineEdit *>("fileNameEdit");
            EXPECT_TRUE(QTest::qWaitFor([&] { return edit->hasFocus(); }));
            for (const char *typed : pTyped) {
                // Over the preset name, which is selected.
                edit->insert(typed == nullptr ? edit->text() : typed);
                QTest::keyClick(&asked, Qt::Key_Return);
            }
            asked.close();
        });
        const auto *kind = pIsSave ? "Data (*.dat)" : "Data";
        const FileDialogRequest request{pIsSave, kind, "*.dat", folder.File(pFolder), "there.dat"};
        return desktop.ShowFileDialog(form, request).value_or("nothing");
    };
    EXPECT_EQ(ask(true, {}), "nothing") << "a preset name isn't a chosen one";
    EXPECT_EQ(ask(true, {"there.dat"}), folder.File("there.dat")) << "nothing is asked before it is replaced";
    EXPECT_EQ(ask(true, {"plain"}), folder.File("plain")) << "no suffix is added";
    EXPECT_EQ(ask(false, {"new.dat"}), folder.File("new.dat")) << "a name that isn't there can be opened";
    EXPECT_EQ(ask(true, {"a\"b\"c.dat"}), folder.File("a\"b\"c.dat")) << "quotes are part of the name";
    EXPECT_EQ(ask(true, {nullptr}, "b\xFF/"), folder.File("b\xFF/there.dat")) << "not the one elsewhere";
    EXPECT_EQ(ask(true, {"sub", "in.dat"}), folder.File("sub/in.dat")) << "a folder's name leads into it";
}

} // namespace
