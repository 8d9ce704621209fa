#pragma once
/// The editor without a screen: the main window, loaded for the limit table and ready for the commands and
/// the acts of a user.
#include "bench/NoDesktop.h"
#include "bench/Tables.h"
#include "editor/frmMain.h"
#include "help/frmAbout.h"
#include "platform/Runtime.h"

class Editor {
public:
    explicit Editor(std::int16_t pFmt) {
        form.Window().Load();
        form.AppCmd("fmt", {std::to_string(pFmt)});
    }

    const ListItems &Rows() const { return form.ListView1.ListItems; }
    /// Whether the user was told nothing, since all that is measured should go well.
    bool IsQuiet() const { return myDesktop.LastMessage().empty(); }

private:
    static std::string SpecFile() {
        static const auto columns = Tables::Specification(Tables::limitCols);
        return Tables::File(clsDatFile::fmtDat, columns);
    }

    NoDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
    frmAbout myAbout{myRuntime};

public:
    frmMain form{myRuntime, SpecFile(), myAbout};
};
