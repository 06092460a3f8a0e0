// Resizable memory blocks for holders that tell a failed allocation to their caller. Everything else
// uses containers.
#pragma once

#include <cstddef>

namespace varlo {

// A block of `size` + 1 bytes, new for a null `block` or else resized with its content. Size 0 gives
// null and leaves the block alone; so does memory that runs out.
[[nodiscard]] void* MemResize(void* block, std::size_t size);

// Gives a block back; nothing on null.
void MemFree(void* block);

}  // namespace varlo
