#pragma once
/// A desktop without a screen, on which the editor's own parts can be asked what they would do.
#include "platform/Desktop.h"
#include "platform/Runtime.h"

/// Thrown in place of the end of the program, with the message that the editor would have shown before it.
struct Stopped {
    std::string message;
};

class Silence : public Desktop {
public:
    MessageAnswer ShowMessage(const Message &pMessage) override {
        myLast = pMessage.prompt;
        return MessageAnswer::Ok;
    }
    std::optional<std::string> ShowFileDialog(const Form & /*pForm*/,
                                              const FileDialogRequest & /*pRequest*/) override {
        return {};
    }
    void ShowForm(Form & /*pForm*/) override {}
    void CloseForm(Form & /*pForm*/) override {}
    void OpenTarget(const std::string & /*pTarget*/) override {}
    [[noreturn]] void EndProcess(int /*pStatus*/) override { throw Stopped{myLast}; }

private:
    std::string myLast;
};
