#include "tests/support/Scarcity.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <new>

void *operator new(std::size_t pSize) {
    if (Scarcity::isCounting && Scarcity::granted == 0) {
        Scarcity::hasCome = true;
        Scarcity::granted = Scarcity::lasts ? 0 : -1;
        throw std::bad_alloc();
    }
    Scarcity::granted -= Scarcity::isCounting && Scarcity::granted > 0 ? 1 : 0;
    void *const block = std::malloc(pSize + 1);
    return block == nullptr ? throw std::bad_alloc() : block;
}
void *operator new(std::size_t pSize, const std::nothrow_t & /*pHow*/) noexcept {
    return std::malloc(pSize); // std::stable_sort asks so, and does without.
}
void operator delete(void *pBlock) noexcept {
    std::free(pBlock);
}
void operator delete(void *pBlock, std::size_t /*pSize*/) noexcept {
    std::free(pBlock);
}

#ifdef __linux__
#include <sys/syscall.h>
#include <unistd.h>

extern "C" ssize_t read(int pNumber, void *pRoom, size_t pSize) {
    if (Scarcity::readable == 0) {
        errno = EIO;
        return -1;
    }
    const std::size_t size =
        std::min(pSize, static_cast<std::size_t>(Scarcity::readable)); // -1 is a huge number
    Scarcity::readable -= Scarcity::readable > 0 ? static_cast<long>(size) : 0;
    return syscall(SYS_read, pNumber, pRoom, size);
}
#endif
