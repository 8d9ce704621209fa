#pragma once
/// What runs out, or fails, when a test wants it to: memory, whose operator new the tests replace, and on
/// Linux the disk.

struct Scarcity {
    static inline bool isCounting = false; ///< the program acts, rather than the test
    static inline long granted = -1;       ///< so many allocations are left before one fails; -1: none fails
    static inline bool lasts = false;      ///< all after that one fail too, until the program shows a message
    static inline bool hasCome = false;
    static inline long readable = -1; ///< so many bytes can be read before the disk fails; -1: all
};
