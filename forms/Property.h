#pragma once
/// The properties of forms and controls, and the count of changes that tells a desktop what to show again.
#include <utility>

/// Something that a desktop shows: a form or a control.
class Shown {
public:
    /// Goes up with each change by the program. A desktop remembers the revision that it showed last.
    int Revision() const { return myRevision; }
    /// Makes a desktop show this again.
    void Touch() { ++myRevision; }

private:
    int myRevision = 1;
};

/// A property that is kept as given: Left() gets the one named Left, Left(120) sets it. Setting it counts as
/// a change of its owner.
template <typename Value> class Property {
public:
    explicit Property(Shown &pOwner, Value pValue = {}) : myOwner(pOwner), myValue(std::move(pValue)) {}

    const Value &operator()() const { return myValue; }
    void operator()(Value pValue) {
        myValue = std::move(pValue);
        myOwner.Touch();
    }

private:
    Shown &myOwner;
    Value myValue;
};
