#pragma once
/// A desktop that shows nothing. A message means that what is measured has gone wrong, so it ends the run.
#include "platform/Desktop.h"

#include <cstdio>
#include <cstdlib>

class NoDesktop : public Desktop {
public:
    MessageAnswer ShowMessage(const Message &pMessage) override {
        std::fprintf(stderr, "Unexpected message: %s\n", pMessage.prompt.c_str());
        std::abort();
    }
    std::optional<std::string> ShowFileDialog(const Form & /*pForm*/,
                                              const FileDialogRequest & /*pRequest*/) override {
        return std::nullopt;
    }
    void ShowForm(Form & /*pForm*/) override {}
    void CloseForm(Form & /*pForm*/) override {}
    void OpenTarget(const std::string & /*pTarget*/) override {}
    [[noreturn]] void EndProcess(int pStatus) override {
        std::fputs("Unexpected end of the program\n", stderr);
        std::exit(pStatus);
    }
};
