#pragma once
/// The common part of all controls of a form: name, tag and place.
#include "forms/Property.h"

#include <string>
#include <utility>

class Form;

/// Twips in a logical pixel.
inline constexpr double twipsPerPixel = 15;

class Control : public Shown {
public:
    Control(Form &pParent, std::string pName) : myParent(pParent), myName(std::move(pName)) {}
    virtual ~Control() = default;
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;

    /// The name of the control's class, such as "Label".
    virtual const char *TypeName() const = 0;

    Form &Parent() const { return myParent; }
    const std::string &Name() const { return myName; }

    Property<std::string> Tag{*this};

private:
    Form &myParent;
    std::string myName;
};

/// A control with a place in the window. Places and sizes are in twips, kept as given, unrounded.
class SizedControl : public Control {
public:
    using Control::Control;

    Property<double> Left{*this};
    Property<double> Top{*this};
    Property<double> Width{*this};
    double Height() const { return myHeight(); }
    virtual void Height(double pTwips) { myHeight(pTwips); }
    void Move(double pLeft, double pTop, double pWidth, double pHeight) {
        Left(pLeft);
        Top(pTop);
        Width(pWidth);
        Height(pHeight);
    }

    Property<bool> Visible{*this, true};
    Property<bool> Enabled{*this, true};

    /// Position in the tab order, from 0. Controls without one come last, in order of creation.
    Property<int> TabIndex{*this, 32767};

    /// The text to show while the pointer rests on the control. It also names a control without a caption.
    Property<std::string> ToolTipText{*this};

    /// The name that assistive technology reads out for the control. If it is empty, the caption is used.
    Property<std::string> AccessibleName{*this};
    /// What it reads out after the name.
    Property<std::string> AccessibleDescription{*this};

private:
    Property<double> myHeight{*this};
};

/// A single-line field for a text of any length.
class TextField : public SizedControl {
public:
    using SizedControl::SizedControl;

    /// The text in the field. Setting it runs no check.
    const std::string &Text() const { return myText(); }
    virtual void Text(std::string pText) { myText(std::move(pText)); }

private:
    Property<std::string> myText{*this};
};
