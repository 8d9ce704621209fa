#pragma once
/// The view of one control: a widget that shows the control's state and passes on what the user does. It
/// remembers the control's revision, and does nothing until that changes.
#include "desktop/Acts.h"
#include "forms/Control.h"

#include <QWidget>

#include <memory>

class ControlView {
public:
    ControlView(Acts &pActs, const SizedControl &pControl) : myActs(pActs), myControl(pControl) {}
    virtual ~ControlView() = default;
    ControlView(const ControlView &) = delete;
    ControlView &operator=(const ControlView &) = delete;

    const SizedControl &Control() const { return myControl; }
    virtual QWidget &Widget() = 0;

    /// Brings the widget up to date if the control has changed since the last time.
    void Sync();

    /// Whether the control can take the focus: its kind does so, and it has a visible size.
    bool TakesFocus() const { return FocusPolicy() != Qt::NoFocus && !PlaceOf().isEmpty(); }

    /// Whether the control lets the user move the focus away.
    virtual bool MayLoseFocus() { return true; }

    /// Takes the focus from a button that is about to be disabled, if this kind of control does so. Returns
    /// whether it has.
    virtual bool TakeFocusOfDisabled() { return false; }

protected:
    /// How the control takes the focus while it is visible.
    virtual Qt::FocusPolicy FocusPolicy() const { return Qt::NoFocus; }
    /// Place of the widget in the client area.
    virtual QRect PlaceOf() const;
    /// Updates what only this kind of control has, beyond place, state and names.
    virtual void Show() = 0;

    /// What assistive technology reads out after the name.
    virtual QString Description() const;
    /// Gives pWidget a description. A screen reader reads it out each time, so it is given only if it is new.
    static void Describe(QWidget &pWidget, const QString &pText);

    /// Whether the control that has the focus would let it move to this one. Assistive technology presses
    /// buttons and picks rows without moving the focus first.
    bool MayTakeFocus();

    Acts &myActs;

private:
    void ShowCommon();

    const SizedControl &myControl;
    int myShownRevision = 0;
};

/// Makes a view of pControl inside pParent; null if that kind of control has none.
std::unique_ptr<ControlView> MakeView(Acts &pActs, ::Control &pControl, QWidget &pParent);
