#include "desktop/FieldViews.h"

#include "desktop/TextCodec.h"
#include "text/Text.h"

#include <QListView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace {

/// Whether the key is an access key. A line edit would type its letter.
bool IsAccessKey(const QKeyEvent &pEvent) {
    const auto held = pEvent.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::GroupSwitchModifier);
    return held == Qt::AltModifier && !pEvent.text().isEmpty() && pEvent.text().at(0).isPrint();
}

/// A key that is none of these types text on some keyboard. The highest function keys and the locks count as
/// such too: there is nothing to complete when they are released.
FieldKey KindOf(const QKeyEvent &pEvent) {
    constexpr std::array typeNothing{
        Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Clear,    Qt::Key_Return, Qt::Key_Enter,    Qt::Key_Shift,
        Qt::Key_Alt,    Qt::Key_AltGr,   Qt::Key_Control,  Qt::Key_Pause,  Qt::Key_CapsLock, Qt::Key_Escape,
        Qt::Key_PageUp, Qt::Key_Left,    Qt::Key_PageDown, Qt::Key_Right,  Qt::Key_Home,     Qt::Key_End,
        Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Print,    Qt::Key_Insert, Qt::Key_Help};
    const int key = pEvent.key();
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete) {
        return FieldKey::Erases;
    }
    const bool isNamed = std::find(typeNothing.begin(), typeNothing.end(), key) != typeNothing.end();
    return isNamed || (key >= Qt::Key_F1 && key <= Qt::Key_F16) ? FieldKey::Neither : FieldKey::TypesText;
}

/// Makes pBox editable, and returns the line edit in it.
QLineEdit &EditOf(QComboBox &pBox) {
    pBox.setEditable(true);
    return *pBox.lineEdit();
}

} // namespace

TextBoxView::TextBoxView(Acts &pActs, TextBox &pBox, QWidget &pParent)
    : QLineEdit(&pParent), ControlView(pActs, pBox), myText(*this, pBox, [&](const std::string &pText) {
          pActs.RunEvenUnderBox([&] { pBox.UserEdits(pText); });
      }) {
    // Not textEdited: an edit by assistive technology doesn't emit it.
    connect(this, &QLineEdit::textChanged, this, [this] { myText.Edited(); });
}

void TextBoxView::Show() {
    if (myText.Show()) {
        home(false);
    }
}

void TextBoxView::keyPressEvent(QKeyEvent *pEvent) {
    if (IsAccessKey(*pEvent)) {
        pEvent->ignore();
    } else {
        QLineEdit::keyPressEvent(pEvent);
    }
}

void ComboEntries::Sync() {
    if (myToldCount != myBox.ListCount()) {
        beginResetModel();
        myToldCount = myBox.ListCount();
        endResetModel();
    }
}

QVariant ComboEntries::data(const QModelIndex &pIndex, int pRole) const {
    if (!pIndex.isValid() || pIndex.row() >= myBox.ListCount()) {
        return {};
    }
    const std::string &entry = myBox.List(pIndex.row());
    if (pRole == Qt::DisplayRole) {
        return ToQtLine(entry, mostShown);
    }
    return pRole == Qt::EditRole || pRole == Qt::AccessibleTextRole ? ToQt(entry) : QVariant();
}

