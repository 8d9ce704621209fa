#pragma once
/// The desktop of the tests. A test queues beforehand which messages and file dialogs it expects and how the
/// user answers them. A message or dialog that wasn't expected, that comes in another order or with another
/// text, fails the test. So does one that never comes.
#include "forms/Runtime.h"
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
    void Expect(const std::string &pPrompt, const std::string &pTitle,
                MessageButtons pButtons = MessageButtons::Ok, MessageAnswer pAnswer = MessageAnswer::Ok) {
        myScript.push_back({InWords({pPrompt, pButtons, pTitle}), {}, pAnswer});
    }
    /// Expects a file dialog next. The user chooses pPath, or dismisses the dialog without one.
    void ExpectOpen(const std::optional<std::string> &pPath) { myScript.push_back({"open", pPath}); }
    void ExpectSave(const std::optional<std::string> &pPath) { myScript.push_back({"save", pPath}); }

    bool takesAnyMessage = false;     ///< rather than the next one of the script, and answers it by OK
    std::string told;                 ///< the texts of these messages, each with "|" after it
    std::string asked;                ///< the last file dialog: folder|name|description|pattern
    std::vector<Form *> shown;        ///< the forms on screen, the one shown last at the end
    std::vector<std::string> targets; ///< the documents and addresses opened so far

    MessageAnswer ShowMessage(const Message &pMessage) override {
        Scarcity::granted = -1;
        if (!takesAnyMessage) {
            return Take(InWords(pMessage)).answer;
        }
        told.append(pMessage.prompt).append("|");
        myScript.clear(); // A dialog may not come now.
        return MessageAnswer::Ok;
    }
    std::optional<std::string> ShowFileDialog(const Form & /*pForm*/, const FileDialogRequest &p) override {
        asked = p.folder + "|" + p.name + "|" + p.description + "|" + p.pattern;
        return Take(p.isSave ? "save" : "open").path;
    }
    void ShowForm(Form &pForm) override {
        CloseForm(pForm);
        shown.push_back(&pForm);
    }
    void CloseForm(Form &pForm) override { std::erase(shown, &pForm); }
    void OpenTarget(const std::string &pTarget) override { targets.push_back(pTarget); }
    [[noreturn]] void EndProcess(int pStatus) override { throw ProgramEnded{pStatus}; }

private:
    struct Step {
        std::string what; ///< the message or dialog in words, which are compared
        std::optional<std::string> path;
        MessageAnswer answer = MessageAnswer::Ok;
    };

    static std::string InWords(const Message &p) {
        return std::string(p.title) + " (" + std::to_string(int(p.buttons)) + "): " + std::string(p.prompt);
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
};

/// A form on that desktop, for what needs no more of the program.
class OnAForm : public testing::Test {
protected:
    ScriptedDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
    Form &myForm = myRuntime.NewForm();
};
