#pragma once
/// Runs the whole program as a user does. It starts on a command line, takes the user's verbs one by one, as
/// from a desktop, and shows its window as text. It has a fresh folder of its own, in which the test writes
/// files. The script answers messages and file dialogs.
#include "app/VersionRecord.h"
#include "app/modMain.h"
#include "forms/ListView.h"
#include "forms/Runtime.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/TemporaryFolder.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// pText with CR LF in place of each LF, as tables and list files end their lines.
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
    /// Starts it on the file "data.dat", which gets this text. LF ends a line in pText, CR LF in the file.
    Program &StartOn(std::string_view pText) { return Start(myFiles.Write("data.dat", CrLf(pText))); }

    // The verbs. A verb that needs the focus has no effect while a field refuses to lose it.
    /// Replaces the text of the field under pHeading by pText (ASCII).
    Program &Type(const std::string &pHeading, const std::string &pText);
    /// Presses the button with that caption, or that tooltip if it shows a picture, of the window on top.
    Program &Press(const std::string &pButton);
    /// Picks row pRow of the list, from 0.
    Program &Pick(int pRow);
    /// Chooses a menu entry by menu and caption, such as "FileOpen".
    Program &Choose(const std::string &pEntry);
    /// Chooses File Open and gives pPath in the dialog, or dismisses it without a path.
    Program &Open(const std::optional<std::string> &pPath) {
        myScript.ExpectOpen(pPath);
        return Choose("FileOpen");
    }
    /// The same for Save As.
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

    /// The main window: its caption, its fields, the rows with the selected one marked, and the buttons, with
    /// disabled ones in parentheses.
    std::string Window() const {
        return Main().Caption() + "\n" + Fields() + "\n" + Rows() + Buttons() + "\n";
    }
    std::string Fields() const;
    std::string Rows() const;
    std::string Buttons() const;

    /// The main window's form. It stays after the window is closed.
    Form &Main() const { return *myForm; }
    ListView &List() const { return dynamic_cast<ListView &>(Main().Controls("ListView1")); }
    /// The program's exit status; nothing while it runs.
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
