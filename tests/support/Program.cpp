#include "tests/support/Program.h"

#include "forms/ComboBox.h"
#include "forms/Controls.h"

#include <regex>
#include <stdexcept>
#include <vector>

namespace {

/// The controls of this kind.
template <typename Kind> std::vector<Kind *> AllOf(const Form &pForm) {
    std::vector<Kind *> all;
    for (const auto &control : pForm.Controls()) {
        if (auto *const found = dynamic_cast<Kind *>(control.get())) {
            all.push_back(found);
        }
    }
    return all;
}

/// The caption without the mark of the access key. A button that shows a picture goes by its tooltip.
std::string NameOf(const CommandButton &pButton) {
    std::string name = pButton.Caption().empty() ? pButton.ToolTipText() : pButton.Caption();
    std::erase(name, '&');
    return name;
}

/// The user selects what the field holds and types pText. In a combo box one key types all of it, and its
/// release may complete the text.
void TypeOver(TextField &pField, const std::string &pText) {
    if (auto *const box = dynamic_cast<ComboBox *>(&pField)) {
        box->UserPressesKey(pText.empty() ? FieldKey::Erases : FieldKey::TypesText);
        box->UserEdits(pText, static_cast<int>(pText.size()));
        box->UserReleasesKey(FieldKey::TypesText);
    } else {
        dynamic_cast<TextBox &>(pField).UserEdits(pText);
    }
}

} // namespace

std::string CrLf(std::string_view pText) {
    return std::regex_replace(std::string(pText), std::regex("\n"), "\r\n");
}

Program::Program(std::string pExeName) : myExeName(std::move(pExeName)) {
    myFiles.Write(myExeName + ".dat", CrLf("3,4\nName,50,0,-\nCity,30,1,cities.txt\nKind,20,2,kinds.txt\n"));
    myFiles.Write("cities.txt", CrLf("Paris\nRome\n"));
    myFiles.Write("kinds.txt", CrLf("Abacus\nApple\nBanana\n"));
}

Program &Program::Act(const std::function<void()> &pAct) {
    Scarcity::isCounting = true;
    try {
        myRuntime->Run(pAct);
        myRuntime->EndIfNoFormIsLoaded();
    } catch (const ProgramEnded &end) {
        myExitStatus = end.status;
    }
    Scarcity::isCounting = false;
    return *this;
}

Program &Program::Start(const std::string &pCommand) {
    myModule.reset(); // Before the controls that it serves.
    myFocus = nullptr;
    myRuntime = std::make_unique<Runtime>(myScript, MakeAppRecord(myFiles.File(myExeName)), pCommand);
    return Act([&] {
        myModule = std::make_unique<modMain>(*myRuntime);
        myModule->Main();
        myForm = myScript.Shown().back();
    });
}

Program &Program::At(Control &pControl, const std::function<void()> &pAct) {
    auto *box = dynamic_cast<ComboBox *>(myFocus);
    if (box != nullptr && box != &pControl && !box->MayLoseFocus()) {
        return *this;
    }
    myFocus = &pControl;
    return Act(pAct);
}

Program &Program::Type(const std::string &pHeading, const std::string &pText) {
    for (TextField *const field : AllOf<TextField>(Main())) {
        if (field->AccessibleName() == pHeading) {
            return At(*field, [&] { TypeOver(*field, pText); });
        }
    }
    throw std::logic_error("No field has the heading " + pHeading);
}

Program &Program::Press(const std::string &pButton) {
    for (CommandButton *const button : AllOf<CommandButton>(*myScript.Shown().back())) {
        if (NameOf(*button) == pButton) {
            return At(*button, [&] { button->Press(); });
        }
    }
    throw std::logic_error("The window on top has no button " + pButton);
}

Program &Program::Pick(int pRow) {
    return At(List(), [&] { List().Pick(pRow + 1); });
}

Program &Program::Choose(const std::string &pEntry) {
    return Act([&] { dynamic_cast<MenuItem &>(Main().Controls("mnu" + pEntry)).Choose(); });
}

std::string Program::Fields() const {
    std::string text;
    for (const TextField *const field : AllOf<TextField>(Main())) {
        text += (text.empty() ? "" : " ") + field->AccessibleName() + "[" + field->Text() + "]";
    }
    return text;
}

std::string Program::Rows() const {
    std::string text;
    for (int i = 1; i <= List().ListItems.Count(); ++i) {
        const ListItem &item = List().ListItems(i);
        text += (i == List().SelectedIndex() ? "> " : "  ") + std::string(item.Text());
        for (int c = 1; c <= item.SubItemCount(); ++c) {
            text += "|" + std::string(item.SubItems(c));
        }
        text += "\n";
    }
    return text;
}

std::string Program::Buttons() const {
    std::string text;
    for (const CommandButton *const button : AllOf<CommandButton>(Main())) {
        const std::string name = NameOf(*button);
        text += (text.empty() ? "" : " ") + (button->Enabled() ? name : "(" + name + ")");
    }
    return text;
}
