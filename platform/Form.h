#pragma once
/// A form: a window's caption, size and state, the controls that it owns, and its events. It exists without a
/// screen; a desktop shows it and turns what the user does to the window into the verbs below.
#include "platform/Control.h"
#include "platform/Event.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

class Runtime;

class Form {
public:
    enum class BorderStyle { Sizable, FixedDialog };
    static constexpr int stateNormal = 0;
    static constexpr int stateMinimized = 1;
    static constexpr int stateMaximized = 2;

    /// What Width and Height have over the client area: a fixed allowance for frame, title and menu bar. The
    /// real frame is unknown before the window is on the screen and would look like growth.
    static constexpr float frameWidthTwips = 240;
    static constexpr float frameHeightTwips = 1050;

    Form(::Runtime &pRuntime, std::string pName) : myRuntime(pRuntime), myName(std::move(pName)) {}
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;

    ::Runtime &Runtime() const { return myRuntime; }
    const std::string &Name() const { return myName; }

    const std::string &Caption() const { return myCaption; }
    void Caption(std::string pCaption);

    BorderStyle Border() const { return myBorder; }
    void Border(BorderStyle pBorder) { myBorder = pBorder; }

    /// Outer size in twips. Writing another value raises Resize before it returns.
    float Width() const { return myWidth; }
    void Width(float pTwips);
    float Height() const { return myHeight; }
    void Height(float pTwips);

    /// Size of the area that the controls stand in, in twips, below the menu bar.
    float ClientWidth() const { return myWidth - frameWidthTwips; }
    float ClientHeight() const { return myHeight - frameHeightTwips; }
    /// Design-time size by the client area; raises nothing.
    void ClientSize(float pWidth, float pHeight);

    /// One of the three states above.
    int WindowState() const { return myWindowState; }
    void WindowState(int pState);

    /// A new control of this form, behind those that it has. pName must be new.
    template <typename Kind> Kind &Add(const std::string &pName);
    /// The control of that name; throws std::out_of_range when there is none.
    Control &Controls(const std::string &pName) const { return *myByName.at(pName); }
    /// All controls in order of creation, menu items and invisible ones too.
    const std::vector<std::unique_ptr<Control>> &Controls() const { return myControls; }

    /// Creates the window, hidden, and raises Load before it returns. Does nothing when it is loaded.
    void Load();
    /// Raises Unload and closes the window. Does nothing when it isn't loaded.
    void Unload();
    /// Loads the form if need be and brings it on screen. The first time the form gets its Resize.
    void Show();
    bool IsLoaded() const { return myIsLoaded; }

    /// The user, or the window system, gave the window this client area (twips) and state.
    void UserSizes(float pClientWidth, float pClientHeight, int pState);
    /// The user closes the window by its close box, or the system does.
    void UserCloses() { Unload(); }
    /// Presses the cancel button, or the default button, if the form has one.
    void UserPressesEscape() const;
    void UserPressesEnter() const;

    /// Goes up when caption, state or size were set by the program.
    int Revision() const { return myRevision; }

    Event<> LoadEvent;
    Event<> UnloadEvent;
    Event<> Resize;

private:
    ::Runtime &myRuntime;
    std::string myName;
    std::string myCaption;
    BorderStyle myBorder = BorderStyle::Sizable;
    float myWidth = 0;
    float myHeight = 0;
    int myWindowState = stateNormal;
    bool myIsLoaded = false;
    bool myIsShown = false;
    int myRevision = 1;
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
    ++myRevision;
    return added;
}
