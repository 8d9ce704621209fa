// The form as designed: the controls with their places, captions and layout rules, and the handler of each
// event.
#include "app/frmMain.h"

#include "forms/Runtime.h"

namespace {

/// The place of a control, in twips, and its rule for following the window.
struct Design {
    double left, top, width, height;
    int tabIndex;
    const char *tag;
};

template <typename Kind> Kind &Place(Form &pForm, const char *pName, const Design &pDesign) {
    auto &control = pForm.Add<Kind>(pName);
    control.Move(pDesign.left, pDesign.top, pDesign.width, pDesign.height);
    control.TabIndex(pDesign.tabIndex);
    control.Tag(pDesign.tag);
    return control;
}

MenuItem &Entry(Form &pForm, const char *pName, const char *pCaption, const MenuItem *pAbove = nullptr,
                const char *pShortcut = "") {
    auto &item = pForm.Add<MenuItem>(pName);
    item.Caption(pCaption);
    item.Shortcut(pShortcut);
    item.Above(pAbove);
    return item;
}

} // namespace

frmMain::frmMain(Runtime &pRuntime, std::string pSpecFile, frmAbout &pAbout)
    : myRuntime(pRuntime), mySpecFile(std::move(pSpecFile)), myAbout(pAbout), myForm(pRuntime.NewForm()),
      cDlg(myForm.Add<CommonDialog>("cDlg")),
      cmdAdd(Place<CommandButton>(myForm, "cmdAdd", {120, 3240, 720, 360, 0, "Y=1"})),
      cmdMoveUp(Place<CommandButton>(myForm, "cmdMoveUp", {1800, 3240, 361, 360, 1, "Y=1"})),
      cmdDel(Place<CommandButton>(myForm, "cmdDel", {960, 3240, 720, 359, 2, "Y=1"})),
      cmdMoveDown(Place<CommandButton>(myForm, "cmdMoveDown", {2280, 3240, 361, 360, 3, "Y=1"})),
      cmdSave(Place<CommandButton>(myForm, "cmdSave", {6960, 3240, 840, 360, 4, "X=1 Y=1"})),
      cmdCancel(Place<CommandButton>(myForm, "cmdCancel", {7920, 3240, 840, 360, 5, "X=1 Y=1"})),
      ListView1(Place<ListView>(myForm, "ListView1", {120, 720, 8640, 2400, 6, "H=1 W=1"})),
      mnuFile(Entry(myForm, "mnuFile", "&File")),
      mnuFileOpen(Entry(myForm, "mnuFileOpen", "&Open", &mnuFile, "Ctrl+O")),
      mnuFileExit(Entry(myForm, "mnuFileExit", "E&xit", &mnuFile)),
      mnuHelp(Entry(myForm, "mnuHelp", "&Help")),
      mnuHelpContents(Entry(myForm, "mnuHelpContents", "&Contents", &mnuHelp, "F1")),
      mnuHelpAbout(Entry(myForm, "mnuHelpAbout", "&About", &mnuHelp)) {
    DesignForm();
    ConnectEvents();
}

void frmMain::DesignForm() {
    myForm.Caption("Norvo Data File Editor");
    myForm.ClientSize(8880, 3675);
    cmdAdd.Caption("Add");
    cmdDel.Caption("Delete");
    cmdSave.Caption("Save &As");
    cmdCancel.Caption("Cancel");
    cmdCancel.Cancel(true);
    cmdMoveUp.Shows(CommandButton::Picture::TriangleUp);
    cmdMoveUp.ToolTipText("Move Up");
    cmdMoveDown.Shows(CommandButton::Picture::TriangleDown);
    cmdMoveDown.ToolTipText("Move Down");
    ListView1.AccessibleName("Records");
}

void frmMain::ConnectEvents() {
    myForm.LoadEvent.Connect([this] { Form_Load(); });
    myForm.UnloadEvent.Connect([this] { Form_Unload(); });
    myForm.Resize.Connect([this] { Form_Resize(); });
    cmdAdd.Click.Connect([this] { cmdAdd_Click(); });
    cmdMoveUp.Click.Connect([this] { cmdMoveUp_Click(); });
    cmdDel.Click.Connect([this] { cmdDel_Click(); });
    cmdMoveDown.Click.Connect([this] { cmdMoveDown_Click(); });
    cmdSave.Click.Connect([this] { cmdSave_Click(); });
    cmdCancel.Click.Connect([this] { cmdCancel_Click(); });
    ListView1.ItemClick.Connect([this](ListItem & /*Item*/) { ListView1_ItemClick(); });
    mnuFileOpen.Click.Connect([this] { mnuFileOpen_Click(); });
    mnuFileExit.Click.Connect([this] { mnuFileExit_Click(); });
    mnuHelpContents.Click.Connect([this] { mnuHelpContents_Click(); });
    mnuHelpAbout.Click.Connect([this] { mnuHelpAbout_Click(); });
}
