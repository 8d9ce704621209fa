#pragma once
/// The desktop of the tests: it answers messages and file dialogs by a script that the test queues
/// beforehand, and remembers what was shown and opened. Whatever comes without being expected, in another
/// order or with another text fails the test; so does an answer that is left over when the desktop goes.
#include "platform/Desktop.h"

#include <gtest/gtest.h>

#include <deque>
#include <vector>

/// What EndProcess throws in a test, in place of ending the process. The test driver alone catches it; it is
/// no std::exception, so that nothing else catches it by chance.
struct ProgramEnded {
    int status;
};

class ScriptedDesktop : public Desktop {
public:
    ~ScriptedDesktop() override {
        for (const Step &step : myScript) {
            ADD_FAILURE() << "Expected, but never came: " << step.what;
        }
    }

    /// The next thing to come is this message, compared whole. pAnswer is what the user presses.
    void Expect(const Message &pMessage, MessageAnswer pAnswer = MessageAnswer::Ok) {
        myScript.push_back({InWords(pMessage), pAnswer, {}});
    }
    /// The next thing to come is a file dialog for opening, or for saving. pPath is what the user chooses;
    /// nothing: the user dismisses it.
    void ExpectOpen(const std::optional<std::string> &pPath) {
        myScript.push_back({toOpen, MessageAnswer::Ok, pPath});
    }
    void ExpectSave(const std::optional<std::string> &pPath) {
        myScript.push_back({toSave, MessageAnswer::Ok, pPath});
    }

    /// What the file dialogs were asked to show, in order.
    const std::vector<FileDialogRequest> &Dialogs() const { return myDialogs; }
    /// The forms on screen, the one shown last at the end.
    const std::vector<Form *> &Shown() const { return myShown; }
    /// The documents and addresses handed over to be opened, in order.
    const std::vector<std::string> &Targets() const { return myTargets; }

    MessageAnswer ShowMessage(const Message &pMessage) override { return Take(InWords(pMessage)).answer; }
    std::optional<std::string> ShowFileDialog(const Form & /*pForm*/,
                                              const FileDialogRequest &pRequest) override {
        myDialogs.push_back(pRequest);
        return Take(pRequest.isSave ? toSave : toOpen).path;
    }
    void ShowForm(Form &pForm) override {
        CloseForm(pForm);
        myShown.push_back(&pForm);
    }
    void CloseForm(Form &pForm) override { std::erase(myShown, &pForm); }
    void OpenTarget(const std::string &pTarget) override { myTargets.push_back(pTarget); }
    [[noreturn]] void EndProcess(int pStatus) override { throw ProgramEnded{pStatus}; }

private:
    static constexpr const char *toOpen = "file dialog to open";
    static constexpr const char *toSave = "file dialog to save";

    struct Step {
        std::string what; ///< the message or dialog in words, by which it is compared
        MessageAnswer answer;
        std::optional<std::string> path;
    };

    static std::string InWords(const Message &pMessage) {
        return "message " + testing::PrintToString(pMessage.prompt) + ", buttons " +
               std::to_string(static_cast<int>(pMessage.buttons)) + ", title " +
               testing::PrintToString(pMessage.title);
    }

    Step Take(const std::string &pWhat) {
        Step step{"nothing", MessageAnswer::Cancel, {}}; // The program does least when it is told to cancel.
        if (!myScript.empty()) {
            step = myScript.front();
            myScript.pop_front();
        }
        EXPECT_EQ(pWhat, step.what) << "came, but was not what the script has next";
        return step;
    }

    std::deque<Step> myScript;
    std::vector<FileDialogRequest> myDialogs;
    std::vector<Form *> myShown;
    std::vector<std::string> myTargets;
};
