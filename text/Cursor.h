#pragma once
/// A place in a text that moves from the start of the text to its end. The scanners of lines, numbers and
/// command text are built on it: they say what they expect next, and it says whether that was there.
#include <cstddef>
#include <cstring>
#include <string_view>

class Cursor {
public:
    explicit Cursor(std::string_view pText)
        : myBegin(pText.data()), myAt(myBegin), myEnd(myBegin + pText.size()) {}

    bool AtEnd() const { return myAt == myEnd; }
    /// The next character. There must be one.
    char Next() const { return *myAt; }
    /// Passes the next character. There must be one.
    void Pass() { ++myAt; }

    /// How many characters have been passed.
    std::size_t Position() const { return static_cast<std::size_t>(myAt - myBegin); }
    /// The characters passed since the cursor was at pPosition.
    std::string_view PassedSince(std::size_t pPosition) const { return {myBegin + pPosition, myAt}; }

    /// Passes the next character if it is pWanted, and returns whether it was.
    bool Take(char pWanted) {
        if (AtEnd() || Next() != pWanted) {
            return false;
        }
        Pass();
        return true;
    }

    /// Passes all characters up to the first for which pBelongs is false, and returns them.
    template <typename Predicate> std::string_view TakeWhile(Predicate pBelongs) {
        const char *const from = myAt;
        while (!AtEnd() && pBelongs(Next())) {
            Pass();
        }
        return {from, myAt};
    }
    std::string_view TakeBlanks() {
        return TakeWhile([](char pCharacter) { return pCharacter == ' '; });
    }

    /// Passes all characters up to the next pEnd, or to the end of the text if there is none. Returns them.
    std::string_view TakeUntil(char pEnd) {
        const char *const from = myAt;
        const void *const found =
            AtEnd() ? nullptr : std::memchr(myAt, pEnd, static_cast<std::size_t>(myEnd - myAt));
        myAt = found == nullptr ? myEnd : static_cast<const char *>(found);
        return {from, myAt};
    }

private:
    const char *myBegin;
    const char *myAt;
    const char *myEnd;
};
