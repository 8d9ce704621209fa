#include "forms/Controls.h"

#include "system/Memory.h"
#include "text/Text.h"

void TextBox::UserEdits(const std::string &pText) {
    const Headroom headroom;
    Text(WithoutNewLineBreaks(Text(), pText));
}

void CommandButton::Press() const {
    if (Enabled()) {
        Click.Raise();
    }
}

void MenuItem::Choose() const {
    if (Enabled()) {
        Click.Raise();
    }
}
