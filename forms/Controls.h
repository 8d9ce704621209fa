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

    Property<std::string> Caption{*this};

    /// A link has its text in ForeColor, and the pointer over it is a hand. Only a link takes clicks.
    Property<bool> IsLink{*this};
    Property<Colour> ForeColor{*this};

    Event<> Click;
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
    Property<std::string> Caption{*this};

    /// A 16 by 16 picture shown in place of a caption.
    Property<Picture> Shows{*this};

    /// The Esc key presses the cancel button of the form.
    Property<bool> Cancel{*this};

    /// The Enter key presses the default button of the form.
    Property<bool> Default{*this};

    /// The user presses the button. A disabled one takes no clicks.
    void Press() const;

    Event<> Click;
};

/// An entry of the menu bar, or of the submenu of another entry. It has no place and no size.
class MenuItem : public Control {
public:
    using Control::Control;
    const char *TypeName() const override { return "Menu"; }

    Property<std::string> Caption{*this};

    /// The entry whose submenu holds this one; null for an entry of the menu bar.
    Property<const MenuItem *> Above{*this};

    /// The shortcut in the form "Ctrl+O", or empty.
    Property<std::string> Shortcut{*this};

    Property<bool> Enabled{*this, true};

    /// The user chooses the entry, by mouse or key. A disabled one can't be chosen.
    void Choose() const;

    Event<> Click;
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

    Property<Colour> BorderColor{*this};
};
