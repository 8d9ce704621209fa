// Moving records between the fields and the list, whose rows are the working copy. The caption of cmdAdd is
// the only state: "Update" while the fields hold the selected row.
#include "editor/frmMain.h"
#include "platform/Runtime.h"
#include "text/Numbers.h"

namespace {

constexpr int mostRecords = clsDatFile::mostRows;

} // namespace

Control &frmMain::Field(std::int16_t pIndex) const {
    return myForm.Controls("cbo" + FormatWhole(pIndex + firstFieldNumber));
}

TextRow frmMain::TextsOfFields() const {
    std::vector<std::string> texts;
    for (std::int16_t i = 0; i < mySpec->Rows(); ++i) {
        texts.push_back(Field(i).Text());
    }
    return TextRow(texts);
}

void frmMain::cmdAdd_Click() {
    const std::string caption = cmdAdd.Caption();
    if (caption == "Add") {
        AddRecord();
    }
    if (caption == "Update") {
        UpdateRecord();
    }
    cmdAdd.Caption("Add");
    UpdateButtons();
}

void frmMain::AddRecord() {
    if (ListView1.ListItems.Count() >= mostRecords) {
        TellFault("The list is full: it holds at most " + std::to_string(mostRecords) + " records.");
        return;
    }
    ListView1.ListItems.Add(TextsOfFields());
}

void frmMain::UpdateRecord() {
    // Opening a file while the fields hold a row leaves no row selected. The fields keep what was typed.
    if (!HasSelection()) {
        return;
    }
    ListView1.SelectedItem()->Texts(TextsOfFields());
    for (std::int16_t i = 0; i < mySpec->Rows(); ++i) {
        Field(i).Text("");
    }
}

void frmMain::cmdDel_Click() {
    myRpt->Del();
    myRpt->SelectedRow(-1);
    cmdAdd.Caption("Add");
    UpdateButtons();
}

void frmMain::cmdMoveUp_Click() {
    myRpt->MoveUp();
    UpdateButtons();
}

void frmMain::cmdMoveDown_Click() {
    myRpt->MoveDown();
    UpdateButtons();
}

void frmMain::ListView1_ItemClick() {
    cmdAdd.Caption("Update");
    const auto r = static_cast<std::int16_t>(ListView1.SelectedItem()->Index() - 1);
    for (std::int16_t i = 0; i < mySpec->Rows(); ++i) {
        Field(i).Text(myRpt->Data(r, i));
    }
    UpdateButtons();
}
