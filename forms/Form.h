#pragma once
/// A form: the caption, size and state of a window, its controls, and its events. It needs no screen. A
/// desktop shows it, and calls the User... functions below when the user acts on the window.
#include "forms/Control.h"
#include "forms/Event.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

class Runtime;

class Form : public Shown {
public:
    enum class BorderStyle { Sizable, FixedDialog };
    static constexpr int stateNormal = 0;
    static constexpr int stateMinimized = 1;
    static constexpr int stateMaximized = 2;

    /// A fixed allowance for frame, title and menu bar, by which Width and Height exceed the client area. The
    /// size of the real frame isn't known before the window is on the screen. Taking it over then would look
    /// as if the form had grown.
    static constexpr float frameWidthTwips = 240;
    static constexpr float frameHeightTwips = 1050;

    explicit Form(::Runtime &pRuntime) : myRuntime(pRuntime) {}
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;

    ::Runtime &Runtime() const { return myRuntime; }
    Property<std::string> Caption{*this};
    Property<BorderStyle> Border{*this};

    /// Outer size in twips. Setting a different value raises Resize at once.
    float Width() const { return myWidth; }
    void Width(float pTwips) { Change(myWidth, pTwips); }
    float Height() const { return myHeight; }
    void Height(float pTwips) { Change(myHeight, pTwips); }

    /// Size of the area below the menu bar, which holds the controls, in twips.
    float ClientWidth() const { return myWidth - frameWidthTwips; }
    float ClientHeight() const { return myHeight - frameHeightTwips; }
    /// Sets the size by the client area. Raises nothing.
    void ClientSize(float pWidth, float pHeight);

    /// One of the three states above.
    int WindowState() const { return myWindowState; }
    void WindowState(int pState) {
        myWindowState = pState;
        Touch();
    }

    /// Adds a control after the others. Throws std::invalid_argument if one of them has that name already.
    template <typename Kind> Kind &Add(const std::string &pName);
    /// The control of that name. Throws std::out_of_range if there is none.
    Control &Controls(const std::string &pName) const { return *myByName.at(pName); }
    /// All controls in order of creation, menu items and invisible controls included.
    const std::vector<std::unique_ptr<Control>> &Controls() const { return myControls; }

    /// Raises LoadEvent. Does nothing if the form is loaded already.
    void Load();
    /// Raises UnloadEvent and closes the window. Does nothing if the form isn't loaded.
    void Unload();
    /// Loads the form if it isn't loaded, and brings it on screen. Raises Resize the first time.
    void Show();
    bool IsLoaded() const { return myIsLoaded; }
    bool IsShown() const { return myIsShown; }

    /// The user or the window system has given the window this client area, in twips, and this state.
    void UserSizes(float pClientWidth, float pClientHeight, int pState);
    /// The user or the system closes the window.
    void UserCloses() { Unload(); }
    /// These press the cancel button and the default button, if the form has one.
    void UserPressesEscape() const;
    void UserPressesEnter() const;

    Event<> LoadEvent;
    Event<> UnloadEvent;
    Event<> Resize;

private:
    void Change(float &pSize, float pTwips);

    ::Runtime &myRuntime;
    float myWidth = 0;
    float myHeight = 0;
    int myWindowState = stateNormal;
    bool myIsLoaded = false;
    bool myIsShown = false;
    std::vector<std::unique_ptr<Control>> myControls;
    std::unordered_map<std::string, Control *> myByName;
};

template <typename Kind> Kind &Form::Add(const std::string &pName) {
    auto control = std::make_unique<Kind>(*this, pName);
    Kind &added = *control;
    if (!myByName.emplace(pName, control.get()).second) {
        throw std::invalid_argument("The form has a control " + pName + " already");
    }
    myControls.push_back(std::move(control));
    Touch();
    return added;
}
