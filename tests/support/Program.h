#pragma once
/// The whole program under the user's hands: it starts on a command line, takes the user's verbs one after
/// another as a desktop would pass them on, and shows its window as text. Its folder is a fresh one, in which
/// the test puts the files; messages and file dialogs go by the script.
#include "platform/Form.h"
#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/TemporaryFolder.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class ComboBox;
class modMain;

/// pText with each LF made CR LF, as tables and list files end their lines.
std::string CrLf(std::string_view pText);

class Program {
public:
    /// Puts the specification of three fields beside the program: Name, a text box; City, listed (Paris,
    /// Rome); Kind, listed and completed (Abacus, Apple, Banana).
    /// pExeName is the name of the program's file.
    explicit Program(std::string pExeName = "NorvoEditDat");
    ~Program();

    /// The program's folder.
    TemporaryFolder &Files() { return myFiles; }
    ScriptedDesktop &Script() { return myScript; }

    /// Starts the program on this command text.
    Program &Start(const std::string &pCommand = "");
    /// Starts it on the file "data.dat" of these records; "|" stands between the cells of one.
    Program &StartWith(const std::vector<std::string> &pRecords);

    // The verbs. What would take the focus from a field that refuses to lose it isn't carried out.
    /// Types pText into the field under pHeading in place of what it holds, key by key.
    Program &Type(const std::string &pHeading, const std::string &pText);
    /// Presses the button of that caption or, for one that shows a picture, that tooltip.
    Program &Press(const std::string &pButton);
    /// Picks row pRow of the list, from 0.
    Program &Pick(int pRow);
    /// Chooses the menu entry of that caption.
    Program &Choose(const std::string &pEntry);
    /// Presses Save As and gives pPath in the dialog.
    Program &SaveAs(const std::string &pPath);
    Program &PressEscape();
    Program &CloseWindow();
    /// Drags the window's frame, from its starting size, by so many twips.
    Program &Drag(float pWider, float pTaller, int pState = Form::stateNormal);

    /// The main window: its caption, its fields, the rows with the selected one marked, and the buttons,
    /// those in parentheses disabled.
    std::string Window() const;
    std::string Fields() const;
    std::string Rows() const;
    std::string Buttons() const;

    /// The text of the field under pHeading, what is selected of it in braces.
    std::string Field(const std::string &pHeading) const;
    ComboBox &Combo(const std::string &pHeading) const;

    /// The main window's form, also after it was closed.
    Form &Main() const;
    /// What the program ended with; nothing while it runs.
    std::optional<int> ExitStatus() const { return myExitStatus; }

private:
    Program &Act(const std::function<void()> &pAct);
    bool TakesFocus(Control &pControl);
    Control &FieldUnder(const std::string &pHeading) const;

    std::string myExeName;
    TemporaryFolder myFiles;
    ScriptedDesktop myScript;
    std::unique_ptr<Runtime> myRuntime;
    std::unique_ptr<modMain> myModule;
    Form *myForm = nullptr;
    Control *myFocus = nullptr;
    std::optional<int> myExitStatus;
    float myStartWidth = 0;
    float myStartHeight = 0;
};
