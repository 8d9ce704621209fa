#include "system/Memory.h"

// Here rather than in the header, where a compiler may leave out memory that nothing is done with.
Headroom::Headroom() : myRoom(std::make_unique_for_overwrite<char[]>(std::size_t{16} << 20U)) {}

Headroom::~Headroom() = default;
