#pragma once
/// An event of a form or control. Several objects may serve one control; each of them connects at most one
/// handler, in one visible place, and takes it away again under its own address.
#include <algorithm>
#include <functional>
#include <vector>

template <typename... Arguments> class Event {
public:
    using Handler = std::function<void(Arguments...)>;

    /// Connects a handler for pOwner, in place of the one that it had. The form's own code names no owner.
    void Connect(Handler pHandler, const void *pOwner = nullptr) {
        Disconnect(pOwner);
        const auto isFree = [](const Slot &pSlot) { return !pSlot.handler; };
        const auto slot = std::find_if(mySlots.begin(), mySlots.end(), isFree);
        if (slot == mySlots.end()) {
            mySlots.push_back({pOwner, std::move(pHandler)});
        } else {
            *slot = {pOwner, std::move(pHandler)};
        }
    }

    /// Takes pOwner's handler away, and no other.
    void Disconnect(const void *pOwner) {
        for (Slot &slot : mySlots) {
            if (slot.owner == pOwner) {
                slot.handler = nullptr; // The slot stays: a handler that is running may disconnect itself.
            }
        }
    }

    /// Calls all handlers.
    void Raise(Arguments... pArguments) const {
        for (std::size_t at = 0; at < mySlots.size(); ++at) {
            const Handler handler = mySlots[at].handler; // Connecting may move the slots.
            if (handler) {
                handler(pArguments...);
            }
        }
    }

private:
    struct Slot {
        const void *owner;
        Handler handler;
    };

    std::vector<Slot> mySlots;
};
