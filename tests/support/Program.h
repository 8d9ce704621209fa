#pragma once
/// Runs the whole program as a user does. It starts on a command line, takes the user's verbs one by one, as
/// from a desktop, and shows its window as text. It has a fresh folder of its own, in which the test writes
/// files. The script answers messages and file dialogs.
#include "app/VersionRecord.h"
#include "app/modMain.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/ListView.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/TemporaryFolder.h"

#include <map>
#include <regex>
#include <sstream>

/// pText with CR LF in place of each LF, as tables and list files end their lines.
inline std::string CrLf(const std::string &pText) {
    return std::regex_replace(pText, std::regex("\n"), "\r\n");
}

/// Does pAct with the control if it is of this kind.
template <typename Kind, typename Act> void With(Control &pControl, Act pAct) {
    if (auto *const control = dynamic_cast<Kind *>(&pControl)) {
        pAct(*control);
    }
}

/// All that a desktop shows of a control, apart from the rows and columns of a list: its name, tab index,
/// place and size, whether it is enabled, and what is of its kind.
inline std::string LookOf(Control &pControl) {
    std::ostringstream look;
    const auto put = [&](const auto &...pParts) { ((look << pParts << " "), ...); };
    put(pControl.Name());
    With<SizedControl>(pControl, [&](SizedControl &p) {
        put(p.TabIndex(), p.Left(), p.Top(), p.Width(), p.Height(), p.Enabled(), p.Tag());
    });
    With<MenuItem>(pControl, [&](MenuItem &p) { put(p.Caption(), p.Shortcut(), p.Enabled()); });
    With<Label>(pControl, [&](Label &p) { put(p.Caption(), p.ForeColor(), p.IsLink()); });
    With<Line>(pControl, [&](Line &p) { put(p.BorderColor()); });
    With<CommandButton>(pControl, [&](CommandButton &p) {
        put(p.Caption(), p.ToolTipText(), static_cast<int>(p.Shows()), p.Default(), p.Cancel());
    });
    With<TextField>(pControl, [&](TextField &p) { put(p.AccessibleName(), p.Text()); });
    With<ComboBox>(pControl, [&](ComboBox &p) {
        put(p.AccessibleDescription(), p.ListCount(), p.ListIndex(), p.SelStart(), p.SelLength(),
            p.IsRefusing());
    });
    With<ListView>(pControl, [&](ListView &p) {
        put(p.AccessibleName(), p.View() == ListView::ViewStyle::Report, p.SelectedIndex(), p.CurrentIndex(),
            p.ViewRevision());
    });
    return look.str();
}

/// The same for all controls of a form.
inline std::string LooksOf(const Form &pForm) {
    std::string looks;
    for (const auto &control : pForm.Controls()) {
        looks += LookOf(*control) + "/ ";
    }
    return looks;
}

/// The rows of a list, each with a bar between its cells, and with ">" before the selected one.
inline std::string RowsOf(const ListView &pList) {
    std::string rows;
    for (int i = 1; i <= pList.ListItems.Count(); ++i) {
        const TextRow &row = pList.ListItems(i).Texts();
        for (int c = 1; c <= row.Count(); ++c) {
            rows += c > 1 ? "|" : i == pList.SelectedIndex() ? ">" : " ";
            rows += row(c);
        }
    }
    return rows;
}

/// The heading and the width of each column of a list.
inline std::string ColumnsOf(const ListView &pList) {
    std::ostringstream text;
    for (int i = 1; i <= pList.ColumnHeaders.Count(); ++i) {
        text << pList.ColumnHeaders(i).Text << " " << pList.ColumnHeaders(i).Width << " ";
    }
    return text.str();
}

class Program {
public:
    /// Puts the specification of three fields beside the program: Name, a text box; City, listed (Paris,
    /// Rome); Kind, listed and completed (Abacus, Apple, Banana).
    /// pExeName is the name of the program's file.
    explicit Program(std::string pExeName = "NorvoEditDat") : myExeName(std::move(pExeName)) {
        const char *const columns = "3,4\nName,50,0,-\nCity,30,1,cities.txt\nKind,20,2,kinds.txt\n";
        files.Write(myExeName + ".dat", CrLf(columns));
        files.Write("cities.txt", "Paris\r\nRome\r\n");
        files.Write("kinds.txt", "Abacus\r\nApple\r\nBanana\r\n");
    }

    TemporaryFolder files; ///< the program's folder
    ScriptedDesktop script;

    /// Starts the program on this command text.
    Program &Start(const std::string &pCommand = "") {
        myModule.reset(); // Before the controls that it serves.
        myForm = nullptr;
        myFocus = nullptr;
        myExitStatus.reset();
        myShown.clear();
        myRuntime = std::make_unique<Runtime>(script, MakeAppRecord(files.File(myExeName)), pCommand);
        return Act([&] {
            myModule = std::make_unique<modMain>(*myRuntime);
            myModule->Main();
            myForm = script.shown.back();
        });
    }
    /// Starts it on the file "data.dat", which gets this text. LF ends a line in pText, CR LF in the file.
    Program &StartOn(const std::string &pText) { return Start(files.Write("data.dat", CrLf(pText))); }

