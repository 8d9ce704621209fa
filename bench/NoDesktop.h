#pragma once
/// A desktop without a screen, for benchmarks and fuzzers. It shows nothing and dismisses every dialog.
#include "forms/Desktop.h"

#include <stdexcept>

class NoDesktop : public Desktop {
public:
    /// The last message; empty as long as there was none.
    const std::string &LastMessage() const { return myMessage; }

    MessageAnswer ShowMessage(const Message &pMessage) override {
        myMessage = pMessage.prompt;
        return MessageAnswer::Ok;
    }
    std::optional<std::string> ShowFileDialog(const Form &, const FileDialogRequest &) override { return {}; }
    void ShowForm(Form & /*pForm*/) override {}
    void CloseForm(Form & /*pForm*/) override {}
    void OpenTarget(const std::string & /*pTarget*/) override {}
    /// Throws the last message.
    [[noreturn]] void EndProcess(int /*pStatus*/) override { throw std::runtime_error(myMessage); }

private:
    std::string myMessage;
};
