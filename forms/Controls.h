#pragma once
/// The simple controls: label, text box, button, menu item, and the parts of a dialog that take no input
/// (picture, line). Each act of the user has its function, such as Press, which the desktop and the tests
/// call alike.
#include "forms/Control.h"
#include "forms/Event.h"

#include <cstdint>
#include <string>

/// A colour as 0xRRGGBB.
using Colour = std::uint32_t;

/// A line of text, in which "&" is an ordinary character.
class Label : public SizedControl {
public:
    using SizedControl::SizedControl;
    const char *TypeName() const override { return "Label"; }

    const std::string &Caption() const { return myCaption; }
    void Caption(std::string pCaption) { Change(myCaption, std::move(pCaption)); }

    /// Makes the label a link: the text in pColour, the pointer a hand. Only a link takes clicks.
    void LooksLikeLink(Colour pColour);
    bool IsLink() const { return myIsLink; }
    Colour ForeColor() const { return myForeColor; }

    Event<> Click;

private:
    std::string myCaption;
    bool myIsLink = false;
    Colour myForeColor = 0;
};

class TextBox : public TextField {
public:
    using TextField::TextField;
    const char *TypeName() const override { return "TextBox"; }

    /// The user has changed the text to pText. Line breaks that the change brought in become blanks.
    void UserEdits(const std::string &pText);
};

class CommandButton : public SizedControl {
public:
    enum class Picture { None, TriangleUp, TriangleDown };

    using SizedControl::SizedControl;
    const char *TypeName() const override { return "CommandButton"; }

    /// "&" marks the letter of the access key.
    const std::string &Caption() const { return myCaption; }
    void Caption(std::string pCaption) { Change(myCaption, std::move(pCaption)); }

    /// A 16 by 16 picture shown in place of a caption.
    Picture Shows() const { return myPicture; }
    void Shows(Picture pPicture) { myPicture = pPicture; }

    /// The Esc key presses the cancel button of the form.
    bool Cancel() const { return myIsCancel; }
    void Cancel(bool pIsCancel) { myIsCancel = pIsCancel; }

    /// The Enter key presses the default button of the form.
    bool Default() const { return myIsDefault; }
    void Default(bool pIsDefault) { myIsDefault = pIsDefault; }

    /// The user presses the button. A disabled one takes no clicks.
    void Press() const;

    Event<> Click;

private:
    std::string myCaption;
    Picture myPicture = Picture::None;
    bool myIsCancel = false;
    bool myIsDefault = false;
};

/// An entry of the menu bar, or of the submenu of another entry. It has no place and no size.
class MenuItem : public Control {
public:
    using Control::Control;
    const char *TypeName() const override { return "Menu"; }

    const std::string &Caption() const { return myCaption; }
    void Caption(std::string pCaption) { myCaption = std::move(pCaption); }

    /// The entry whose submenu holds this one; null for an entry of the menu bar.
    const MenuItem *Above() const { return myAbove; }
    void Above(const MenuItem &pItem) { myAbove = &pItem; }

    /// The shortcut in the form "Ctrl+O", or empty.
    const std::string &Shortcut() const { return myShortcut; }
    void Shortcut(std::string pKeys) { myShortcut = std::move(pKeys); }

    bool Enabled() const { return myEnabled; }
    void Enabled(bool pEnabled) { Change(myEnabled, pEnabled); }

    /// The user chooses the entry, by mouse or key. A disabled one can't be chosen.
    void Choose() const;

    Event<> Click;

private:
    std::string myCaption;
    const MenuItem *myAbove = nullptr;
    std::string myShortcut;
    bool myEnabled = true;
};

/// A box that shows the program's icon.
class PictureBox : public SizedControl {
public:
    using SizedControl::SizedControl;
    const char *TypeName() const override { return "PictureBox"; }
};

/// A horizontal line. Its Height is its thickness.
class Line : public SizedControl {
public:
    using SizedControl::SizedControl;
    const char *TypeName() const override { return "Line"; }

    Colour BorderColor() const { return myBorderColor; }
    void BorderColor(Colour pColour) { myBorderColor = pColour; }

private:
    Colour myBorderColor = 0;
};
