#pragma once
/// A desktop without a screen, for benchmarks and fuzzers. It shows nothing and dismisses every
/// dialog.
#include "forms/Desktop.h"

#include <stdexcept>

class NoDesktop : public Desktop {
public:
    /// Thrown when the program ends. what() is the last message that the user was shown.
    struct ProgramEnded : std::runtime_error {
        using std::runtime_error::runtime_error;
    };

    /// The last message; empty as long as there was none.
    const std::string &LastMessage() const { return myMessage; }

    MessageAnswer ShowMessage(const Message &pMessage) override {
        myMessage = pMessage.prompt;
        return MessageAnswer::Ok;
    }
    std::optional<std::string> ShowFileDialog(const Form & /*pForm*/,
                                              const FileDialogRequest & /*pRequest*/) override {
        return std::nullopt;
    }
    void ShowForm(Form & /*pForm*/) override {}
    void CloseForm(Form & /*pForm*/) override {}
    void OpenTarget(const std::string & /*pTarget*/) override {}
    [[noreturn]] void EndProcess(int /*pStatus*/) override { throw ProgramEnded(myMessage); }

private:
    std::string myMessage;
};
