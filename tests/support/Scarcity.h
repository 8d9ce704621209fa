#pragma once
/// Memory that runs out when a test wants it to. The test of it replaces operator new.

struct Scarcity {
    static inline bool isCounting = false; ///< the program acts, rather than the test
    static inline long granted = -1;       ///< so many allocations are left before one fails; -1: none fails
    static inline bool lasts = false;      ///< all after that one fail too, until the program shows a message
    static inline bool hasCome = false;
};
