#include "tests/support/Program.h"

#include "app/modMain.h"
#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "platform/ListView.h"
#include "platform/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int keyDelete = 46;
constexpr int keyBeyondAscii = 128;

std::string WithoutAmpersand(std::string pCaption) {
    std::erase(pCaption, '&');
    return pCaption;
}

std::string NameOf(const CommandButton &pButton) {
    return pButton.Caption().empty() ? pButton.ToolTipText() : WithoutAmpersand(pButton.Caption());
}

std::string NameOf(const MenuItem &pItem) {
    return WithoutAmpersand(pItem.Caption());
}

/// The control of this kind and name on the forms on screen, the topmost first.
template <typename Kind> Kind &Find(const ScriptedDesktop &pDesktop, const std::string &pName) {
    for (auto form = pDesktop.Shown().rbegin(); form != pDesktop.Shown().rend(); ++form) {
        for (const auto &control : (*form)->Controls()) {
            auto *found = dynamic_cast<Kind *>(control.get());
            if (found != nullptr && NameOf(*found) == pName) {
                return *found;
            }
        }
    }
    throw std::logic_error("Nothing on the screen is named " + pName);
}

std::size_t ByteAt(std::string_view pText, int pUtf16Unit) {
    std::size_t at = 0;
    while (Utf16Length(pText.substr(0, at)) < pUtf16Unit) {
        at += CodePointAt(pText, at).length;
    }
    return at;
}

std::string Before(const ComboBox &pBox) {
    return pBox.Text().substr(0, ByteAt(pBox.Text(), pBox.SelStart()));
}

std::string Behind(const ComboBox &pBox) {
    return pBox.Text().substr(ByteAt(pBox.Text(), pBox.SelStart() + pBox.SelLength()));
}

int KeyOf(std::string_view pCharacter) {
    const auto lead = static_cast<unsigned char>(pCharacter.front());
    const bool isLetter = (lead >= 'a' && lead <= 'z') || (lead >= 'A' && lead <= 'Z');
    const bool isOwnCode = lead == ' ' || (lead >= '0' && lead <= '9');
    return isLetter ? lead & ~0x20 : isOwnCode ? lead : keyBeyondAscii;
}

void PressKey(ComboBox &pBox, int pKey, const std::string &pInserts) {
    const std::string before = Before(pBox) + pInserts;
    pBox.UserPressesKey(pKey);
    pBox.UserEdits(before + Behind(pBox), Utf16Length(before));
    pBox.UserReleasesKey(pKey, 0);
}

void TypeOver(ComboBox &pBox, std::string_view pText) {
    pBox.UserSelects(0, Utf16Length(pBox.Text()));
    if (pText.empty()) {
        PressKey(pBox, keyDelete, "");
    }
    while (!pText.empty()) {
        const std::string_view character = pText.substr(0, CodePointAt(pText, 0).length);
        PressKey(pBox, KeyOf(character), std::string(character));
        pText.remove_prefix(character.size());
    }
}

} // namespace

std::string CrLf(std::string_view pText) {
    std::string text;
    for (const char character : pText) {
        text += character == '\n' ? "\r\n" : std::string(1, character);
    }
    return text;
}

