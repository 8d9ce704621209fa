#pragma once
/// How widgets pass the user's acts to the program.
#include <functional>

class Acts {
public:
    virtual ~Acts() = default;

    /// Runs pAct, which calls one verb of a control or form. Then brings all windows up to date, and ends the
    /// program if no form is loaded any more. Does nothing while a box waits for the user inside another act:
    /// assistive technology can press buttons under the box, and the program must ignore that.
    virtual void Handle(const std::function<void()> &pAct) = 0;

    /// The same, but also under a waiting box, for acts that the program must keep up with: changes of a
    /// window's size or a field's text.
    virtual void Note(const std::function<void()> &pAct) = 0;
};
