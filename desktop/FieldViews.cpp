#include "desktop/FieldViews.h"

#include "desktop/KeyMap.h"
#include "desktop/TextCodec.h"
#include "text/Text.h"

#include <QListView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int mostCharacters = std::numeric_limits<int>::max();
/// In bytes. A field shows only the start of a longer text, and does not let it be edited: Qt would measure
/// all of it at each key and each blink of the caret. The record keeps the whole text.
constexpr std::size_t mostEdited = 1'000'000;

/// Whether the key is an access key. A line edit would type its letter.
bool IsAccessKey(const QKeyEvent &pEvent) {
    const auto held = pEvent.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::GroupSwitchModifier);
    return held == Qt::AltModifier && !pEvent.text().isEmpty() && pEvent.text().at(0).isPrint();
}

/// The part of pText that a field shows. Makes pEdit read-only if that is not all of it.
QString Shown(const std::string &pText, QLineEdit &pEdit) {
    const bool isTooLong = pText.size() > mostEdited;
    pEdit.setReadOnly(isTooLong);
    return isTooLong ? ToQtLine(pText, mostShown) : ToQt(pText);
}

} // namespace

TextBoxView::TextBoxView(Acts &pActs, TextBox &pBox, QWidget &pParent)
    : QLineEdit(&pParent), ControlView(pActs, pBox), myBox(pBox) {
    setMaxLength(mostCharacters);
    // Not textEdited: an edit by assistive technology doesn't emit it.
    connect(this, &QLineEdit::textChanged, this, [this](const QString &pText) { Edited(pText); });
}

void TextBoxView::Edited(const QString &pText) {
    if (myIsShowing) {
        return;
    }
    const QScopedValueRollback editing(myIsEditing, true);
    myCaretFromEnd = pText.size() - cursorPosition();
    myActs.Note([&] { myBox.UserEdits(FromQt(pText)); });
}

void TextBoxView::Show() {
    const QScopedValueRollback showing(myIsShowing, true);
    const QString shown = Shown(myBox.Text(), *this);
    if (text() == shown) {
        return;
    }
    setText(shown);
    // While the user edits, the caret keeps its place. Any other text shows from its start.
    setCursorPosition(myIsEditing ? static_cast<int>(shown.size() - myCaretFromEnd) : 0);
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

int ComboEntries::rowCount(const QModelIndex &pParent) const {
    return pParent.isValid() ? 0 : myToldCount;
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
    : QComboBox(&pParent), ControlView(pActs, pBox), myBox(pBox), myEntries(pBox) {
    const QScopedValueRollback showing(myIsShowing, true);
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    // The form sets the size. To measure 200,000 entries for it would take a noticeable time.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(12);
    setModel(&myEntries);
    auto *list = qobject_cast<QListView *>(view());
    list->setUniformItemSizes(true);
    list->setLayoutMode(QListView::SinglePass);
    list->setFont(font());
    PrepareEdit();
    connect(this, &QComboBox::activated, this,
            [this](int pIndex) { myActs.Handle([&] { myBox.UserPicks(pIndex); }); });
}

ComboBoxView::~ComboBoxView() {
    // Qt's part of the box is destroyed after the entries, and must not read them then.
    disconnect(this, nullptr, this, nullptr);
    disconnect(lineEdit(), nullptr, this, nullptr);
}

void ComboBoxView::PrepareEdit() {
    QLineEdit &edit = *lineEdit();
    edit.setMaxLength(mostCharacters);
    // At these signals Qt would search the list for the text and pick an entry. Only the user picks.
    disconnect(&edit, &QLineEdit::editingFinished, this, nullptr);
    disconnect(&edit, &QLineEdit::returnPressed, this, nullptr);
    connect(&edit, &QLineEdit::textChanged, this, [this](const QString &pText) { Edited(pText); });
    connect(&edit, &QLineEdit::cursorPositionChanged, this, [this] { CaretMoved(); });
    connect(&edit, &QLineEdit::selectionChanged, this, [this] { CaretMoved(); });
}

void ComboBoxView::Edited(const QString &pText) {
    if (myIsShowing) {
        return;
    }
    myActs.Note([&] { myBox.UserEdits(FromQt(pText), lineEdit()->cursorPosition()); });
}

void ComboBoxView::CaretMoved() {
    const QLineEdit &edit = *lineEdit();
    if (!myIsShowing) {
        const bool selects = edit.hasSelectedText();
        myBox.UserSelects(selects ? edit.selectionStart() : edit.cursorPosition(),
                          selects ? edit.selectionLength() : 0);
    }
}

void ComboBoxView::Show() {
    const QScopedValueRollback showing(myIsShowing, true);
    lineEdit()->setAccessibleName(accessibleName());
    lineEdit()->setAccessibleDescription(accessibleDescription());
    myEntries.Sync();
    ShowText();
}

void ComboBoxView::ShowText() {
    QLineEdit &edit = *lineEdit();
    const QString shown = Shown(myBox.Text(), edit);
    if (edit.text() != shown) {
        edit.setText(shown);
    }
    const int start = myBox.SelStart();
    const int length = myBox.SelLength();
    if (length > 0 && (edit.selectionStart() != start || edit.selectionLength() != length)) {
        // From end to start, so that the caret and the typed text stay visible.
        edit.setSelection(start + length, -length);
    } else if (length == 0 && (edit.hasSelectedText() || edit.cursorPosition() != start)) {
        edit.setCursorPosition(start);
    }
}

int ComboBoxView::NearestIndex() const {
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
    const int index = std::clamp(NearestIndex() + pStep, 0, myBox.ListCount() - 1);
    myActs.Handle([&] { myBox.UserPicks(index); });
}

void ComboBoxView::showPopup() {
    {
        // Only the popup needs Qt's own current entry. To set it overwrites the text.
        const QScopedValueRollback showing(myIsShowing, true);
        setCurrentIndex(NearestIndex());
        ShowText();
    }
    WidenPopup();
    QComboBox::showPopup();
}

void ComboBoxView::WidenPopup() {
    // To measure all of a long list would take a noticeable time.
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

void ComboBoxView::keyPressEvent(QKeyEvent *pEvent) {
    myBox.UserPressesKey(VirtualKey(*pEvent));
    const bool isPlain = !(pEvent->modifiers() & (Qt::AltModifier | Qt::ControlModifier));
    const int page = maxVisibleItems();
    const bool hasEntries = myBox.ListCount() > 0;
    if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter || IsAccessKey(*pEvent)) {
        pEvent->ignore(); // The form may have a default button or an access key for it.
    } else if (isPlain && (pEvent->key() == Qt::Key_Up || pEvent->key() == Qt::Key_Down)) {
        if (hasEntries) {
            Step(pEvent->key() == Qt::Key_Up ? -1 : 1);
        }
    } else if (isPlain && (pEvent->key() == Qt::Key_PageUp || pEvent->key() == Qt::Key_PageDown)) {
        if (hasEntries) {
            Step(pEvent->key() == Qt::Key_PageUp ? -page : page);
        }
    } else {
        QComboBox::keyPressEvent(pEvent);
    }
}

void ComboBoxView::keyReleaseEvent(QKeyEvent *pEvent) {
    QComboBox::keyReleaseEvent(pEvent);
    if (!pEvent->isAutoRepeat()) {
        myActs.Handle([&] { myBox.UserReleasesKey(VirtualKey(*pEvent), ShiftState(*pEvent)); });
    }
}

void ComboBoxView::wheelEvent(QWheelEvent *pEvent) {
    // Over a closed box it would change a field that the user only scrolls past.
    pEvent->ignore();
}