    /// Does pAct as an act of the user, and then shows the main window as a desktop does: it looks again only
    /// at what has a higher count of changes. What it shows has to be what is there.
    Program &Act(const std::function<void()> &pAct) {
        Scarcity::isCounting = true;
        try {
            myRuntime->Run(pAct);
            myRuntime->EndIfNoFormIsLoaded();
        } catch (const ProgramEnded &end) {
            myExitStatus = end.status;
        }
        Scarcity::isCounting = false;
        for (const auto &control : myForm == nullptr ? noControls : Main().Controls()) {
            Show(control->Name(), control->Revision(), LookOf(*control));
            With<ListView>(*control, [this](ListView &p) {
                Show("columns", p.ColumnsRevision(), ColumnsOf(p));
                Show("rows, selected " + std::to_string(p.SelectedIndex()), p.RowsRevision(), RowsOf(p));
            });
        }
        return *this;
    }

    // The verbs. A verb that needs the focus has no effect while a field refuses to lose it.
    /// Replaces the text of field pField, from 0, by pText (ASCII). In a combo box one key types all of it,
    /// and its release may complete the text.
    Program &Type(int pField, const std::string &pText) {
        auto &field = dynamic_cast<TextField &>(Main().Controls("cbo" + std::to_string(pField + 20)));
        return At(field, [&] {
            if (pText != field.Text()) {
                myShown[field.Name()].second = "typed"; // unless the program counts a change of the field
            }
            With<TextBox>(field, [&](TextBox &pBox) { pBox.UserEdits(pText); });
            With<ComboBox>(field, [&](ComboBox &pBox) {
                pBox.UserPressesKey(pText.empty() ? FieldKey::Erases : FieldKey::TypesText);
                pBox.UserEdits(pText, static_cast<int>(pText.size()));
                pBox.UserReleasesKey(FieldKey::TypesText);
            });
        });
    }
    /// Presses the button "cmd" and pName of the window on top.
    Program &Press(const std::string &pName) {
        auto &button = dynamic_cast<CommandButton &>(script.shown.back()->Controls("cmd" + pName));
        return At(button, [&] { button.Press(); });
    }
    /// Picks row pRow of the list, from 0.
    Program &Pick(int pRow) {
        return At(List(), [&] { List().Pick(pRow + 1); });
    }
    /// Chooses a menu entry by menu and caption, such as "FileOpen".
    Program &Choose(const std::string &pEntry) {
        return Act([&] { dynamic_cast<MenuItem &>(Main().Controls("mnu" + pEntry)).Choose(); });
    }
    /// Chooses File Open and gives pPath in the dialog, or dismisses it without a path.
    Program &Open(const std::optional<std::string> &pPath) {
        script.ExpectOpen(pPath);
        return Choose("FileOpen");
    }
    /// The same for Save As.
    Program &SaveAs(const std::optional<std::string> &pPath) {
        script.ExpectSave(pPath);
        return Press("Save");
    }

    /// What the main window holds: each field's heading and text, with "!" if it refuses the text; the rows;
    /// the first letter of each button, "M" for a picture, or "-" if it is disabled.
    std::string Window() const {
        std::string fields;
        std::string buttons;
        for (const auto &control : Main().Controls()) {
            With<TextField>(*control, [&](auto &p) { fields += p.AccessibleName() + "[" + p.Text() + "]"; });
            With<ComboBox>(*control, [&](ComboBox &p) { fields += p.IsRefusing() ? "!" : ""; });
            With<CommandButton>(*control, [&](CommandButton &p) {
                buttons += !p.Enabled() ? '-' : p.Caption().empty() ? 'M' : p.Caption()[0];
            });
        }
        return fields + RowsOf(List()) + " " + buttons;
    }

    /// The main window's form. It stays after the window is closed.
    Form &Main() const { return *myForm; }
    ListView &List() const { return dynamic_cast<ListView &>(Main().Controls("ListView1")); }
    /// The program's exit status; nothing while it runs.
    std::optional<int> ExitStatus() const { return myExitStatus; }

private:
    Program &At(Control &pControl, const std::function<void()> &pAct) {
        auto *box = dynamic_cast<ComboBox *>(myFocus);
        if (box != nullptr && box != &pControl && !box->MayLoseFocus()) {
            return *this;
        }
        myFocus = &pControl;
        return Act(pAct);
    }

    void Show(const std::string &pWhat, int pCount, const std::string &pLook) {
        auto &shown = myShown[pWhat];
        shown = shown.first == pCount ? shown : std::pair(pCount, pLook);
        EXPECT_EQ(shown.second, pLook) << pWhat << " has changed, and no count of changes has gone up";
    }

    static inline const std::vector<std::unique_ptr<Control>> noControls;
    std::string myExeName;
    std::unique_ptr<Runtime> myRuntime;
    std::unique_ptr<modMain> myModule;
    Form *myForm = nullptr;
    Control *myFocus = nullptr;
    std::map<std::string, std::pair<int, std::string>> myShown; ///< the count and the look of each thing
    std::optional<int> myExitStatus;
};
