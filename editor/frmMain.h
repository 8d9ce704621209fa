#pragma once
/// The main window: its design-time form, the dispatcher of application commands, and the handlers of its
/// events. Building the fields, moving records, files and leaving, and the button states are its members in
/// editor/.
#include "data/clsDatFile.h"
#include "platform/ComboBox.h"
#include "platform/CommonDialog.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/ListView.h"
#include "ui/clsCombo.h"
#include "ui/clsLayout.h"
#include "ui/clsListViewRpt.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class frmAbout;
class modMain;

class frmMain {
public:
    /// Field i is the control "cbo" and this number plus i, its label "lbl" and the same number.
    static constexpr int firstFieldNumber = 20;

    frmMain(Runtime &pRuntime, const modMain &pModule, frmAbout &pAbout);

    /// Runs an application command, in any mix of case: "load", "unload", "resize", "quit", "open" and "save"
    /// (pArg: a file name), "fmt" (pArg: a format number as text). An unknown command has no effect. Throws
    /// std::out_of_range when a command lacks its argument.
    void AppCmd(const std::string &pCmd, const std::vector<std::string> &pArg = {});
    /// Releases what the form's load has made. Only AppCmd calls it.
    void AppUnload();

    Form &Window() { return myForm; }

private:
    Runtime &myRuntime;
    const modMain &myModule;
    frmAbout &myAbout;
    Form &myForm;

public:
    // The design-time controls, in the order of the form.
    CommonDialog &cDlg;
    CommandButton &cmdAdd;
    CommandButton &cmdMoveUp;
    CommandButton &cmdDel;
    CommandButton &cmdMoveDown;
    CommandButton &cmdSave;
    CommandButton &cmdCancel;
    ListView &ListView1;
    MenuItem &mnuFile;
    MenuItem &mnuFileOpen;
    MenuItem &mnuFileExit;
    MenuItem &mnuHelp;
    MenuItem &mnuHelpContents;
    MenuItem &mnuHelpAbout;

private:
    void DesignForm();
    void ConnectEvents();

    // The form and its menu.
    void Form_Load();
    void Form_Unload();
    void Form_Resize();
    void mnuFileOpen_Click();
    void mnuFileExit_Click();
    void mnuHelpContents_Click();
    void mnuHelpAbout_Click();
    void AppResize();

    // Building the fields.
    void AppLoad();
    void TestSpecification();
    void BuildField(std::int16_t pRow, double pLeft, double pWidth, const std::string &pTag);
    void BuildCombo(std::int16_t pRow, ComboBox &pBox);
    [[noreturn]] void StopOnSpecification(const std::string &pPrompt);

    // Moving records.
    void cmdAdd_Click();
    void AddRecord();
    void UpdateRecord();
    void cmdDel_Click();
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    void ListView1_ItemClick();
    Control &Field(std::int16_t pIndex) const;
    TextRow TextsOfFields() const;

    // Files and leaving.
    void AppOpen(const std::string &pFn);
    void FillList();
    void AppSave(const std::string &pFn);
    void AppQuit();
    void cmdSave_Click();
    void cmdCancel_Click();
    void SetDialogFilter();
    void TellFault(const std::string &pText) const;

    // Button states.
    void UpdateButtons();
    void UpdateDelButton();
    void UpdateMoveUpButton();
    void UpdateMoveDownButton();
    void UpdateSaveButton();
    bool IsEmptyList() const;
    bool HasSelection() const;
    bool IsFirstRow() const;
    bool IsLastRow() const;

    std::unique_ptr<clsLayout> myLayout;
    std::unique_ptr<clsDatFile> mySpec;
    std::unique_ptr<clsDatFile> myDat;
    std::unique_ptr<clsListViewRpt> myRpt;
    std::vector<std::unique_ptr<clsCombo>> myCombos;
};
