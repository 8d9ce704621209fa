// Moving records between the fields and the list, whose rows are the working copy. The caption of cmdAdd is
// the only state: "Update" while the fields hold the selected row.
#include "app/frmMain.h"

#include "system/Memory.h"
#include "text/Numbers.h"

TextField &frmMain::Field(int pIndex) const {
    return dynamic_cast<TextField &>(myForm.Controls("cbo" + FormatWhole(pIndex + firstFieldNumber)));
}

TextRow frmMain::TextsOfFields() const {
    const Headroom headroom;
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(mySpec->Rows()));
    for (int i = 0; i < mySpec->Rows(); ++i) {
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
    if (myRpt->Rows() >= clsDatFile::mostRows) {
        TellFault("The list is full: it holds at most " + std::to_string(clsDatFile::mostRows) + " records.");
        return;
    }
    myRpt->AddRow(TextsOfFields());
    ListView1.EnsureVisible(myRpt->Rows());
}

void frmMain::UpdateRecord() {
    // Opening a file while the fields hold a row leaves no row selected. The fields then keep their texts.
    if (!HasSelection()) {
        return;
    }
    myRpt->Row(myRpt->SelectedRow(), TextsOfFields());
    for (int i = 0; i < mySpec->Rows(); ++i) {
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
    const Headroom headroom;
    const TextRow record = myRpt->Row(myRpt->SelectedRow());
    std::vector<std::string> texts; // All of them first: the fields take the whole record or none of it.
    texts.reserve(static_cast<std::size_t>(mySpec->Rows()));
    for (int i = 0; i < mySpec->Rows(); ++i) {
        texts.emplace_back(record(i + 1));
    }
    cmdAdd.Caption("Update");
    for (int i = 0; i < mySpec->Rows(); ++i) {
        Field(i).Text(std::move(texts[static_cast<std::size_t>(i)]));
    }
    UpdateButtons();
}
