// Files and leaving. Records go from a data file into the list and back; the data table only carries them
// between the two.
#include "app/frmMain.h"
#include "forms/Runtime.h"
#include "system/Files.h"
#include "system/Memory.h"
#include "text/Numbers.h"

namespace {

std::string FormatMessage(const std::string &pFn, const clsDatFile &pDat, const clsDatFile &pSpec) {
    return "File " + pFn + " is not in the correct format." + " It has" + Str(pDat.Cols()) + " columns." +
           "\n\n" + "Specification " + pSpec.FileName() + " is for" + Str(pSpec.Rows()) +
           " column data files.";
}

} // namespace

void frmMain::TellFault(std::string_view pText) const {
    if (!pText.empty()) {
        myRuntime.MsgBox(pText, MessageButtons::Ok, myForm.Caption());
    }
}

std::vector<std::string> frmMain::Titles() const {
    return mySpec->Col(0);
}

void frmMain::AppOpen(const std::string &pFn) {
    // All that can run out of memory comes before the first change. From the clearing on, a lack of memory is
    // a fault of the file.
    std::vector<std::string> titles = Titles();
    const bool isThere = !Dir(pFn).empty();
    myDat->FileName(pFn);
    myDat->Headers(std::move(titles));
    myRpt->Clear();
    UpdateButtons(); // A message may come before the end.
    if (isThere) {
        LoadList(pFn);
    }
    if (myRpt->Rows() > 0) {
        ListView1.EnsureVisible(1);
    }
    UpdateButtons();
}

void frmMain::LoadList(const std::string &pFn) {
    myDat->Load();
    std::string misfit;
    const bool isFilled = HasMemoryFor([&] {
        const Headroom headroom;
        // One message only: if the columns don't fit, the number of records matters little.
        if (myDat->WasRead() && myDat->Cols() != mySpec->Rows()) {
            misfit = FormatMessage(pFn, *myDat, *mySpec);
            return;
        }
        for (std::int16_t i = 0; i < myDat->Rows(); ++i) {
            myRpt->AddRow(myDat->Row(i));
        }
    });
    if (!isFilled) {
        myRpt->Clear();
        myDat->GiveUpLoading();
    }
    TellFault(misfit.empty() ? myDat->Fault() : misfit);
}

void frmMain::AppSave(const std::string &pFn) {
    std::vector<std::string> titles = Titles(); // A run that has opened no file has given none yet.
    myDat->Rows(myRpt->Rows());
    myDat->Cols(myRpt->Cols());
    myDat->Clear();
    for (std::int16_t i = 0; i < myDat->Rows(); ++i) {
        myDat->Row(i, myRpt->Row(i));
    }
    myDat->FileName(pFn);
    myDat->Headers(std::move(titles));
    myDat->Save();
    TellFault(myDat->Fault());
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
    if (myRuntime.MsgBox("Are you sure?", MessageButtons::OkAndCancel, "Quit") == MessageAnswer::Cancel) {
        return;
    }
    myForm.Unload();
    myRuntime.End();
}

void frmMain::cmdCancel_Click() {
    AppCmd("Quit");
}
