#pragma once
/// Running out of memory. This is the only place that catches it; whoever calls decides what is undone and
/// told.
#include <memory>
#include <new>
#include <utility>

/// Runs pWork. Returns false if memory ran out in the middle of it.
template <typename Work> bool HasMemoryFor(Work &&pWork) {
    try {
        std::forward<Work>(pWork)();
        return true;
    } catch (const std::bad_alloc &) {
        return false;
    }
}

/// Runs pWork. If memory runs out in the middle of it, runs pUndo, which needs none, and leaves the rest to
/// the caller.
template <typename Work, typename Undo> void RunOrUndo(Work &&pWork, Undo &&pUndo) {
    if (!HasMemoryFor(std::forward<Work>(pWork))) {
        std::forward<Undo>(pUndo)();
        throw std::bad_alloc();
    }
}

/// Memory kept back while the data grow, so that the desktop has it afterwards to show them: a toolkit that
/// gets none ends the program. Nothing is written to it, so it costs no time.
class Headroom {
public:
    /// Throws std::bad_alloc when there is not so much left.
    Headroom();
    ~Headroom();
    Headroom(const Headroom &) = delete;
    Headroom &operator=(const Headroom &) = delete;

private:
    std::unique_ptr<char[]> myRoom;
};
