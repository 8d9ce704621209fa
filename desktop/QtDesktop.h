#pragma once
/// The desktop port on Qt: message boxes, file dialogs, windows, opening of documents, the end of the
/// process; and the one road by which the user's acts reach the program.
#include "desktop/Acts.h"
#include "desktop/FormWindow.h"
#include "desktop/HeldKeys.h"
#include "platform/Desktop.h"

#include <QPointer>

#include <map>

class Runtime;

/// It needs the toolkit's application object to be there.
class QtDesktop : public Desktop, public Acts {
public:
    QtDesktop();
    ~QtDesktop() override;
    QtDesktop(const QtDesktop &) = delete;
    QtDesktop &operator=(const QtDesktop &) = delete;

    /// The runtime that is asked after each act whether a form is left. It has to be there before any act.
    void Serves(const Runtime &pRuntime) { myRuntime = &pRuntime; }

    /// The window of pForm; nothing while it isn't on the screen.
    FormWindow *WindowOf(const Form &pForm) const;

    MessageAnswer ShowMessage(const Message &pMessage) override;
    std::optional<std::string> ShowFileDialog(const Form &pForm, const FileDialogRequest &pRequest) override;
    void ShowForm(Form &pForm) override;
    void CloseForm(Form &pForm) override;
    void OpenTarget(const std::string &pTarget) override;
    [[noreturn]] void EndProcess(int pStatus) override;

    void Handle(const std::function<void()> &pAct) override;
    void Note(const std::function<void()> &pAct) override;

private:
    void Sync();
    QWidget *ActiveWindow() const;

    const Runtime *myRuntime = nullptr;
    std::map<const Form *, QPointer<FormWindow>> myWindows;
    HeldKeys myHeldKeys;
    int myDepth = 0; ///< acts that are running, one inside the other
};
