// Button states: what can be pressed follows from how many rows the list has and which one is selected, and
// the list is asked anew each time.
#include "editor/frmMain.h"

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
    cmdMoveUp.Enabled(!IsFirstRow() && !IsEmptyList() && HasSelection());
}

void frmMain::UpdateMoveDownButton() {
    cmdMoveDown.Enabled(!IsLastRow() && !IsEmptyList() && HasSelection());
}

void frmMain::UpdateSaveButton() {
    cmdSave.Enabled(!IsEmptyList());
}

bool frmMain::IsEmptyList() const {
    return ListView1.ListItems.Count() == 0;
}

bool frmMain::HasSelection() const {
    return myRpt->SelectedRow() != -1;
}

bool frmMain::IsFirstRow() const {
    return myRpt->SelectedRow() == 0;
}

bool frmMain::IsLastRow() const {
    const std::int16_t row = myRpt->SelectedRow();
    return row == myRpt->Rows() - 1 && row >= 0;
}