Program::Program(std::string pExeName) : myExeName(std::move(pExeName)) {
    myFiles.Write(myExeName + ".dat", CrLf(R"(3,4
"Name","50","0","-"
"City","30","1","cities.txt"
"Kind","20","2","kinds.txt"
)"));
    myFiles.Write("cities.txt", CrLf("Paris\nRome\n"));
    myFiles.Write("kinds.txt", CrLf("Abacus\nApple\nBanana\n"));
}

Program::~Program() = default;

Program &Program::Act(const std::function<void()> &pAct) {
    if (myExitStatus) {
        ADD_FAILURE() << "The program has ended; nobody can do anything with it.";
        return *this;
    }
    try {
        pAct();
        myRuntime->EndIfNoFormIsLoaded();
    } catch (const ProgramEnded &end) {
        myExitStatus = end.status;
    }
    return *this;
}

Program &Program::Start(const std::string &pCommand) {
    myRuntime = std::make_unique<Runtime>(myScript, MakeAppRecord(myFiles.File(myExeName)), pCommand);
    myModule = std::make_unique<modMain>(*myRuntime);
    return Act([&] {
        myModule->Main();
        myForm = myScript.Shown().back();
        myStartWidth = myForm->ClientWidth();
        myStartHeight = myForm->ClientHeight();
    });
}

Program &Program::StartWith(const std::vector<std::string> &pRecords) {
    std::string rows;
    for (const std::string &record : pRecords) {
        rows += '"';
        for (const char character : record) {
            rows += character == '|' ? "\",\"" : std::string(character == '"' ? 2 : 1, character);
        }
        rows += "\"\n";
    }
    return Start(myFiles.Write("data.dat", CrLf(std::to_string(pRecords.size()) + ",3\n" + rows)));
}

bool Program::TakesFocus(Control &pControl) {
    const auto *box = dynamic_cast<const ComboBox *>(myFocus);
    if (box != nullptr && box != &pControl && !box->MayLoseFocus()) {
        return false;
    }
    myFocus = &pControl;
    return true;
}

Program &Program::Type(const std::string &pHeading, const std::string &pText) {
    return Act([&] {
        Control &field = FieldUnder(pHeading);
        if (!TakesFocus(field)) {
            return;
        }
        if (auto *box = dynamic_cast<ComboBox *>(&field)) {
            TypeOver(*box, pText);
        } else {
            dynamic_cast<TextBox &>(field).UserEdits(pText);
        }
    });
}

Program &Program::Press(const std::string &pButton) {
    return Act([&] {
        auto &button = Find<CommandButton>(myScript, pButton);
        if (TakesFocus(button)) {
            button.Press();
        }
    });
}

Program &Program::Pick(int pRow) {
    return Act([&] {
        auto &list = dynamic_cast<ListView &>(Main().Controls("ListView1"));
        if (TakesFocus(list)) {
            list.Pick(pRow + 1);
        }
    });
}

Program &Program::Choose(const std::string &pEntry) {
    return Act([&] { Find<MenuItem>(myScript, pEntry).Choose(); });
}

Program &Program::SaveAs(const std::string &pPath) {
    myScript.ExpectSave(pPath);
    return Press("Save As");
}

Program &Program::PressEscape() {
    return Act([&] { myScript.Shown().back()->UserPressesEscape(); });
}

Program &Program::CloseWindow() {
    return Act([&] { Main().UserCloses(); });
}

Program &Program::Drag(float pWider, float pTaller, int pState) {
    return Act([&] { Main().UserSizes(myStartWidth + pWider, myStartHeight + pTaller, pState); });
}

Form &Program::Main() const {
    if (myForm == nullptr) {
        throw std::logic_error("The main window never came on the screen");
    }
    return *myForm;
}

Control &Program::FieldUnder(const std::string &pHeading) const {
    for (const auto &control : Main().Controls()) {
        const auto *label = dynamic_cast<const Label *>(control.get());
        if (label != nullptr && label->Caption() == " " + pHeading) {
            return Main().Controls("cbo" + label->Name().substr(3));
        }
    }
    throw std::logic_error("No field is headed " + pHeading);
}

ComboBox &Program::Combo(const std::string &pHeading) const {
    return dynamic_cast<ComboBox &>(FieldUnder(pHeading));
}

std::string Program::Field(const std::string &pHeading) const {
    const Control &field = FieldUnder(pHeading);
    const auto *box = dynamic_cast<const ComboBox *>(&field);
    if (box == nullptr || box->SelLength() == 0) {
        return field.Text();
    }
    const std::string front = Before(*box);
    const std::string back = Behind(*box);
    return front + "{" + box->Text().substr(front.size(), box->Text().size() - front.size() - back.size()) +
           "}" + back;
}

std::string Program::Fields() const {
    std::string text;
    for (const auto &control : Main().Controls()) {
        if (control->Name().starts_with("lbl")) {
            const std::string &caption = dynamic_cast<const Label &>(*control).Caption();
            const Control &field = Main().Controls("cbo" + control->Name().substr(3));
            text += (text.empty() ? "" : " ") + caption.substr(1) + "[" + field.Text() + "]";
        }
    }
    return text;
}

std::string Program::Rows() const {
    const auto &list = dynamic_cast<const ListView &>(Main().Controls("ListView1"));
    std::string text;
    for (int i = 1; i <= list.ListItems.Count(); ++i) {
        const ListItem &item = list.ListItems(i);
        text += (i == list.SelectedIndex() ? "> " : "  ") + item.Text();
        for (int c = 1; c <= item.SubItemCount(); ++c) {
            text += "|" + item.SubItems(c);
        }
        text += "\n";
    }
    return text;
}

std::string Program::Buttons() const {
    std::string text;
    for (const auto &control : Main().Controls()) {
        if (const auto *button = dynamic_cast<const CommandButton *>(control.get())) {
            const std::string name = NameOf(*button);
            text += (text.empty() ? "" : " ") + (button->Enabled() ? name : "(" + name + ")");
        }
    }
    return text;
}

std::string Program::Window() const {
    return Main().Caption() + "\n" + Fields() + "\n" + Rows() + Buttons() + "\n";
}
