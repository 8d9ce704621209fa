#include "app/frmMain.h"

#include "forms/Runtime.h"
#include "help/frmAbout.h"
#include "help/modBrowseTo.h"
#include "text/Numbers.h"
#include "text/Text.h"

#ifndef NDEBUG
#include <cstdio>
#endif

namespace {

void TraceUnknown([[maybe_unused]] const std::string &pCmd) {
#ifndef NDEBUG
    std::fprintf(stderr, "AppCmd: unrecognized cmd (%s)\n", pCmd.c_str());
#endif
}

} // namespace

void frmMain::AppCmd(const std::string &pCmd, const std::vector<std::string> &pArg) {
    const std::string command = LCase(pCmd);
    if (command == "load") {
        AppLoad();
    } else if (command == "unload") {
        AppUnload();
    } else if (command == "resize") {
        AppResize();
    } else if (command == "quit") {
        AppQuit();
    } else if (command == "open") {
        AppOpen(pArg.at(0));
    } else if (command == "save") {
        AppSave(pArg.at(0));
    } else if (command == "fmt") {
        // A number beyond 16 bits becomes -1, which is no format, so Load and Save do nothing.
        myDat->Fmt(Integer16(Val(pArg.at(0))).value_or(-1));
    } else {
        TraceUnknown(pCmd);
    }
}

void frmMain::AppUnload() {
    mySpec.reset();
    myRpt.reset();
}

void frmMain::AppResize() {
    myRpt->Resize();
}

void frmMain::Form_Load() {
    AppCmd("Load");
    myForm.WindowState(Form::stateNormal);
    // The layout registers the controls that exist now, so it comes after the load, which adds the fields.
    myLayout = std::make_unique<clsLayout>();
    myLayout->SetLayout(myForm);
}

void frmMain::Form_Unload() {
    AppCmd("Unload");
    myLayout.reset();
}

void frmMain::Form_Resize() {
    if (myLayout == nullptr) {
        return;
    }
    // The columns come second: their widths are shares of the list's new width.
    myLayout->RedrawLayout();
    AppCmd("Resize");
}

void frmMain::mnuFileOpen_Click() {
    SetDialogFilter();
    cDlg.InitDir("c:\\");
    cDlg.ShowOpen();
    if (!cDlg.FileName().empty()) {
        AppCmd("Open", {cDlg.FileName()});
    }
}

void frmMain::mnuFileExit_Click() {
    AppCmd("Quit");
}

void frmMain::mnuHelpContents_Click() {
    modBrowseTo::BrowseToHelp(myRuntime);
}

void frmMain::mnuHelpAbout_Click() {
    myAbout.Show();
}
