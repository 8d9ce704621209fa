#pragma once
/// How the widgets hand an act of the user to the program. What follows is the same for every act, so it
/// stands in one place, behind this face.
#include <functional>

class Acts {
public:
    virtual ~Acts() = default;

    /// Runs pAct, the call of one user's verb of a control or form, then brings all windows up to date, then
    /// ends the program when no form is loaded any more. While a box waits for the user inside another act
    /// nothing is run: assistive technology can press what is behind the box, the program must not.
    virtual void Handle(const std::function<void()> &pAct) = 0;

    /// The same for what has to be kept in step even behind a waiting box: a window's size, a field's text.
    virtual void Note(const std::function<void()> &pAct) = 0;
};
