#pragma once
/// The desktop port, by Qt. All that the user does reaches the program through it.
#include "desktop/Acts.h"
#include "desktop/FormWindow.h"
#include "desktop/HeldKeys.h"
#include "forms/Desktop.h"

#include <QPointer>

#include <map>
#include <memory>

class Runtime;

/// Create Qt's application object first.
class QtDesktop : public Desktop, public Acts {
public:
    QtDesktop();
    ~QtDesktop() override;
    QtDesktop(const QtDesktop &) = delete;
    QtDesktop &operator=(const QtDesktop &) = delete;

    /// Sets the runtime, which ends the program when no form is left. Call it before any act.
    void Serves(const Runtime &pRuntime) { myRuntime = &pRuntime; }

    /// The window of pForm; null while it isn't on the screen.
    FormWindow *WindowOf(const Form &pForm) const;

    MessageAnswer ShowMessage(const Message &pMessage) override;
    std::optional<std::string> ShowFileDialog(const Form &pForm, const FileDialogRequest &pRequest) override;
    void ShowForm(Form &pForm) override;
    void CloseForm(Form &pForm) override;
    void OpenTarget(const std::string &pTarget) override;
    [[noreturn]] void EndProcess(int pStatus) override;

    void Run(const std::function<void()> &pAct) override;
    void RunEvenUnderBox(const std::function<void()> &pAct) override;

private:
    void Sync();
    MessageAnswer Ask(const Message &pMessage);
    QWidget *ActiveWindow() const;

    const Runtime *myRuntime = nullptr;
    std::map<const Form *, QPointer<FormWindow>> myWindows;
    HeldKeys myHeldKeys;
    std::unique_ptr<char[]> mySpare; ///< memory for the message that there is no more: given up to show it
    int myDepth = 0;                 ///< running acts, one inside the other
};
