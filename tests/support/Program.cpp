#include "tests/support/Program.h"

#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "platform/ListView.h"

#include <cctype>
#include <regex>
#include <stdexcept>
#include <vector>

namespace {

/// The caption, without its mark of the key, or for a picture the tooltip.
std::string NameOf(const CommandButton &pButton) {
    std::string name = pButton.Caption().empty() ? pButton.ToolTipText() : pButton.Caption();
    std::erase(name, '&');
    return name;
}

/// The button of this name on the forms on screen, the topmost first.
CommandButton &Button(const ScriptedDesktop &pDesktop, const std::string &pName) {
    for (auto form = pDesktop.Shown().rbegin(); form != pDesktop.Shown().rend(); ++form) {
        for (const auto &control : (*form)->Controls()) {
            auto *found = dynamic_cast<CommandButton *>(control.get());
            if (found != nullptr && NameOf(*found) == pName) {
                return *found;
            }
        }
    }
    throw std::logic_error("Nothing on the screen is named " + pName);
}

void PressKey(ComboBox &pBox, int pKey, const std::string &pInserts) {
    const auto from = static_cast<std::size_t>(pBox.SelStart());
    std::string text = pBox.Text();
    text.replace(from, static_cast<std::size_t>(pBox.SelLength()), pInserts);
    pBox.UserPressesKey(pKey);
    pBox.UserEdits(text, static_cast<int>(from + pInserts.size()));
    pBox.UserReleasesKey(pKey, 0);
}

void TypeOver(ComboBox &pBox, const std::string &pText) {
    pBox.UserSelects(0, static_cast<int>(pBox.Text().size()));
    PressKey(pBox, 46, ""); // Del
    for (const char character : pText) {
        PressKey(pBox, std::toupper(character), std::string(1, character));
    }
}

/// The fields with their headings, from the left.
std::vector<std::pair<std::string, TextField *>> FieldsOf(const Form &pForm) {
    std::vector<std::pair<std::string, TextField *>> fields;
    for (const auto &control : pForm.Controls()) {
        if (const auto *label = dynamic_cast<const Label *>(control.get())) {
            auto &field = pForm.Controls("cbo" + label->Name().substr(3));
            fields.emplace_back(label->Caption().substr(1), &dynamic_cast<TextField &>(field));
        }
    }
    return fields;
}

} // namespace

std::string CrLf(std::string_view pText) {
    return std::regex_replace(std::string(pText), std::regex("\n"), "\r\n");
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

Program &Program::Act(const std::function<void()> &pAct) {
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
    });
}

Program &Program::At(Control &pControl, const std::function<void()> &pAct) {
    const auto *box = dynamic_cast<const ComboBox *>(myFocus);
    if (box != nullptr && box != &pControl && !box->MayLoseFocus()) {
        return *this;
    }
    myFocus = &pControl;
    return Act(pAct);
}

Program &Program::Type(const std::string &pHeading, const std::string &pText) {
    for (const auto &[heading, field] : FieldsOf(Main())) {
        if (auto *box = dynamic_cast<ComboBox *>(field); box != nullptr && heading == pHeading) {
            At(*box, [&] { TypeOver(*box, pText); });
        } else if (heading == pHeading) {
            At(*field, [&, &text = dynamic_cast<TextBox &>(*field)] { text.UserEdits(pText); });
        }
    }
    return *this;
}

Program &Program::Press(const std::string &pButton) {
    CommandButton &button = Button(myScript, pButton);
    return At(button, [&] { button.Press(); });
}

Program &Program::Pick(int pRow) {
    auto &list = dynamic_cast<ListView &>(Main().Controls("ListView1"));
    return At(list, [&] { list.Pick(pRow + 1); });
}

Program &Program::Choose(const std::string &pEntry) {
    return Act([&] { dynamic_cast<MenuItem &>(Main().Controls("mnu" + pEntry)).Choose(); });
}

std::string Program::Fields() const {
    std::string text;
    for (const auto &[heading, field] : FieldsOf(Main())) {
        text += (text.empty() ? "" : " ") + heading + "[" + field->Text() + "]";
    }
    return text;
}

std::string Program::Rows() const {
    const auto &list = dynamic_cast<const ListView &>(Main().Controls("ListView1"));
    std::string text;
    for (int i = 1; i <= list.ListItems.Count(); ++i) {
        const ListItem &item = list.ListItems(i);
        text += (i == list.SelectedIndex() ? "> " : "  ") + std::string(item.Text());
        for (int c = 1; c <= item.SubItemCount(); ++c) {
            text += "|" + std::string(item.SubItems(c));
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
