#pragma once
/// The main window: its form, the dispatcher of application commands, and the handlers of its events. What
/// the commands do is defined in editor/, in one file for each topic.
#include "data/clsDatFile.h"
#include "forms/ComboBox.h"
#include "forms/CommonDialog.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "ui/clsCombo.h"
#include "ui/clsLayout.h"
#include "ui/clsListViewRpt.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class SpecColumns;
class frmAbout;
struct SpecColumn;

class frmMain {
public:
    /// The control of field i is named "cbo" followed by the sum of this number and i. The name of its label
    /// is "lbl" followed by the same sum.
    static constexpr int firstFieldNumber = 20;

    frmMain(Runtime &pRuntime, std::string pSpecFile, frmAbout &pAbout);

    /// Runs an application command, case ignored: "load", "unload", "resize", "quit", "open" and "save"
    /// (pArg: a file name), "fmt" (pArg: the number of a file format, as text). An unknown command has no
    /// effect. Throws std::out_of_range when a command lacks its argument.
    void AppCmd(const std::string &pCmd, const std::vector<std::string> &pArg = {});
    /// Releases the specification and the list report. Only AppCmd calls it.
    void AppUnload();

    Form &Window() { return myForm; }

    // The form has to be made before the controls on it, so these few private members stand above them.
private:
    Runtime &myRuntime;
    const std::string mySpecFile;
    frmAbout &myAbout;
    Form &myForm;

public:
    // The controls of the design, in the order in which they are added to myForm.
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
    void BuildList(const SpecColumns &pColumns);
    void BuildFields(const SpecColumns &pColumns);
    TextField &AddField(const std::string &pName, const SpecColumn &pColumn);
    void FillCombo(clsCombo &pCombo, ComboBox &pBox, const SpecColumn &pColumn) const;
    [[noreturn]] void StopOnSpecification(std::string_view pPrompt);

    // Moving records.
    void cmdAdd_Click();
    void AddRecord();
    void UpdateRecord();
    void cmdDel_Click();
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    void ListView1_ItemClick();
    TextField &Field(int pIndex) const;
    TextRow TextsOfFields() const;

    // Files and leaving.
    void AppOpen(const std::string &pFn);
    void LoadList(const std::string &pFn);
    std::vector<std::string> Titles() const;
    void AppSave(const std::string &pFn);
    void AppQuit();
    void cmdSave_Click();
    void cmdCancel_Click();
    void SetDialogFilter();
    /// Shows pText in a message. Does nothing when it is empty.
    void TellFault(std::string_view pText) const;

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
