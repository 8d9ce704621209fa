// Building the fields: the labels, fields, list columns and layout tags of the form, one of each for every
// column of the specification.
#include "app/frmMain.h"

#include "data/SpecColumns.h"
#include "forms/Runtime.h"
#include "system/Files.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr double labelTop = 120;
constexpr double labelHeight = 240;
constexpr double fieldTop = 360;
constexpr double fieldHeight = 315;
constexpr double gapTwips = 10; // between neighbouring fields

/// The option string that makes label and field of pColumn follow the window's width.
std::string Tag(const SpecColumn &pColumn) {
    return "X=" + FormatWhole(pColumn.place) + "/100 W=" + FormatWhole(pColumn.percent) + "/100";
}

} // namespace

void frmMain::StopOnSpecification(std::string_view pPrompt) {
    myRuntime.MsgBox(pPrompt, MessageButtons::CriticalStop, myForm.Caption());
    myForm.Unload();
    myRuntime.End(1);
}

void frmMain::AppLoad() {
    const auto stop = [this](std::string_view pText) { myRuntime.Stop(pText); };
    mySpec = std::make_unique<clsDatFile>(stop);
    mySpec->FileName(mySpecFile);
    if (!mySpec->Exists()) {
        StopOnSpecification("Specification file: " + mySpecFile + " doesn't exist.");
    }
    mySpec->Load();
    const SpecColumns columns(*mySpec);
    if (!columns.Fault().empty()) {
        StopOnSpecification("Error in specification file:\n" + mySpecFile + "\n" + columns.Fault());
    }
    myDat = std::make_unique<clsDatFile>(stop);
    BuildList(columns);
    BuildFields(columns);
    UpdateButtons();
}

void frmMain::BuildList(const SpecColumns &pColumns) {
    myRpt = std::make_unique<clsListViewRpt>();
    myRpt->LV(ListView1);
    myRpt->Headers(Titles());
    std::int16_t index = 0;
    for (const SpecColumn &column : pColumns.All()) {
        myRpt->ColumnWidth(index++, column.listPercent);
    }
    myRpt->Resize();
}

void frmMain::BuildFields(const SpecColumns &pColumns) {
    int number = firstFieldNumber;
    double x = ListView1.Left();
    for (const SpecColumn &column : pColumns.All()) {
        const double w = ListView1.Width() * (column.percent / 100);
        const std::string suffix = FormatWhole(number++);

        auto &label = myForm.Add<Label>("lbl" + suffix);
        label.Move(x, labelTop, w - gapTwips, labelHeight);
        label.Caption(" " + column.heading);
        label.Tag(Tag(column));

        TextField &field = AddField("cbo" + suffix, column);
        field.Move(x, fieldTop, w - gapTwips, fieldHeight);
        field.Tag(Tag(column));
        field.AccessibleName(std::string(Trim(column.heading)));
        x += w;
    }
}

TextField &frmMain::AddField(const std::string &pName, const SpecColumn &pColumn) {
    if (pColumn.isTextBox) {
        myCombos.push_back(nullptr);
        return myForm.Add<TextBox>(pName);
    }
    auto &box = myForm.Add<ComboBox>(pName);
    myCombos.push_back(std::make_unique<clsCombo>());
    FillCombo(*myCombos.back(), box, pColumn);
    return box;
}

void frmMain::FillCombo(clsCombo &pCombo, ComboBox &pBox, const SpecColumn &pColumn) const {
    const std::string listFile = pColumn.ListPath(myRuntime.App().Path);
    pCombo.cb(pBox);
    pCombo.Mode(pColumn.mode);
    pCombo.LoadFromTxtFile(listFile);
    if (!pCombo.Fault().empty()) {
        const std::string reason(pCombo.Fault());
        TellFault("List file " + listFile + " can't be read: " + reason + ". The list of " +
                  Quoted(pColumn.heading) + " is empty, and the field takes any text.");
    }
    if (pColumn.mode >= 1 && pBox.ListCount() > 0) {
        pBox.AccessibleDescription("one of the listed values");
    }
}
