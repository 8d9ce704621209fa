#pragma once
/// The whole program under the user's hands: it starts on a command line, takes the user's verbs one after
/// another as a desktop would pass them on, and shows its window as text. Its folder is a fresh one, in which
/// the test puts the files; messages and file dialogs go by the script.
#include "app/VersionRecord.h"
#include "app/modMain.h"
#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/TemporaryFolder.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// pText with each LF made CR LF, as tables and list files end their lines.
std::string CrLf(std::string_view pText);

class Program {
public:
    /// Puts the specification of three fields beside the program: Name, a text box; City, listed (Paris,
    /// Rome); Kind, listed and completed (Abacus, Apple, Banana).
    /// pExeName is the name of the program's file.
    explicit Program(std::string pExeName = "NorvoEditDat");

    /// The program's folder.
    TemporaryFolder &Files() { return myFiles; }
    ScriptedDesktop &Script() { return myScript; }

    /// Starts the program on this command text.
    Program &Start(const std::string &pCommand = "");
    /// Starts it on the file "data.dat" of this text, its lines ended by LF here.
    Program &StartOn(std::string_view pText) { return Start(myFiles.Write("data.dat", CrLf(pText))); }

    // The verbs. What would take the focus from a field that refuses to lose it isn't carried out.
    /// Types pText (letters, digits, blanks) into the field under pHeading in place of what it holds, key by
    /// key.
    Program &Type(const std::string &pHeading, const std::string &pText);
    /// Presses the button of that caption or, for one that shows a picture, that tooltip.
    Program &Press(const std::string &pButton);
    /// Picks row pRow of the list, from 0.
    Program &Pick(int pRow);
    /// Chooses the menu entry of that menu and caption, such as "FileOpen".
    Program &Choose(const std::string &pEntry);
    /// Presses Save As and gives pPath in the dialog; nothing dismisses it.
    Program &SaveAs(const std::optional<std::string> &pPath) {
        myScript.ExpectSave(pPath);
        return Press("Save As");
    }
    Program &PressEscape() {
        return Act([&] { myScript.Shown().back()->UserPressesEscape(); });
    }
    Program &CloseWindow() {
        return Act([&] { Main().UserCloses(); });
    }

    /// The main window: its caption, its fields, the rows with the selected one marked, and the buttons,
    /// those in parentheses disabled.
    std::string Window() const {
        return Main().Caption() + "\n" + Fields() + "\n" + Rows() + Buttons() + "\n";
    }
    std::string Fields() const;
    std::string Rows() const;
    std::string Buttons() const;

    /// The main window's form, also after it was closed.
    Form &Main() const { return *myForm; }
    /// What the program ended with; nothing while it runs.
    std::optional<int> ExitStatus() const { return myExitStatus; }

private:
    Program &Act(const std::function<void()> &pAct);
    Program &At(Control &pControl, const std::function<void()> &pAct);

    std::string myExeName;
    TemporaryFolder myFiles;
    ScriptedDesktop myScript;
    std::unique_ptr<Runtime> myRuntime;
    std::unique_ptr<modMain> myModule;
    Form *myForm = nullptr;
    Control *myFocus = nullptr;
    std::optional<int> myExitStatus;
};
