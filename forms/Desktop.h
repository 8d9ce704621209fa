#pragma once
/// The port from the runtime to a real desktop. It holds all that only a desktop can do.
#include <optional>
#include <string>
#include <string_view>

class Form;

struct FileDialogRequest {
    bool isSave = false;
    std::string description; ///< of the files offered, such as "Data (*.dat)"
    std::string pattern;     ///< such as "*.dat"
    std::string folder;      ///< to start in; empty: the current folder
    std::string name;        ///< to offer in the field; may be empty
};

enum class MessageButtons {
    Ok = 0,
    OkAndCancel = 1,
    CriticalStop = 16, ///< OK, and the critical-stop icon
};

enum class MessageAnswer { Ok = 1, Cancel = 2 };

/// A message to show. It copies no text: the caller of ShowMessage owns prompt and title, and keeps them
/// until the call returns. So a message about a lack of memory needs no memory of its own.
struct Message {
    std::string_view prompt;
    MessageButtons buttons;
    std::string_view title;
};

class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows pMessage and waits for the user. Esc and the close box answer Cancel if there is such a
    /// button, else OK.
    virtual MessageAnswer ShowMessage(const Message &pMessage) = 0;

    /// Shows a file dialog over pForm and waits. Returns the chosen path as the user gave it; null if the
    /// user dismissed the dialog. Both for opening and for saving it accepts the name of a file that doesn't
    /// exist, and doesn't ask before a file is replaced.
    virtual std::optional<std::string> ShowFileDialog(const Form &pForm,
                                                      const FileDialogRequest &pRequest) = 0;

    /// Brings pForm on screen, or to the front when it is there already.
    virtual void ShowForm(Form &pForm) = 0;

    /// Takes pForm, which has been unloaded, off the screen.
    virtual void CloseForm(Form &pForm) = 0;

    /// Opens pTarget, a document's path or a web address, with the program that the system has for it.
    /// Doesn't report failure.
    virtual void OpenTarget(const std::string &pTarget) = 0;

    /// Ends the process at once with pStatus.
    [[noreturn]] virtual void EndProcess(int pStatus) = 0;
};
