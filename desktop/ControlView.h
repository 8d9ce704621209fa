#pragma once
/// The face of one control of a form: a widget that shows the control's state and hands the user's acts on.
/// It asks for the control's revision and does nothing while that stays the same.
#include "desktop/Acts.h"
#include "platform/Control.h"

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

    /// Whether the control would take the focus: it is of a kind that does, and is wide enough to be seen.
    bool TakesFocus() const { return FocusPolicy() != Qt::NoFocus && !PlaceOf().isEmpty(); }

    /// Whether the focus may leave the control by the user's choice.
    virtual bool MayLoseFocus() const { return true; }

    /// Whether the focus goes here when the button that has it is disabled.
    virtual bool TakesFocusOfDisabled() const { return false; }

protected:
    /// How the control takes the focus while it can be seen.
    virtual Qt::FocusPolicy FocusPolicy() const { return Qt::NoFocus; }
    /// Where the widget stands in the client area.
    virtual QRect PlaceOf() const;
    /// Brings up to date what this kind of control has beyond place, state and names.
    virtual void Show() = 0;
    virtual void ShowEnabled();

    Acts &myActs;

private:
    void ShowCommon();

    const SizedControl &myControl;
    int myShownRevision = 0;
};

/// A view of pControl inside pParent; nothing when that kind of control has no face of its own.
std::unique_ptr<ControlView> MakeView(Acts &pActs, ::Control &pControl, QWidget &pParent);
