#pragma once
/// The desktop of the tests. A test queues beforehand which messages and file dialogs it expects and how the
/// user answers them. A message or dialog that wasn't expected, that comes in another order or with another
/// text, fails the test. So does one that never comes.
#include "forms/Desktop.h"
#include "tests/support/Scarcity.h"

#include <gtest/gtest.h>

#include <deque>
#include <vector>

/// EndProcess throws this in a test. The test driver alone catches it; it is no std::exception, so that
/// nothing else catches it by chance.
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

    /// Expects this message next, compared whole. The user answers it by pAnswer.
    void Expect(const Message &pMessage, MessageAnswer pAnswer = MessageAnswer::Ok) {
        myScript.push_back({InWords(pMessage), {}, pAnswer});
    }
    /// Expects a file dialog next. The user chooses pPath, or dismisses the dialog without one.
    void ExpectOpen(const std::optional<std::string> &pPath) { myScript.push_back({toOpen, pPath}); }
    void ExpectSave(const std::optional<std::string> &pPath) { myScript.push_back({toSave, pPath}); }

    /// From now on any message may come, and is answered by OK. Told has their texts, each with "|" after it.
    void TakeAnyMessage() { myTakesAny = true; }
    const std::string &Told() const { return myTold; }

    /// All requests for file dialogs so far.
    const std::vector<FileDialogRequest> &Dialogs() const { return myDialogs; }
    /// The forms on screen, the one shown last at the end.
    const std::vector<Form *> &Shown() const { return myShown; }
    /// All documents and addresses opened so far.
    const std::vector<std::string> &Targets() const { return myTargets; }

    MessageAnswer ShowMessage(const Message &pMessage) override {
        Scarcity::granted = -1;
        if (!myTakesAny) {
            return Take(InWords(pMessage)).answer;
        }
        myTold.append(pMessage.prompt).append("|");
        myScript.clear(); // A dialog may not come now.
        return MessageAnswer::Ok;
    }
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
        std::string what; ///< the message or dialog in words, which are compared
        std::optional<std::string> path;
        MessageAnswer answer = MessageAnswer::Ok;
    };

    static std::string InWords(const Message &pMessage) {
        return "message \"" + std::string(pMessage.prompt) + "\", title \"" + std::string(pMessage.title) +
               "\", buttons " + std::to_string(static_cast<int>(pMessage.buttons));
    }

    Step Take(const std::string &pWhat) {
        Step step{"nothing", {}, MessageAnswer::Cancel}; // After Cancel the program does the least.
        if (!myScript.empty()) {
            step = myScript.front();
            myScript.pop_front();
        }
        EXPECT_EQ(pWhat, step.what) << "came, but the script has something else next";
        return step;
    }

    std::deque<Step> myScript;
    bool myTakesAny = false;
    std::string myTold;
    std::vector<FileDialogRequest> myDialogs;
    std::vector<Form *> myShown;
    std::vector<std::string> myTargets;
};
