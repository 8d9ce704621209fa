#pragma once
/// The About box: the version record and a link to the maker's page. It does not depend on the main window.
#include "forms/Controls.h"
#include "forms/Form.h"

class frmAbout {
public:
    explicit frmAbout(Runtime &pRuntime);

    /// Shows the box, or brings it to the front if it is open.
    void Show() { myForm.Show(); }

private:
    void Form_Load();
    void lblCopyright_Click();
    void cmdOK_Click();

    Runtime &myRuntime;
    Form &myForm;
    CommandButton &cmdOK;
    Label &lblComments;
    Label &lblCopyright;
    Label &lblTitle;
    Label &lblVersion;
};
