#include "core/text/memory.h"

#include <cstdlib>

namespace varlo {

void* MemResize(void* block, std::size_t size) {
  if (size == 0) return nullptr;
  return std::realloc(block, size + 1);
}

void MemFree(void* block) { std::free(block); }

}  // namespace varlo
