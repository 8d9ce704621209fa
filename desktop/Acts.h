#pragma once
/// The way from the views to the program. What the user does is an act: a function that calls one verb of a
/// control or form, such as CommandButton::Press.
#include <functional>

class Acts {
public:
    virtual ~Acts() = default;

    /// Runs pAct. Then brings all windows up to date, and ends the program if no form is loaded any more.
    /// Does nothing while a message or a file dialog waits for its answer: assistive technology can press a
    /// button under it, and the program is still in the middle of another act.
    virtual void Run(const std::function<void()> &pAct) = 0;

    /// The same, also while a message or a file dialog waits. Only for what the screen already shows, a
    /// changed text or a changed size of the window: the program must not lose it.
    virtual void RunEvenUnderBox(const std::function<void()> &pAct) = 0;
};
