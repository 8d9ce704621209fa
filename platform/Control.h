#pragma once
/// What all controls of a form have in common: name, tag, place, and the count of changes by which a desktop
/// sees what it has to show anew. A property that a kind of control lacks fails with NoSuchProperty; the
/// layout manager relies on it.
#include <stdexcept>
#include <string>

class Form;

/// A property was read or written that this kind of control doesn't have or doesn't let be written.
class NoSuchProperty : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Control {
public:
    Control(Form &pParent, std::string pName) : myParent(pParent), myName(std::move(pName)) {}
    virtual ~Control() = default;
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;

    /// The name of the control's class, such as "Label".
    virtual const char *TypeName() const = 0;

    /// The text in the control: what the user reads or types in a field. Fails for a control without one.
    virtual const std::string &Text() const;
    virtual void Text(const std::string &pText);

    /// Place and size in twips, stored as given, unrounded.
    virtual double Left() const;
    virtual void Left(double pTwips);
    virtual double Top() const;
    virtual void Top(double pTwips);
    virtual double Width() const;
    virtual void Width(double pTwips);
    virtual double Height() const;
    virtual void Height(double pTwips);

    Form &Parent() const { return myParent; }
    const std::string &Name() const { return myName; }

    const std::string &Tag() const { return myTag; }
    void Tag(std::string pTag) { myTag = std::move(pTag); }

    /// Goes up with each change that shows. A desktop that remembers the number that it showed last knows
    /// whether it has anything to do.
    int Revision() const { return myRevision; }

protected:
    void Touch() { ++myRevision; }

private:
    Form &myParent;
    std::string myName;
    std::string myTag;
    int myRevision = 1;
};

/// A control with a place in the window.
class SizedControl : public Control {
public:
    using Control::Control;
    using Control::Height;
    using Control::Left;
    using Control::Top;
    using Control::Width;

    double Left() const override { return myLeft; }
    void Left(double pTwips) override;
    double Top() const override { return myTop; }
    void Top(double pTwips) override;
    double Width() const override { return myWidth; }
    void Width(double pTwips) override;
    double Height() const override { return myHeight; }
    void Height(double pTwips) override;

    /// Places the control, all in twips.
    void Move(double pLeft, double pTop, double pWidth, double pHeight);

    bool Visible() const { return myVisible; }
    void Visible(bool pVisible);

    bool Enabled() const { return myEnabled; }
    void Enabled(bool pEnabled);

    /// Place in the tab order, from 0; controls that were given none come last, in order of creation.
    int TabIndex() const { return myTabIndex; }
    void TabIndex(int pIndex) { myTabIndex = pIndex; }

    /// What the pointer shows over the control and, where it has no text of its own, what it is called.
    const std::string &ToolTipText() const { return myToolTipText; }
    void ToolTipText(std::string pText) { myToolTipText = std::move(pText); }

    /// What assistive technology reads out for the control; empty: its caption.
    const std::string &AccessibleName() const { return myAccessibleName; }
    void AccessibleName(std::string pName) { myAccessibleName = std::move(pName); }
    const std::string &AccessibleDescription() const { return myAccessibleDescription; }
    void AccessibleDescription(std::string pText) { myAccessibleDescription = std::move(pText); }

protected:
    void SetHeight(double pTwips) { myHeight = pTwips; }

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
