#pragma once
/// The desktop of the tests: it answers messages and file dialogs by a script that the test queues
/// beforehand, and remembers what was shown, closed and opened. Whatever comes without being expected, in
/// another order or with another text fails the test; so does an answer that is left over when the desktop
/// goes.
#include "platform/Desktop.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What EndProcess throws in a test, in place of ending the process. The test driver alone catches it; it is
/// no std::exception, so that nothing else catches it by chance.
struct ProgramEnded {
    int status;
};

class ScriptedDesktop : public Desktop {
public:
    static constexpr int answerOk = 1;
    static constexpr int answerCancel = 2;
    /// What a test does while a box or dialog is open, such as looking at the window behind it.
    using Meanwhile = std::function<void()>;

    ScriptedDesktop() = default;
    ~ScriptedDesktop() override;
    ScriptedDesktop(const ScriptedDesktop &) = delete;
    ScriptedDesktop &operator=(const ScriptedDesktop &) = delete;

    /// The next thing to come is this message, compared whole. pAnswer is what the user presses.
    void Expect(const Message &pMessage, int pAnswer = answerOk, Meanwhile pMeanwhile = {});

    /// The next thing to come is a file dialog for opening, or for saving. pPath is what the user chooses;
    /// nothing: the user dismisses it.
    void ExpectOpen(std::optional<std::string> pPath, Meanwhile pMeanwhile = {});
    void ExpectSave(std::optional<std::string> pPath, Meanwhile pMeanwhile = {});

    /// What the file dialogs were asked to show, in order.
    const std::vector<FileDialogRequest> &Dialogs() const { return myDialogs; }

    /// The forms on screen, the one shown last at the end.
    const std::vector<Form *> &Shown() const { return myShown; }
    bool IsShown(const Form &pForm) const;
    /// How often CloseForm was called for any form.
    int ClosedCount() const { return myClosedCount; }

    /// The documents and addresses handed over to be opened, in order.
    const std::vector<std::string> &Targets() const { return myTargets; }

    int ShowMessage(const Message &pMessage) override;
    std::optional<std::string> ShowFileDialog(const Form &pForm, const FileDialogRequest &pRequest) override;
    void ShowForm(Form &pForm) override;
    void CloseForm(Form &pForm) override;
    void OpenTarget(const std::string &pTarget) override;
    [[noreturn]] void EndProcess(int pStatus) override;

private:
    struct Step {
        std::string what; ///< the message or dialog in words, by which it is compared
        int answer = answerOk;
        std::optional<std::string> path;
        Meanwhile meanwhile;
    };

    std::optional<Step> Take(const std::string &pWhat);

    std::deque<Step> myScript;
    std::vector<FileDialogRequest> myDialogs;
    std::vector<Form *> myShown;
    std::vector<std::string> myTargets;
    int myClosedCount = 0;
};
