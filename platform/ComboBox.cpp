#include "platform/ComboBox.h"

#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int keyBack = 8;
constexpr int keyDelete = 46;

} // namespace

ComboBox::ComboBox(Form &pParent, std::string pName) : SizedControl(pParent, std::move(pName)) {
    SetHeight(fixedHeightTwips);
}

void ComboBox::Height(double /*pTwips*/) {
    throw NoSuchProperty("The height of a ComboBox is read-only");
}

void ComboBox::Move(double pLeft, double pTop, double pWidth) {
    Left(pLeft);
    Top(pTop);
    Width(pWidth);
}

void ComboBox::Text(const std::string &pText) {
    myText = pText;
    myListIndex = -1;
    myWasTypedIn = false;
    SelStart(0);
}

void ComboBox::AddItem(std::string pEntry) {
    myList.push_back(std::move(pEntry));
    Touch();
}

void ComboBox::Clear() {
    myList.clear();
    myListIndex = -1;
    Touch();
}

void ComboBox::ListIndex(int pIndex) {
    myListIndex = pIndex;
    if (pIndex >= 0) {
        myText = List(pIndex);
        myWasTypedIn = false; // A text that was picked, say, is no typed one.
        SelStart(0);
    }
    Touch();
}

int ComboBox::FindString(const std::string &pStart) const {
    const auto begins = [&](const std::string &pEntry) { return BeginsWithIgnoringCase(pEntry, pStart); };
    const auto found = std::find_if(myList.begin(), myList.end(), begins);
    return found == myList.end() ? -1 : static_cast<int>(found - myList.begin());
}

void ComboBox::SelStart(int pStart) {
    mySelStart = std::clamp(pStart, 0, Utf16Length(myText));
    mySelLength = 0;
    Touch();
}

void ComboBox::SelLength(int pLength) {
    mySelLength = std::clamp(pLength, 0, Utf16Length(myText) - mySelStart);
    Touch();
}

void ComboBox::UserEdits(const std::string &pText, int pSelStart) {
    if (pText == myText) {
        return;
    }
    Text(WithoutNewLineBreaks(myText, pText));
    // Counted from the end, since a CR LF in front of the caret has become one character.
    SelStart(pSelStart + Utf16Length(myText) - Utf16Length(pText));
    myWasTypedIn = myLastKeyDown != keyBack && myLastKeyDown != keyDelete;
    myLastKeyDown = 0; // A text that an input method brings comes without a key of its own.
}

void ComboBox::UserSelects(int pSelStart, int pSelLength) {
    mySelStart = pSelStart;
    mySelLength = pSelLength;
}

void ComboBox::UserPicks(int pIndex) {
    ListIndex(pIndex);
    SelLength(Utf16Length(myText)); // The next letter typed is the first of another text.
}

bool ComboBox::TakeTyped() {
    return std::exchange(myWasTypedIn, false);
}

bool ComboBox::MayLoseFocus() const {
    bool cancel = false;
    Validate.Raise(cancel);
    return !cancel;
}
