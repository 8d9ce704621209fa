#include "desktop/QtDesktop.h"

#include "desktop/ComboAccess.h"
#include "desktop/FileDialog.h"
#include "desktop/TextCodec.h"
#include "desktop/WindowSystem.h"
#include "forms/Runtime.h"
#include "system/Memory.h"
#include "system/System.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSettings>
#include <QUrl>

#include <cstdio>
#include <cstdlib>

namespace {

/// A longer prompt loses its middle, so that the box fits on the screen and shows the reason at the end. In
/// UTF-16 units.
constexpr int mostOfPrompt = 4000;

QString ShownPrompt(std::string_view pPrompt) {
    QString prompt = ToQt(pPrompt);
    if (prompt.size() > mostOfPrompt) {
        constexpr int half = mostOfPrompt / 2;
        prompt = prompt.left(half) + QChar(0x2026) + prompt.right(half - 1);
    }
    return prompt.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// The address of a file or folder. Bytes that are not UTF-8 stand in it as they are, which Qt's own wouldn't
/// have.
QUrl FileAddress(const std::string &pPath) {
    const QString path = QFileInfo(ToQt(pPath)).absoluteFilePath();
    return path.isValidUtf16()
               ? QUrl::fromLocalFile(path)
               : QUrl::fromEncoded("file://" +
                                   QByteArray::fromStdString(FromQt(path)).toPercentEncoding("/"));
}

/// Memory set aside for showing a message when there is no other. Nothing is written to it, so most systems
/// count it as taken only once it is used.
constexpr std::size_t spareBytes = std::size_t{16} << 20U;

} // namespace

QtDesktop::QtDesktop() : mySpare(std::make_unique_for_overwrite<char[]>(spareBytes)) {
    // Where Qt's file dialog is used, it writes a settings file when it closes. The program keeps no state,
    // so the settings go to a place where Qt can't write.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    QCoreApplication::instance()->installEventFilter(&myHeldKeys);
    UseOwnAccessForComboBoxes();
}

QtDesktop::~QtDesktop() {
    for (const auto &[form, window] : myWindows) {
        delete window;
    }
}

FormWindow *QtDesktop::WindowOf(const Form &pForm) const {
    const auto found = myWindows.find(&pForm);
    return found == myWindows.end() ? nullptr : found->second.data();
}

void QtDesktop::Sync() {
    for (const auto &[form, window] : myWindows) {
        window->Sync();
    }
}

void QtDesktop::Run(const std::function<void()> &pAct) {
    if (myDepth == 0) {
        RunEvenUnderBox(pAct);
    }
}

void QtDesktop::RunEvenUnderBox(const std::function<void()> &pAct) {
    {
        const QScopedValueRollback depth(myDepth, myDepth + 1);
        if (myRuntime == nullptr) {
            pAct();
        } else {
            myRuntime->Run(pAct);
        }
        if (!HasMemoryFor([this] { Sync(); }) && myRuntime != nullptr) {
            myRuntime->MsgBox("There is not enough memory to show all of this. Nothing is lost.");
        }
    }
    // Only the outermost act ends the program. The rest of a handler that unloads a form still has to run.
    if (myDepth == 0 && myRuntime != nullptr) {
        myRuntime->EndIfNoFormIsLoaded();
    }
}

QWidget *QtDesktop::ActiveWindow() const {
    QWidget *active = QApplication::activeWindow();
    if (active != nullptr && active->isVisible()) {
        return active;
    }
    for (const auto &[form, window] : myWindows) {
        if (window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

MessageAnswer QtDesktop::ShowMessage(const Message &pMessage) {
    mySpare.reset();
    MessageAnswer answer = MessageAnswer::Cancel; // The program does least after it.
    HasMemoryFor([this] { Sync(); });
    if (!HasMemoryFor([&] { answer = Ask(pMessage); }) &&
        !ShowPlainMessage(pMessage.prompt, pMessage.title)) {
        std::fwrite(pMessage.prompt.data(), 1, pMessage.prompt.size(), stderr);
        std::fputs("\n", stderr);
    }
    mySpare.reset(new (std::nothrow) char[spareBytes]);
    return answer;
}

MessageAnswer QtDesktop::Ask(const Message &pMessage) {
    QMessageBox box(ActiveWindow());
    const bool isCritical = pMessage.buttons == MessageButtons::CriticalStop;
    box.setIcon(isCritical ? QMessageBox::Critical : QMessageBox::NoIcon);
    box.setWindowTitle(ToQtTitle(pMessage.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ShownPrompt(pMessage.prompt));
    QPushButton *ok = box.addButton(QMessageBox::Ok);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    if (pMessage.buttons == MessageButtons::OkAndCancel) {
        box.setEscapeButton(box.addButton(QMessageBox::Cancel));
    }
    const QScopedValueRollback depth(myDepth, myDepth + 1);
    SoundMessage(isCritical);
    return box.exec() == QMessageBox::Ok ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

std::optional<std::string> QtDesktop::ShowFileDialog(const Form &pForm, const FileDialogRequest &pRequest) {
    Sync();
    const QScopedValueRollback depth(myDepth, myDepth + 1);
    return AskForFile(WindowOf(pForm), pRequest);
}

void QtDesktop::ShowForm(Form &pForm) {
    FormWindow *window = WindowOf(pForm);
    if (window == nullptr) {
        window = new FormWindow(*this, pForm);
        myWindows[&pForm] = window;
        window->show();
    } else if (window->isMinimized()) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    }
    window->raise();
    window->activateWindow();
}

void QtDesktop::CloseForm(Form &pForm) {
    FormWindow *window = WindowOf(pForm);
    myWindows.erase(&pForm);
    if (window != nullptr) {
        window->Retire();
    }
}

void QtDesktop::OpenTarget(const std::string &pTarget) {
    const QUrl address(ToQt(pTarget));
    if (address.scheme().size() > 1) { // A single letter before the colon is a drive.
        QDesktopServices::openUrl(address);
    } else if (os::IsFile(pTarget) || os::IsFolder(pTarget)) {
        QDesktopServices::openUrl(FileAddress(os::NativePath(pTarget)));
    }
}

void QtDesktop::EndProcess(int pStatus) {
    KeepCopiedText();
    std::fflush(nullptr);
    std::_Exit(pStatus);
}
