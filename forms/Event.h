#pragma once
/// An event of a form or control. It has one handler, connected in one visible place.
#include <functional>

template <typename... Arguments> class Event {
public:
    using Handler = std::function<void(Arguments...)>;

    void Connect(Handler pHandler) { myHandler = std::move(pHandler); }
    void Disconnect() { myHandler = nullptr; }

    /// Calls the handler, if one is connected.
    void Raise(Arguments... pArguments) const {
        const Handler handler = myHandler; // The handler may disconnect itself.
        if (handler) {
            handler(pArguments...);
        }
    }

private:
    Handler myHandler;
};
