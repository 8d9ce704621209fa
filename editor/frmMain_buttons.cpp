// Button states. They depend on the number of rows and on the selected row, which are read from the list
// each time.
#include "app/frmMain.h"

void frmMain::UpdateButtons() {
    UpdateDelButton();
    UpdateMoveUpButton();
    UpdateMoveDownButton();
    UpdateSaveButton();
}

void frmMain::UpdateDelButton() {
    cmdDel.Enabled(HasSelection());
}

void frmMain::UpdateMoveUpButton() {
    cmdMoveUp.Enabled(HasSelection() && !IsFirstRow());
}

void frmMain::UpdateMoveDownButton() {
    cmdMoveDown.Enabled(HasSelection() && !IsLastRow());
}

void frmMain::UpdateSaveButton() {
    cmdSave.Enabled(!IsEmptyList());
}

bool frmMain::IsEmptyList() const {
    return myRpt->Rows() == 0;
}

bool frmMain::HasSelection() const {
    return myRpt->SelectedRow() != -1;
}

bool frmMain::IsFirstRow() const {
    return myRpt->SelectedRow() == 0;
}

bool frmMain::IsLastRow() const {
    return HasSelection() && myRpt->SelectedRow() == myRpt->Rows() - 1;
}
