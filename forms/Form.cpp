#include "forms/Form.h"

#include "forms/Controls.h"
#include "forms/Desktop.h"
#include "forms/Runtime.h"
#include "system/Memory.h"

namespace {

template <typename Wanted> void PressFirst(const Form &pForm, Wanted pIsWanted) {
    for (const auto &control : pForm.Controls()) {
        const auto *button = dynamic_cast<const CommandButton *>(control.get());
        if (button != nullptr && pIsWanted(*button)) {
            button->Press();
            return;
        }
    }
}

} // namespace

void Form::Change(float &pSize, float pTwips) {
    if (pTwips != pSize) {
        pSize = pTwips;
        Touch();
        Resize.Raise();
    }
}

void Form::ClientSize(float pWidth, float pHeight) {
    myWidth = pWidth + frameWidthTwips;
    myHeight = pHeight + frameHeightTwips;
}

void Form::Load() {
    if (!myIsLoaded) {
        myIsLoaded = true;
        LoadEvent.Raise();
    }
}

void Form::Unload() {
    if (myIsLoaded) {
        myIsLoaded = false;
        myIsShown = false;
        UnloadEvent.Raise();
        myRuntime.Desktop().CloseForm(*this);
    }
}

void Form::Show() {
    const auto show = [this] {
        Load();
        if (!myIsShown) {
            Resize.Raise();
        }
        myRuntime.Desktop().ShowForm(*this);
    };
    // A form that stayed loaded without a window would keep the program running.
    RunOrUndo(show, [this, wasLoaded = myIsLoaded] { myIsLoaded = wasLoaded; });
    myIsShown = true;
}

void Form::UserSizes(float pClientWidth, float pClientHeight, int pState) {
    const float width = pClientWidth + frameWidthTwips;
    const float height = pClientHeight + frameHeightTwips;
    if (width != myWidth || height != myHeight || pState != myWindowState) {
        myWidth = width;
        myHeight = height;
        myWindowState = pState;
        Resize.Raise();
    }
}

void Form::UserPressesEscape() const {
    PressFirst(*this, [](const CommandButton &pButton) { return pButton.Cancel(); });
}

void Form::UserPressesEnter() const {
    PressFirst(*this, [](const CommandButton &pButton) { return pButton.Default(); });
}
