#pragma once
/// The editor without a screen: the main window, loaded for the limit table and ready for the acts of a user.
#include "app/frmMain.h"
#include "bench/NoDesktop.h"
#include "bench/Tables.h"
#include "forms/Runtime.h"
#include "help/frmAbout.h"

class Editor {
public:
    explicit Editor(std::int16_t pFmt) {
        form.Window().Load();
        form.AppCmd("fmt", {std::to_string(pFmt)});
    }

    void Open(const std::string &pFile) { form.AppCmd("open", {pFile}); }
    void Save(const std::string &pFile) { form.AppCmd("save", {pFile}); }
    int Rows() const { return form.ListView1.ListItems.Count(); }
    TextRow Row(int pRow) const { return form.ListView1.ListItems(pRow).Texts(); }
    /// The last message; empty when all went well.
    const std::string &Fault() const { return myDesktop.LastMessage(); }

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
