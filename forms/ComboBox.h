#pragma once
/// A combo box: a field over a list of entries. The box itself accepts any text; a client uses the events
/// KeyUp and Validate to complete and refuse texts.
#include "forms/Control.h"
#include "forms/Event.h"

#include <string>
#include <vector>

/// What a key does to the text of a field. A key that does neither moves the caret, for example, or is held
/// for another one.
enum class FieldKey { TypesText, Erases, Neither };

class ComboBox : public TextField {
public:
    static constexpr double fixedHeightTwips = 315;

    ComboBox(Form &pParent, std::string pName);
    const char *TypeName() const override { return "ComboBox"; }

    using TextField::Height;
    /// Has no effect: the height of a combo box is fixed.
    void Height(double /*pTwips*/) override {}

    using TextField::Text;
    /// Shows pText, whether or not the list holds it. No entry is current then, and the caret is at its
    /// start.
    void Text(std::string pText) override;

    int ListCount() const { return static_cast<int>(myList.size()); }
    /// Entry pIndex, from 0 to ListCount() - 1.
    const std::string &List(int pIndex) const { return myList[static_cast<std::size_t>(pIndex)]; }
    void AddItem(std::string pEntry);
    /// Adds all of pEntries, or throws and adds none.
    void AddItems(std::vector<std::string> pEntries);
    void Clear();

    /// The number of the current entry, -1 for none. Setting it copies the entry to Text; setting -1 leaves
    /// Text alone.
    int ListIndex() const { return myListIndex; }
    void ListIndex(int pIndex);

    /// The number of the first entry that begins with pStart, case ignored; -1 if there is none.
    int FindString(const std::string &pStart) const;

    /// Caret and selection, in UTF-16 units of Text. Setting the start puts the caret there and selects
    /// nothing.
    int SelStart() const { return mySelStart; }
    void SelStart(int pStart);
    int SelLength() const { return mySelLength; }
    void SelLength(int pLength);

    /// Returns whether the user has typed text since the last call. Erasing is not typing. A fast typist
    /// presses a key before releasing the one before it, so not every release has new text to complete.
    bool IsNewlyTypedIn();

    /// The acts of the user.
    void UserPressesKey(FieldKey pKey) { myLastKeyDown = pKey; }
    void UserEdits(const std::string &pText, int pSelStart);
    void UserSelects(int pSelStart, int pSelLength);
    void UserReleasesKey(FieldKey pKey) { KeyUp.Raise(pKey); }
    void UserPicks(int pIndex);

    /// Asks the client whether the focus may leave the box.
    bool MayLoseFocus();
    /// Whether the client has refused. The box shows this until its text is acceptable or the program sets
    /// another.
    bool IsRefusing() const { return myIsRefusing; }

    Event<FieldKey> KeyUp;
    Event<bool &> Validate; ///< Cancel: true keeps the focus in the box

private:
    std::vector<std::string> myList;
    int myListIndex = -1;
    int mySelStart = 0;
    int mySelLength = 0;
    FieldKey myLastKeyDown = FieldKey::Neither;
    bool myWasTypedIn = false;
    bool myIsRefusing = false;
};
