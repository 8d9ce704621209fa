/// The program: composes desktop, runtime and editor, and runs the event loop.
#include "app/VersionRecord.h"
#include "app/modMain.h"
#include "desktop/ContrastStyle.h"
#include "desktop/Look.h"
#include "desktop/QtDesktop.h"
#include "desktop/WindowSystem.h"
#include "forms/Runtime.h"
#include "system/Memory.h"
#include "system/System.h"

#include <QApplication>

#include <memory>
#include <optional>
#include <string>

namespace {

/// Goes on when memory runs out while Qt shows something. What was to be shown stays unshown. An act has a
/// way of its own to tell of it.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject *pReceiver, QEvent *pEvent) override {
        bool isHandled = false;
        HasMemoryFor([&] { isHandled = QApplication::notify(pReceiver, pEvent); });
        return isHandled;
    }
};

} // namespace

int main(int argc, char *argv[]) {
    os::LetCallsFail();
    const std::optional<std::string> line = os::CommandLine();
    const std::string command = line ? *line : CommandText(os::ProgramWords(argc, argv));

    // Qt must not see the command line: it would take the words that it knows.
    std::string name(versionRecord::productName);
    std::string option = "-platform";
    std::string platform(PlatformOption());
    char *words[] = {name.data(), option.data(), platform.data(), nullptr};
    int wordCount = platform.empty() ? 1 : 3;
    const Application application(wordCount, words);
    FollowSystemColours();
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setDesktopFileName(QStringLiteral("example.norvo.EditDat"));
    QApplication::setWindowIcon(ProgramIcon());
    if (QApplication::style()->name() == QStringLiteral("fusion")) {
        QApplication::setStyle(new ContrastStyle(QStringLiteral("fusion")));
    }

    QtDesktop desktop;
    Runtime runtime(desktop, MakeAppRecord(os::ProgramFile()), command);
    desktop.Serves(runtime);
    std::unique_ptr<modMain> module;
    desktop.Run([&] {
        module = std::make_unique<modMain>(runtime);
        module->Main();
    });
    return QApplication::exec();
}
