/// What libFuzzer calls with the bytes that it has made.
#include "fuzz/FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    RequireLaws({reinterpret_cast<const char *>(pBytes), pSize});
    return 0;
}
