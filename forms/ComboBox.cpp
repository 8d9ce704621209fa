#include "forms/ComboBox.h"

#include "system/Memory.h"
#include "text/Text.h"

#include <algorithm>
#include <iterator>
#include <utility>

ComboBox::ComboBox(Form &pParent, std::string pName) : TextField(pParent, std::move(pName)) {
    SizedControl::Height(fixedHeightTwips);
}

void ComboBox::Text(std::string pText) {
    TextField::Text(std::move(pText));
    myListIndex = -1;
    myWasTypedIn = false;
    myIsRefusing = false;
    SelStart(0);
}

void ComboBox::AddItem(std::string pEntry) {
    myList.push_back(std::move(pEntry));
    Touch();
}

void ComboBox::AddItems(std::vector<std::string> pEntries) {
    if (myList.empty()) {
        myList = std::move(pEntries);
    } else {
        myList.reserve(myList.size() + pEntries.size());
        std::move(pEntries.begin(), pEntries.end(), std::back_inserter(myList));
    }
    Touch();
}

void ComboBox::Clear() {
    myList.clear();
    myListIndex = -1;
    Touch();
}

void ComboBox::ListIndex(int pIndex) {
    if (pIndex >= 0) {
        TextField::Text(List(pIndex));
        myWasTypedIn = false; // A picked entry is not typed text.
        myIsRefusing = false;
        SelStart(0);
    }
    myListIndex = pIndex;
    Touch();
}

int ComboBox::FindString(const std::string &pStart) const {
    const auto begins = [&](const std::string &pEntry) { return BeginsWithIgnoringCase(pEntry, pStart); };
    const auto found = std::find_if(myList.begin(), myList.end(), begins);
    return found == myList.end() ? -1 : static_cast<int>(found - myList.begin());
}

void ComboBox::SelStart(int pStart) {
    mySelStart = std::clamp(pStart, 0, Utf16Length(Text()));
    mySelLength = 0;
    Touch();
}

void ComboBox::SelLength(int pLength) {
    mySelLength = std::clamp(pLength, 0, Utf16Length(Text()) - mySelStart);
    Touch();
}

void ComboBox::UserEdits(const std::string &pText, int pSelStart) {
    if (pText == Text()) {
        return;
    }
    const bool wasRefusing = myIsRefusing;
    const Headroom headroom;
    Text(WithoutNewLineBreaks(Text(), pText));
    myIsRefusing = wasRefusing && !MayLoseFocus();
    // A CR LF before the caret has become one character, so the caret counts from the end.
    SelStart(pSelStart + Utf16Length(Text()) - Utf16Length(pText));
    myWasTypedIn = myLastKeyDown != FieldKey::Erases;
    myLastKeyDown = FieldKey::Neither; // Text from an input method comes without a key of its own.
}

void ComboBox::UserSelects(int pSelStart, int pSelLength) {
    mySelStart = pSelStart;
    mySelLength = pSelLength;
}

void ComboBox::UserPicks(int pIndex) {
    ListIndex(pIndex);
    SelLength(Utf16Length(Text())); // The next letter typed replaces the text.
}

bool ComboBox::IsNewlyTypedIn() {
    return std::exchange(myWasTypedIn, false);
}

bool ComboBox::MayLoseFocus() {
    bool cancel = false;
    Validate.Raise(cancel);
    if (cancel != myIsRefusing) {
        myIsRefusing = cancel;
        Touch();
    }
    return !cancel;
}
