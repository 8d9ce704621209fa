#include "app/modMain.h"

#include "app/modArgcArgv.h"
#include "editor/frmMain.h"
#include "help/frmAbout.h"
#include "platform/Runtime.h"
#include "text/Files.h"
#include "text/Text.h"

using modArgcArgv::argc;
using modArgcArgv::argv;

modMain::modMain(Runtime &pRuntime)
    : gSpecFile(pRuntime.App().Path + "\\" + pRuntime.App().EXEName + ".dat"),
      gTitle("Norvo Data File Editor"), myRuntime(pRuntime) {}

modMain::~modMain() = default;

void modMain::Main() {
    SettleFiles(ReadWords());
    StartWindow();
}

modMain::Positional modMain::ReadWords() {
    const std::string &command = myRuntime.Command();
    const int limit = argc(command);
    Positional words;
    // What doesn't fit any more settles it. A shell can hand over thousands of words, and each one is a walk
    // through the text.
    const auto isSettled = [&] { return words.nArgs > static_cast<int>(words.args.size()); };
    for (int i = 1; i <= limit && !isSettled(); ++i) {
        const std::string word = argv(command, i);
        const std::string lower = LCase(word);
        if (lower == "-t" || lower == "/t") {
            gTitle = argv(command, ++i);
        } else if (lower == "-v" || lower == "/v") {
            ++i; // Its word is taken and has no effect.
        } else if (lower == "-csv" || lower == "/csv") {
            fmtArg = "1";
        } else if (lower == "-csvh" || lower == "/csvh") {
            fmtArg = "2";
        } else {
            if (words.nArgs < static_cast<int>(words.args.size())) {
                words.args[static_cast<std::size_t>(words.nArgs)] = word;
            }
            ++words.nArgs;
        }
    }
    return words;
}

void modMain::SettleFiles(const Positional &pWords) {
    switch (pWords.nArgs) {
    case 0:
        gCanOpen = true;
        break;
    case 1:
        gDatFile = pWords.args[0];
        break;
    case 2:
        gSpecFile = pWords.args[0];
        gDatFile = pWords.args[1];
        if (Dir(gSpecFile).empty()) {
            gSpecFile = myRuntime.App().Path + "\\" + gSpecFile;
        }
        break;
    default:
        Usage();
    }
}

void modMain::StartWindow() {
    myAbout = std::make_unique<frmAbout>(myRuntime);
    myMain = std::make_unique<frmMain>(myRuntime, *this, *myAbout);
    Form &window = myMain->Window();
    window.Load();
    // Behind the load: messages about a bad specification bear the design caption. The format has to be set
    // before anything is read by it.
    window.Caption(gTitle);
    myMain->mnuFileOpen.Enabled(gCanOpen);
    myMain->AppCmd("fmt", {fmtArg});
    if (!gCanOpen) {
        myMain->AppCmd("open", {gDatFile});
    }
    window.Show();
}

void modMain::Usage() const {
    myRuntime.MsgBox("Usage: \r\n" + myRuntime.App().EXEName +
                     " [[specfile] datfile] [/t title] [/csv|/csvh]");
    myRuntime.End(1);
}
