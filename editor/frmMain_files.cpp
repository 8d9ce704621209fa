// Files and leaving: records come from a data file into the list and go back out of it, and the program is
// left. The data table is only the way to and from the file.
#include "editor/frmMain.h"
#include "platform/Runtime.h"
#include "text/Files.h"
#include "text/Numbers.h"

namespace {

constexpr int okAlone = 0;
constexpr int okAndCancel = 1;
constexpr int answerCancel = 2;

std::string FormatMessage(const std::string &pFn, const clsDatFile &pDat, const clsDatFile &pSpec) {
    return "File " + pFn + " is not in the correct format." + " It has" + Str(pDat.Cols()) + " columns." +
           "\n\n" + "Specification " + pSpec.FileName() + " is for" + Str(pSpec.Rows()) +
           " column data files.";
}

} // namespace

void frmMain::TellFault(const std::string &pText) const {
    myRuntime.MsgBox(pText, okAlone, myForm.Caption());
}

void frmMain::AppOpen(const std::string &pFn) {
    using Kind = clsDatFile::Fault::Kind;
    myDat->FileName(pFn);
    myDat->Headers(mySpec->Col(0));
    myRpt->Clear();
    if (!Dir(pFn).empty()) {
        myDat->Load();
        const clsDatFile::Fault &fault = myDat->LastFault();
        // One message for one fault: what couldn't be read has no columns to compare, and of a file that
        // doesn't fit it matters little how many records it has.
        if (fault.kind == Kind::NotRead) {
            TellFault(fault.text);
        } else if (myDat->Cols() != mySpec->Rows()) {
            TellFault(FormatMessage(pFn, *myDat, *mySpec));
        } else {
            FillList();
            if (fault.kind != Kind::None) {
                TellFault(fault.text);
            }
        }
    }
    UpdateButtons();
}

void frmMain::FillList() {
    for (std::int16_t i = 0; i < myDat->Rows(); ++i) {
        myRpt->AddRow(myDat->Row(i));
    }
}

void frmMain::AppSave(const std::string &pFn) {
    myDat->Rows(myRpt->Rows());
    myDat->Cols(myRpt->Cols());
    myDat->Clear();
    for (std::int16_t i = 0; i < myDat->Rows(); ++i) {
        myDat->Row(i, myRpt->Row(i));
    }
    myDat->FileName(pFn);
    myDat->Headers(mySpec->Col(0)); // A run that saves without having opened a file has none yet.
    myDat->Save();
    const clsDatFile::Fault &fault = myDat->LastFault();
    if (fault.kind != clsDatFile::Fault::Kind::None) {
        TellFault(fault.text);
    }
}

void frmMain::SetDialogFilter() {
    const std::string type = myDat->FileType();
    if (type == "dat") {
        cDlg.Filter("Data (*.dat) | *.dat");
    }
    if (type == "csv") {
        cDlg.Filter("Comma Separated Values (*.csv) | *.csv");
    }
}

void frmMain::cmdSave_Click() {
    SetDialogFilter();
    cDlg.FileName(myDat->FileName());
    cDlg.InitDir("c:\\");
    cDlg.ShowSave();
    if (!cDlg.FileName().empty()) {
        AppCmd("Save", {cDlg.FileName()});
    }
}

void frmMain::AppQuit() {
    if (myRuntime.MsgBox("Are you sure?", okAndCancel, "Quit") == answerCancel) {
        return;
    }
    myForm.Unload();
    myRuntime.End();
}

void frmMain::cmdCancel_Click() {
    AppCmd("Quit");
}
