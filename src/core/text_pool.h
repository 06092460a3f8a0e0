// Memory for texts. A store is mostly many short texts: a general allocator spends 16 to 24 bytes on
// each beyond its own, this one about 4, and it hands one out in a few instructions. One pool serves
// the program, in the way of the C library's; like all of the engine it is for one thread at a time.
#pragma once

#include <cstddef>

namespace varlo {

// Room for `length` bytes and a terminator, never null. What the bytes hold is not defined.
[[nodiscard]] char* TextPoolAllocate(std::size_t length);

// Takes back what was allocated for the same `length`.
void TextPoolRelease(char* bytes, std::size_t length);

}  // namespace varlo