ComboBoxView::ComboBoxView(Acts &pActs, ComboBox &pBox, QWidget &pParent)
    : QComboBox(&pParent), ControlView(pActs, pBox), myBox(pBox), myEntries(pBox),
      myText(EditOf(*this), pBox,
             [this](const std::string &pText) {
                 myActs.RunEvenUnderBox([&] { myBox.UserEdits(pText, lineEdit()->cursorPosition()); });
             }),
      myFrame(*this) {
    const QScopedValueRollback showing(myIsShowing, true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    // The form sets the size. Qt would work it out from the entries, and 200,000 take a noticeable time.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(12);
    setModel(&myEntries);
    auto *list = qobject_cast<QListView *>(view());
    list->setUniformItemSizes(true);
    list->setLayoutMode(QListView::SinglePass);
    list->setFont(font());
    list->installEventFilter(this);
    PrepareEdit();
    connect(this, &QComboBox::activated, this,
            [this](int pIndex) { myActs.Run([&] { myBox.UserPicks(pIndex); }); });
}

ComboBoxView::~ComboBoxView() {
    // Qt's part of the box is destroyed after the entries, and must not read them then.
    disconnect(this, nullptr, this, nullptr);
    disconnect(lineEdit(), nullptr, this, nullptr);
}

void ComboBoxView::PrepareEdit() {
    QLineEdit &edit = *lineEdit();
    // At these signals Qt would search the list for the text and pick an entry. Only the user picks.
    disconnect(&edit, &QLineEdit::editingFinished, this, nullptr);
    disconnect(&edit, &QLineEdit::returnPressed, this, nullptr);
    connect(&edit, &QLineEdit::textChanged, this, [this] {
        if (!myIsShowing) {
            myText.Edited();
        }
    });
    connect(&edit, &QLineEdit::cursorPositionChanged, this, [this] { CaretMoved(); });
    connect(&edit, &QLineEdit::selectionChanged, this, [this] { CaretMoved(); });
}

void ComboBoxView::CaretMoved() {
    const QLineEdit &edit = *lineEdit();
    if (!myIsShowing && !myText.IsShowing()) {
        const bool selects = edit.hasSelectedText();
        myBox.UserSelects(selects ? edit.selectionStart() : edit.cursorPosition(),
                          selects ? edit.selectionLength() : 0);
    }
}

void ComboBoxView::Show() {
    const QScopedValueRollback showing(myIsShowing, true);
    lineEdit()->setAccessibleName(accessibleName());
    view()->setAccessibleName(accessibleName());
    Describe(*lineEdit(), Description());
    myFrame.setWidget(myBox.IsRefusing() ? this : nullptr);
    myEntries.Sync();
    ShowText();
}

QString ComboBoxView::Description() const {
    return myBox.IsRefusing() ? QStringLiteral("not one of the listed values") : ControlView::Description();
}

void ComboBoxView::ShowText() {
    QLineEdit &edit = *lineEdit();
    myText.Show();
    const int start = myBox.SelStart();
    const int length = myBox.SelLength();
    if (length > 0 && (edit.selectionStart() != start || edit.selectionLength() != length)) {
        // From end to start, so that the caret and the typed text stay visible.
        edit.setSelection(start + length, -length);
    } else if (length == 0 && (edit.hasSelectedText() || edit.cursorPosition() != start)) {
        edit.setCursorPosition(start);
    }
}

int ComboBoxView::CurrentEntry() const {
    if (myBox.ListIndex() >= 0) {
        return myBox.ListIndex();
    }
    for (int index = 0; index < myBox.ListCount(); ++index) {
        if (EqualIgnoringCase(myBox.List(index), myBox.Text())) {
            return index;
        }
    }
    return -1;
}

void ComboBoxView::Step(int pStep) {
    const int current = CurrentEntry();
    const int next = std::max(EntryLikeText(), 0);
    const int start = current >= 0 ? current : pStep > 0 ? next - 1 : next;
    const int index = std::clamp(start + pStep, 0, myBox.ListCount() - 1);
    myActs.Run([&] { myBox.UserPicks(index); });
}

void ComboBoxView::showPopup() {
    if (!MayTakeFocus()) {
        return;
    }
    {
        // Only the popup needs Qt's own current entry. Setting it overwrites the text.
        const QScopedValueRollback showing(myIsShowing, true);
        const int current = CurrentEntry();
        setCurrentIndex(current >= 0 ? current : EntryLikeText());
        ShowText();
    }
    WidenPopup();
    QComboBox::showPopup();
}

void ComboBoxView::WidenPopup() {
    // Measuring all of a long list would take a noticeable time.
    constexpr int mostMeasured = 500;
    constexpr int mostWidth = 480;
    int textWidth = 0;
    for (int index = 0; index < std::min(myBox.ListCount(), mostMeasured); ++index) {
        textWidth =
            std::max(textWidth, fontMetrics().horizontalAdvance(ToQtLine(myBox.List(index), mostShown)));
    }
    const int room = view()->verticalScrollBar()->sizeHint().width() + 2 * fontMetrics().averageCharWidth();
    view()->setMinimumWidth(std::min(textWidth, mostWidth) + room);
}

bool ComboBoxView::StepByKey(const QKeyEvent &pEvent) {
    const bool isUp = pEvent.key() == Qt::Key_Up || pEvent.key() == Qt::Key_PageUp;
    const bool isArrow = pEvent.key() == Qt::Key_Up || pEvent.key() == Qt::Key_Down;
    const bool isPage = pEvent.key() == Qt::Key_PageUp || pEvent.key() == Qt::Key_PageDown;
    const bool isWithAlt = pEvent.modifiers().testFlag(Qt::AltModifier);
    const bool isWithControl = pEvent.modifiers().testFlag(Qt::ControlModifier);
    if (isArrow && isWithAlt) {
        showPopup();
        return true;
    }
    const bool isStep = (isArrow && !isWithControl) || (isPage && !isWithAlt);
    if (isStep && myBox.ListCount() > 0) {
        const int entries = isPage ? maxVisibleItems() : 1;
        Step(isUp ? -entries : entries);
    }
    return isStep;
}

void ComboBoxView::keyPressEvent(QKeyEvent *pEvent) {
    myBox.UserPressesKey(KindOf(*pEvent));
    if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter || IsAccessKey(*pEvent)) {
        pEvent->ignore(); // The form may have a default button or an access key for it.
    } else if (!StepByKey(*pEvent)) {
        QComboBox::keyPressEvent(pEvent);
    }
}

bool ComboBoxView::eventFilter(QObject *pWatched, QEvent *pEvent) {
    if (pEvent->type() == QEvent::KeyPress) {
        const auto &key = static_cast<const QKeyEvent &>(*pEvent);
        const bool isArrow = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
        if (isArrow && key.modifiers().testFlag(Qt::AltModifier)) {
            hidePopup();
            return true;
        }
    }
    if (pEvent->type() == QEvent::Hide) {
        // To assistive technology the current entry of a closed list would have the focus still. Later: Qt is
        // about to pick it.
        QTimer::singleShot(0, this, [this] {
            if (!view()->isVisible()) {
                view()->selectionModel()->clear();
            }
        });
    }
    return QComboBox::eventFilter(pWatched, pEvent);
}

void ComboBoxView::keyReleaseEvent(QKeyEvent *pEvent) {
    QComboBox::keyReleaseEvent(pEvent);
    if (!pEvent->isAutoRepeat()) {
        myActs.Run([&] { myBox.UserReleasesKey(KindOf(*pEvent)); });
    }
}

void ComboBoxView::wheelEvent(QWheelEvent *pEvent) {
    // Over a closed box the wheel would change a field that the user only scrolls past.
    pEvent->ignore();
}
