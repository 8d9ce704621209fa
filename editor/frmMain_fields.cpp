// Building the fields: the specification is read and tested, and the form's labels, fields, list columns and
// layout tags are made from it, one of each for every row.
#include "app/modMain.h"
#include "editor/frmMain.h"
#include "platform/Runtime.h"
#include "text/Files.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

/// The columns of a specification.
constexpr std::int16_t specCols = 4;
constexpr std::int16_t headingCol = 0;
constexpr std::int16_t widthCol = 1;
constexpr std::int16_t modeCol = 2;
constexpr std::int16_t listCol = 3;

constexpr int criticalStop = 16;

constexpr double labelTop = 120;
constexpr double labelHeight = 240;
constexpr double fieldTop = 360;
constexpr double fieldHeight = 315;
constexpr double gapTwips = 10; // between neighbouring fields

bool IsTextBox(const clsDatFile &pSpec, std::int16_t pRow) {
    return pSpec.Data(pRow, listCol) == "-";
}

double Percent(const clsDatFile &pSpec, std::int16_t pRow) {
    return Val(pSpec.Data(pRow, widthCol));
}

/// The sum of the percents so far with one more, as the layout tags count it. Each step rounds.
std::optional<std::int16_t> SumWith(std::int16_t pSum, double pPercent) {
    return Integer16(pSum + pPercent);
}

/// pText in quotes for a message: one line, and no more of it than a person reads.
std::string Quoted(std::string_view pText) {
    constexpr std::size_t mostBytes = 60;
    std::string text = WithoutNewLineBreaks("", pText.substr(0, mostBytes));
    return '"' + text + (pText.size() > mostBytes ? "...\"" : "\"");
}

/// What is wrong with row pRow, pSum being the percents before it; empty when nothing is.
std::string RowFault(const clsDatFile &pSpec, std::int16_t pRow, std::int16_t pSum) {
    const std::string row = "Row " + std::to_string(pRow + 1) + " ";
    bool isFilled = false;
    for (std::int16_t col = 0; col < specCols; ++col) {
        isFilled = isFilled || !pSpec.Data(pRow, col).empty();
    }
    if (!isFilled) {
        return row + "is empty: its fields are, or its line or one before it doesn't have 4 fields.";
    }
    const std::string width = pSpec.Data(pRow, widthCol);
    if (!WholeTextInteger(width)) {
        return row + "has the width " + Quoted(width) + ", which is not a number from -32768 to 32767.";
    }
    const std::string mode = pSpec.Data(pRow, modeCol);
    if (!IsTextBox(pSpec, pRow) && !Integer16(Val(mode))) {
        return row + "has the mode " + Quoted(mode) + ", which is beyond -32768 to 32767.";
    }
    if (!SumWith(pSum, Percent(pSpec, pRow))) {
        return row + "brings the sum of the widths beyond -32768 to 32767.";
    }
    return {};
}

} // namespace

void frmMain::StopOnSpecification(const std::string &pPrompt) {
    myRuntime.MsgBox(pPrompt, criticalStop, myForm.Caption());
    myForm.Unload();
    myRuntime.End(1);
}

void frmMain::TestSpecification() {
    const std::string error = "Error in specification file:\n" + mySpec->FileName() + "\n";
    const clsDatFile::Fault &fault = mySpec->LastFault();
    if (fault.kind == clsDatFile::Fault::Kind::NotRead) {
        StopOnSpecification(error + fault.text);
    }
    if (mySpec->Cols() != specCols) {
        StopOnSpecification(error + "It should have 4 columns.");
    }
    if (fault.kind != clsDatFile::Fault::Kind::None) {
        StopOnSpecification(error + fault.text);
    }
    if (mySpec->Rows() < 1) {
        StopOnSpecification(error + "It has no rows.");
    }
    std::int16_t sum = 0;
    for (std::int16_t row = 0; row < mySpec->Rows(); ++row) {
        const std::string rowFault = RowFault(*mySpec, row, sum);
        if (!rowFault.empty()) {
            StopOnSpecification(error + rowFault);
        }
        sum = SumWith(sum, Percent(*mySpec, row)).value_or(0);
    }
}

void frmMain::AppLoad() {
    mySpec = std::make_unique<clsDatFile>(myRuntime);
    mySpec->FileName(myModule.gSpecFile);
    if (!mySpec->Exists()) {
        StopOnSpecification("Specification file: " + myModule.gSpecFile + " doesn't exist.");
    }
    mySpec->Load();
    TestSpecification();

    myDat = std::make_unique<clsDatFile>(myRuntime);
    myRpt = std::make_unique<clsListViewRpt>();
    myRpt->LV(ListView1);
    myRpt->Headers(mySpec->Col(headingCol));
    for (std::int16_t row = 0; row < mySpec->Rows(); ++row) {
        myRpt->ColumnWidth(row, WholeTextInteger(mySpec->Data(row, widthCol)).value_or(0));
    }
    myRpt->Resize();

    double x = ListView1.Left();
    std::int16_t xp = 0;
    myCombos.resize(static_cast<std::size_t>(mySpec->Rows()));
    for (std::int16_t row = 0; row < mySpec->Rows(); ++row) {
        const double pct = Percent(*mySpec, row);
        const double w = ListView1.Width() * (pct / 100);
        BuildField(row, x, w, "X=" + FormatWhole(xp) + "/100 W=" + FormatWhole(pct) + "/100");
        x += w;
        xp = SumWith(xp, pct).value_or(0);
    }
    UpdateButtons();
}

void frmMain::BuildField(std::int16_t pRow, double pLeft, double pWidth, const std::string &pTag) {
    const std::string number = FormatWhole(pRow + firstFieldNumber);
    const std::string heading = mySpec->Data(pRow, headingCol);
    const double width = pWidth - gapTwips;

    auto &label = myForm.Add<Label>("lbl" + number);
    label.Move(pLeft, labelTop, width, labelHeight);
    label.Caption(" " + heading);
    label.Tag(pTag);

    SizedControl *field = nullptr;
    if (IsTextBox(*mySpec, pRow)) {
        auto &box = myForm.Add<TextBox>("cbo" + number);
        box.Move(pLeft, fieldTop, width, fieldHeight);
        field = &box;
    } else {
        auto &box = myForm.Add<ComboBox>("cbo" + number);
        box.Move(pLeft, fieldTop, width);
        BuildCombo(pRow, box);
        field = &box;
    }
    field->Tag(pTag);
    field->AccessibleName(std::string(Trim(heading)));
}

void frmMain::BuildCombo(std::int16_t pRow, ComboBox &pBox) {
    std::string listFile = mySpec->Data(pRow, listCol);
    if (Dir(listFile).empty()) {
        listFile = myRuntime.App().Path + "\\" + listFile;
    }
    auto combo = std::make_unique<clsCombo>();
    const std::int16_t mode = Integer16(Val(mySpec->Data(pRow, modeCol))).value_or(0);
    combo->cb(pBox);
    combo->Mode(mode);
    const std::string fault = combo->LoadFromTxtFile(listFile);
    if (!fault.empty()) {
        TellFault("List file " + listFile + " can't be read: " + fault + ". The list of " +
                  Quoted(mySpec->Data(pRow, headingCol)) + " is empty, and the field takes any text.");
    }
    if (mode >= 1 && pBox.ListCount() > 0) {
        pBox.AccessibleDescription("one of the listed values");
    }
    myCombos[static_cast<std::size_t>(pRow)] = std::move(combo);
}
