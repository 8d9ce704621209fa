/// The program: composes desktop, runtime and editor, and runs the event loop.
#include "app/VersionRecord.h"
#include "app/modMain.h"
#include "desktop/Application.h"
#include "desktop/ContrastStyle.h"
#include "desktop/Look.h"
#include "desktop/QtDesktop.h"
#include "desktop/WindowSystem.h"
#include "forms/Runtime.h"
#include "system/System.h"

#include <memory>
#include <optional>
#include <string>

int main(int argc, char *argv[]) {
    os::LetCallsFail();
    const std::optional<std::string> line = os::CommandLine();
    const std::string command = line ? *line : CommandText(os::ProgramWords(argc, argv));
    FollowSystemColours();

    // Qt must not see the command line: it would take the words that it knows.
    std::string name(versionRecord::productName);
    char *words[] = {name.data(), nullptr};
    int wordCount = 1;
    const Application application(wordCount, words);
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
    desktop.Handle([&] {
        module = std::make_unique<modMain>(runtime);
        module->Main();
    });
    return QApplication::exec();
}
