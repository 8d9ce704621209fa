#include "ui/clsCombo.h"

#include "forms/ComboBox.h"
#include "system/Files.h"
#include "system/Memory.h"
#include "text/Text.h"

#include <utility>
#include <vector>

void clsCombo::LeaveBox() {
    if (myCB != nullptr) {
        myCB->KeyUp.Disconnect(this);
        myCB->Validate.Disconnect(this);
    }
}

void clsCombo::cb(ComboBox &pCB) {
    LeaveBox();
    myCB = &pCB;
    myCB->KeyUp.Connect([this](FieldKey Key) { myCB_KeyUp(Key); }, this);
    myCB->Validate.Connect([this](bool &Cancel) { myCB_Validate(Cancel); }, this);
}

void clsCombo::Clear() {
    myCB->Clear();
}

void clsCombo::LoadFromTxtFile(const std::string &pFn) {
    myFault.Words({});
    if (Dir(pFn).empty()) {
        return;
    }
    const bool isDone = HasMemoryFor([&] {
        const Headroom headroom;
        std::vector<std::string> entries; // First all of them, since half a list would refuse good texts.
        TextInput file(pFn);
        while (!file.AtEnd()) {
            entries.emplace_back(file.LineInput());
        }
        myFault.Words(file.Fault());
        if (myFault.Words().empty()) {
            myCB->AddItems(std::move(entries));
        }
    });
    if (!isDone) {
        myFault.Words("There is not enough memory for it");
    }
}

void clsCombo::myCB_KeyUp(FieldKey Key) {
    // In fast typing both characters are there when the first key is released. Completing again when the
    // second is released would take the completed part for typed text.
    if (myMode == 2 && Key == FieldKey::TypesText && myCB->IsNewlyTypedIn()) {
        AutoComplete(*myCB);
    }
}

void clsCombo::AutoComplete(ComboBox &pCombo) {
    const int typed = Utf16Length(pCombo.Text());
    if (typed == 0) {
        return;
    }
    const int found = pCombo.FindString(pCombo.Text());
    pCombo.ListIndex(found);
    if (found < 0) {
        return; // The user may be putting it right in the middle, so caret and selection stay there.
    }
    pCombo.SelStart(typed);
    pCombo.SelLength(Utf16Length(pCombo.Text()) - typed);
}

void clsCombo::myCB_Validate(bool &Cancel) const {
    if (myMode <= 0 || myCB->ListCount() == 0) {
        return;
    }
    for (int i = 0; i < myCB->ListCount(); ++i) {
        if (EqualIgnoringCase(myCB->List(i), myCB->Text())) {
            return;
        }
    }
    Cancel = true;
}
