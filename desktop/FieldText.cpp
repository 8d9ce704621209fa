#include "desktop/FieldText.h"

#include "desktop/TextCodec.h"
#include "text/Difference.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

namespace {

/// In bytes. A field shows only the start of a longer text: Qt would measure all of it at each key and each
/// blink of the caret. The record keeps the whole text until the user replaces it.
constexpr std::size_t mostEdited = 1'000'000;

} // namespace

FieldText::FieldText(QLineEdit &pEdit, const TextField &pField,
                     std::function<void(const std::string &)> pTell)
    : myEdit(pEdit), myField(pField), myTell(std::move(pTell)) {
    myEdit.setMaxLength(std::numeric_limits<int>::max());
}

void FieldText::Edited() {
    if (myIsShowing) {
        return;
    }
    QString text = myEdit.text();
    if (myIsCut) {
        const Difference typed = DifferenceBetween(ToQtLine(myField.Text(), mostShown), text);
        text = text.mid(typed.start, typed.after);
    }
    const std::string bytes = FromQt(text);
    if (bytes.size() > mostEdited) {
        DropEdit();
        return;
    }
    const qsizetype afterCaret = myEdit.text().size() - myEdit.cursorPosition();
    {
        const QScopedValueRollback editing(myIsEditing, true);
        myTell(bytes);
    }
    const QScopedValueRollback showing(myIsShowing, true);
    const QString accepted = ToQt(myField.Text());
    if (myIsCut) {
        myIsCut = false;
        myEdit.setText(accepted); // Forgets what can be undone, which would be the start alone.
    } else if (accepted != myEdit.text()) {
        Replace(accepted);
        myEdit.setCursorPosition(static_cast<int>(accepted.size() - afterCaret));
    }
}

void FieldText::Replace(const QString &pText) {
    // As an edit in place of the user's own. setText would forget what can be undone.
    myEdit.undo();
    const Difference change = DifferenceBetween(myEdit.text(), pText);
    myEdit.setSelection(static_cast<int>(change.start), static_cast<int>(change.before));
    myEdit.insert(pText.mid(change.start, change.after));
}

void FieldText::DropEdit() {
    const QScopedValueRollback showing(myIsShowing, true);
    myEdit.undo();
    Show();
}

bool FieldText::Show() {
    if (myIsEditing) {
        return false; // What the control has made of the edit follows.
    }
    const QScopedValueRollback showing(myIsShowing, true);
    myIsCut = myField.Text().size() > mostEdited;
    const QString shown = myIsCut ? ToQtLine(myField.Text(), mostShown) : ToQt(myField.Text());
    if (shown == myEdit.text()) {
        return false;
    }
    myEdit.setText(shown);
    return true;
}
