#pragma once
/// The process as the program sees it: its command line and version record, messages, forms, and its end.
#include "platform/Desktop.h"
#include "platform/Form.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What the program knows of itself: its file, and its version record.
struct AppRecord {
    std::string Path;    ///< folder of the program's file, without a closing separator
    std::string EXEName; ///< name of the program's file, without its extension
    std::string ProductName;
    std::string FileDescription;
    std::string Comments;
    std::string LegalCopyright;
    int Major = 0;
    int Minor = 0;
    int Revision = 0;
};

/// The version record, with Path and EXEName taken from pProgramFile, a full path.
AppRecord MakeAppRecord(const std::string &pProgramFile);

/// The command text that the words pWords (without the program's own) stand for: joined by one blank; a word
/// that is empty or holds a blank in double quotes; a word that itself holds a double quote as it is.
std::string CommandText(const std::vector<std::string> &pWords);

class Runtime {
public:
    Runtime(::Desktop &pDesktop, AppRecord pApp, std::string pCommand);

    const AppRecord &App() const { return myApp; }
    /// The text of the command line behind the program's name.
    const std::string &Command() const { return myCommand; }
    ::Desktop &Desktop() const { return myDesktop; }

    /// Shows pPrompt and waits. pButtons: 0 OK, 1 OK and Cancel, 16 OK with the critical-stop icon. Without a
    /// title it shows the application's. 1: OK; 2: Cancel.
    int MsgBox(const std::string &pPrompt, int pButtons = 0,
               const std::optional<std::string> &pTitle = {}) const;

    /// Ends the program at once: no further statement runs and no unload event comes.
    [[noreturn]] void End(int pStatus = 0) const;

    /// A new form, not loaded, owned by the runtime for the rest of the run.
    Form &NewForm(const std::string &pName);

    /// Ends the program when no form is loaded any more. A desktop calls it when a handler has returned, so
    /// that what follows an unload in the same handler still runs.
    void EndIfNoFormIsLoaded() const;

private:
    ::Desktop &myDesktop;
    AppRecord myApp;
    std::string myCommand;
    std::vector<std::unique_ptr<Form>> myForms;
};
