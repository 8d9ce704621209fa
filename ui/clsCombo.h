#pragma once
/// Makes a combo box a field for data entry: fills its list from a text file, keeps the focus while the text
/// isn't listed, and completes typed text. It serves the box during its own lifetime; the form owns the box.
#include "system/Reason.h"

#include <cstdint>
#include <string>
#include <string_view>

class ComboBox;
enum class FieldKey;

class clsCombo {
public:
    clsCombo() = default;
    ~clsCombo() { LeaveBox(); }
    clsCombo(const clsCombo &) = delete;
    clsCombo &operator=(const clsCombo &) = delete;

    /// Serves pCB from now on, and no longer the box before. Other objects may serve pCB too.
    void cb(ComboBox &pCB);

    /// 0 or below: any text. 1: the text must be an entry of the list, unless the list is empty. 2: as 1,
    /// with completion. 3 and above: as 1.
    void Mode(std::int16_t pMode) { myMode = pMode; }

    /// Empties the list.
    void Clear();

    /// Adds each line of the file pFn, unchanged, to the end of the list. Does nothing if Dir doesn't find
    /// the file.
    void LoadFromTxtFile(const std::string &pFn);
    /// The reason why the last file was there but could not be read. Empty when it could. After a fault the
    /// file has added nothing.
    std::string_view Fault() const { return myFault.Words(); }

private:
    void LeaveBox();
    void myCB_KeyUp(FieldKey Key);
    void myCB_Validate(bool &Cancel) const;
    static void AutoComplete(ComboBox &pCombo);

    ComboBox *myCB = nullptr;
    std::int16_t myMode = 0;
    Reason myFault;
};
