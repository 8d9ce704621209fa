#pragma once
/// The editor without a screen: the main window, loaded by a specification and ready for the commands and the
/// acts of a user.
#include "bench/NoDesktop.h"
#include "bench/StandardTables.h"
#include "editor/frmMain.h"
#include "help/frmAbout.h"
#include "platform/Runtime.h"

class Editor {
public:
    Editor(const std::string &pSpecFile, StandardTables::FileForm pForm)
        : myAbout(myRuntime), myMain(myRuntime, pSpecFile, myAbout) {
        myMain.Window().Load();
        myMain.AppCmd("fmt", {std::to_string(static_cast<int>(pForm))});
    }

    frmMain &Main() { return myMain; }
    int Rows() const { return myMain.ListView1.ListItems.Count(); }
    /// Whether the last cell of the last row is pText.
    bool EndsWith(const std::string &pText) const {
        clsListViewRpt report;
        report.LV(myMain.ListView1);
        return report.Data(static_cast<std::int16_t>(report.Rows() - 1),
                           static_cast<std::int16_t>(report.Cols() - 1)) == pText;
    }

private:
    NoDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
    frmAbout myAbout;
    frmMain myMain;
};
