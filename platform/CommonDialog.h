#pragma once
/// The common file dialog: what a client sets before it is shown, and what it finds in FileName afterwards.
/// It settles which folder is entered and which name stands in the field; showing it is the desktop's.
#include "platform/Control.h"

#include <string>

class CommonDialog : public Control {
public:
    using Control::Control;
    const char *TypeName() const override { return "CommonDialog"; }

    /// A description and a pattern, separated by "|"; blanks around either don't count.
    void Filter(std::string pFilter) { myFilter = std::move(pFilter); }

    /// The folder to start in. One that isn't there gives way to the folder of the file chosen last, else to
    /// the current folder.
    void InitDir(std::string pFolder) { myInitDir = std::move(pFolder); }

    /// Before the dialog the name to offer; its folder, where it has one, is entered. After it the chosen
    /// path as the user gave it, or empty when the dialog was dismissed.
    const std::string &FileName() const { return myFileName; }
    void FileName(std::string pName) { myFileName = std::move(pName); }

    void ShowOpen();
    void ShowSave();

private:
    enum class Purpose { Open, Save };
    void Show(Purpose pPurpose);

    std::string myFilter;
    std::string myInitDir;
    std::string myFileName;
    std::string myLastFolder;
};
