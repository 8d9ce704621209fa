#include "app/modMain.h"

#include "app/frmMain.h"
#include "app/modArgcArgv.h"
#include "data/Switches.h"
#include "forms/Runtime.h"
#include "help/frmAbout.h"
#include "system/Files.h"
#include "text/Numbers.h"

namespace {

/// The command line names a specification file and a data file, and no more.
constexpr std::size_t mostNames = 2;

} // namespace

modMain::modMain(Runtime &pRuntime)
    : gSpecFile(pRuntime.App().Path + "\\" + pRuntime.App().EXEName + ".dat"),
      gTitle("Norvo Data File Editor"), myRuntime(pRuntime) {}

modMain::~modMain() = default;

void modMain::Main() {
    SettleFiles(ReadWords());
    StartWindow();
}

std::vector<std::string> modMain::ReadWords() {
    const std::string &command = myRuntime.Command();
    const int count = modArgcArgv::argc(command);
    std::vector<std::string> args;
    // One name too many settles the matter.
    for (int i = 1; i <= count && args.size() <= mostNames; ++i) {
        const std::string word = modArgcArgv::argv(command, i);
        const std::string name = SwitchName(word);
        if (name == "t") {
            gTitle = modArgcArgv::argv(command, ++i);
        } else if (name == "v") {
            ++i; // This switch takes a word, which has no effect.
        } else if (const std::optional<std::int16_t> fmt = SwitchFormat(name)) {
            fmtArg = FormatWhole(*fmt);
        } else {
            args.push_back(word);
        }
    }
    return args;
}

void modMain::SettleFiles(const std::vector<std::string> &args) {
    switch (args.size()) {
    case 0:
        gCanOpen = true;
        break;
    case 1:
        gDatFile = args[0];
        break;
    case 2:
        gSpecFile = NamedOrBeside(args[0], myRuntime.App().Path);
        gDatFile = args[1];
        break;
    default:
        Usage();
    }
}

void modMain::StartWindow() {
    myAbout = std::make_unique<frmAbout>(myRuntime);
    myMain = std::make_unique<frmMain>(myRuntime, gSpecFile, *myAbout);
    Form &window = myMain->Window();
    window.Load();
    // The title is set after the load, so that messages about a bad specification show the design caption.
    // The format is set before the open, which reads the file in that format.
    window.Caption(gTitle);
    myMain->mnuFileOpen.Enabled(gCanOpen);
    myMain->AppCmd("fmt", {fmtArg});
    if (!gCanOpen) {
        myMain->AppCmd("open", {gDatFile});
    }
    window.Show();
}

void modMain::Usage() const {
    myRuntime.Stop("Usage: \r\n" + myRuntime.App().EXEName + " [[specfile] datfile] [/t title] [/csv|/csvh]");
}
