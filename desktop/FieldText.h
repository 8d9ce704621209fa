#pragma once
/// The text of a field, between its control and the line edit that shows it: what the user's edits make of
/// it, with undo kept, and what is shown of a text that is too long to edit.
#include "forms/Control.h"

#include <QLineEdit>

#include <functional>
#include <string>

class FieldText {
public:
    /// Both must outlive this object. pTell hands an edited text to the control.
    FieldText(QLineEdit &pEdit, const TextField &pField, std::function<void(const std::string &)> pTell);

    /// The line edit's text has changed, by whatever hand.
    void Edited();

    /// Shows the control's text. Returns whether the line edit had another one.
    bool Show();

    /// Whether the line edit changes by the program's hand, which is no edit.
    bool IsShowing() const { return myIsShowing; }

private:
    void Replace(const QString &pText);
    void DropEdit();

    QLineEdit &myEdit;
    const TextField &myField;
    std::function<void(const std::string &)> myTell;
    bool myIsShowing = false;
    bool myIsEditing = false;
    bool myIsCut = false; ///< the line edit shows only the start of the text
};
