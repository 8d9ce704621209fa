#pragma once
/// The common file dialog. A client sets its properties, shows it, and then finds the chosen path in
/// FileName. This class decides which folder and name the dialog starts with; the desktop shows the dialog.
#include "forms/Control.h"

#include <string>

class CommonDialog : public Control {
public:
    using Control::Control;
    const char *TypeName() const override { return "CommonDialog"; }

    /// A description and a pattern, separated by "|". Blanks around either don't count.
    Property<std::string> Filter{*this};

    /// The folder to start in. If it doesn't exist, the dialog starts in the folder of the last chosen file,
    /// else in the current folder.
    Property<std::string> InitDir{*this};

    /// Before the dialog: the name to offer. The dialog starts in its folder, which is the current one for a
    /// bare name. After the dialog: the chosen path as the user gave it, or empty if the user dismissed the
    /// dialog.
    Property<std::string> FileName{*this};

    void ShowOpen() { Show(Purpose::Open); }
    void ShowSave() { Show(Purpose::Save); }

private:
    enum class Purpose { Open, Save };
    void Show(Purpose pPurpose);

    std::string myLastFolder;
};
