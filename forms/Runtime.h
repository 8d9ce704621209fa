#pragma once
/// The process as the program sees it: command line, version record, messages, forms, and the end.
#include "forms/Desktop.h"
#include "forms/Form.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The program's file and its version record.
struct AppRecord {
    std::string Path;    ///< folder of the program's file, without a closing separator
    std::string EXEName; ///< name of the program's file, without ".exe"
    std::string ProductName;
    std::string FileDescription;
    std::string Comments;
    std::string LegalCopyright;
    int Major = 0;
    int Minor = 0;
    int Revision = 0;
};

/// Joins pWords, the words after the program's name, into a command text, with blanks between. A word that is
/// empty or holds a blank gets double quotes, unless it holds a double quote itself.
std::string CommandText(const std::vector<std::string> &pWords);

class Runtime {
public:
    Runtime(::Desktop &pDesktop, AppRecord pApp, std::string pCommand);

    const AppRecord &App() const { return myApp; }
    /// The text of the command line after the program's name.
    const std::string &Command() const { return myCommand; }
    ::Desktop &Desktop() const { return myDesktop; }

    /// Shows pPrompt and waits for the user. Without a title it shows the application's.
    MessageAnswer MsgBox(std::string_view pPrompt, MessageButtons pButtons = MessageButtons::Ok,
                         std::optional<std::string_view> pTitle = {}) const;

    /// Shows pPrompt under the application's title, then ends the program with exit status 1.
    [[noreturn]] void Stop(std::string_view pPrompt) const;

    /// Ends the program at once. No further statement runs, and no unload event comes.
    [[noreturn]] void End(int pStatus = 0) const;

    /// Runs pAct: the start, or one thing that the user does. If memory runs out in it, tells the user, and
    /// ends the program if it shows no form yet. Otherwise the program goes on as it was before the act: a
    /// handler gets all memory that it needs before it changes anything.
    void Run(const std::function<void()> &pAct) const;

    /// Makes a form, not yet loaded. The runtime owns it to the end.
    Form &NewForm();

    /// Ends the program if no form is loaded any more. A desktop calls it after each handler, so that a
    /// handler that unloads a form runs to its end.
    void EndIfNoFormIsLoaded() const;

private:
    void RecoverFromLackOfMemory() const;

    ::Desktop &myDesktop;
    AppRecord myApp;
    std::string myCommand;
    std::vector<std::unique_ptr<Form>> myForms;
};
