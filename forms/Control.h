#pragma once
/// The common part of all controls of a form: name, tag, place, and a count of changes. The count tells a
/// desktop whether it has to show a control again.
#include <string>
#include <utility>

class Form;

/// Twips in a logical pixel.
inline constexpr double twipsPerPixel = 15;

class Control {
public:
    Control(Form &pParent, std::string pName) : myParent(pParent), myName(std::move(pName)) {}
    virtual ~Control() = default;
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;

    /// The name of the control's class, such as "Label".
    virtual const char *TypeName() const = 0;

    Form &Parent() const { return myParent; }
    const std::string &Name() const { return myName; }

    const std::string &Tag() const { return myTag; }
    void Tag(std::string pTag) { myTag = std::move(pTag); }

    /// Goes up with each visible change. A desktop remembers the revision that it showed last.
    int Revision() const { return myRevision; }
    /// Makes the number go up without a change, so that a desktop shows the control anew.
    void Touch() { ++myRevision; }

protected:
    /// Sets a property that can be seen.
    template <typename Value> void Change(Value &pProperty, Value pValue) {
        pProperty = std::move(pValue);
        Touch();
    }

private:
    Form &myParent;
    std::string myName;
    std::string myTag;
    int myRevision = 1;
};

/// A control with a place in the window. Places and sizes are in twips, kept as given, unrounded.
class SizedControl : public Control {
public:
    using Control::Control;

    double Left() const { return myLeft; }
    void Left(double pTwips) { Change(myLeft, pTwips); }
    double Top() const { return myTop; }
    void Top(double pTwips) { Change(myTop, pTwips); }
    double Width() const { return myWidth; }
    void Width(double pTwips) { Change(myWidth, pTwips); }
    double Height() const { return myHeight; }
    virtual void Height(double pTwips) { Change(myHeight, pTwips); }
    void Move(double pLeft, double pTop, double pWidth, double pHeight) {
        Left(pLeft);
        Top(pTop);
        Width(pWidth);
        Height(pHeight);
    }

    bool Visible() const { return myVisible; }
    void Visible(bool pVisible) { Change(myVisible, pVisible); }

    bool Enabled() const { return myEnabled; }
    void Enabled(bool pEnabled) { Change(myEnabled, pEnabled); }

    /// Position in the tab order, from 0. Controls without one come last, in order of creation.
    int TabIndex() const { return myTabIndex; }
    void TabIndex(int pIndex) { myTabIndex = pIndex; }

    /// The text to show while the pointer rests on the control. It also names a control without a caption.
    const std::string &ToolTipText() const { return myToolTipText; }
    void ToolTipText(std::string pText) { myToolTipText = std::move(pText); }

    /// The name that assistive technology reads out for the control. If it is empty, the caption is used.
    const std::string &AccessibleName() const { return myAccessibleName; }
    void AccessibleName(std::string pName) { myAccessibleName = std::move(pName); }
    const std::string &AccessibleDescription() const { return myAccessibleDescription; }
    void AccessibleDescription(std::string pText) { myAccessibleDescription = std::move(pText); }

private:
    double myLeft = 0;
    double myTop = 0;
    double myWidth = 0;
    double myHeight = 0;
    bool myVisible = true;
    bool myEnabled = true;
    int myTabIndex = 32767;
    std::string myToolTipText;
    std::string myAccessibleName;
    std::string myAccessibleDescription;
};

/// A single-line field for a text of any length.
class TextField : public SizedControl {
public:
    using SizedControl::SizedControl;

    /// The text in the field. Setting it runs no check.
    const std::string &Text() const { return myText; }
    virtual void Text(std::string pText) { Change(myText, std::move(pText)); }

private:
    std::string myText;
};
