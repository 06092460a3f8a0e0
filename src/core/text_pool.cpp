#include "core/text_pool.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <new>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VARLO_CHECKED_TEXTS 1
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define VARLO_CHECKED_TEXTS 1
#endif

namespace varlo {
namespace {

char* allocateSingly(std::size_t length) {
  auto* bytes = static_cast<char*>(std::malloc(length + 1));
  if (bytes == nullptr) throw std::bad_alloc();
  return bytes;
}

#ifndef VARLO_CHECKED_TEXTS

// Blocks go by size classes of 8 bytes; a free block holds the address of the next one of its class.
// No block has a header: the length of the text in it tells the class again.
constexpr std::size_t kGrain = 8;
constexpr std::size_t kLargestPooled = 512;
constexpr std::size_t kChunk = 256 * 1024;

struct Pool {
  std::array<char*, kLargestPooled / kGrain + 1> free{};
  char* next = nullptr;
  std::size_t left = 0;
};

Pool pool;

std::size_t grainsFor(std::size_t length) { return (length + kGrain) / kGrain; }

// Puts what is left of the running chunk on a free list and starts another. Chunks are kept until the
// process ends; the free lists serve the next project.
void startChunk() {
  if (pool.left >= kGrain) {
    const std::size_t grains = pool.left / kGrain;
    std::memcpy(pool.next, &pool.free[grains], sizeof(char*));
    pool.free[grains] = pool.next;
  }
  pool.next = allocateSingly(kChunk - 1);
  pool.left = kChunk;
}

#endif

}  // namespace

#ifdef VARLO_CHECKED_TEXTS

// Under the address sanitizer every text is a block of its own, so that a stale one is caught.
char* TextPoolAllocate(std::size_t length) { return allocateSingly(length); }
void TextPoolRelease(char* bytes, std::size_t) { std::free(bytes); }

#else

char* TextPoolAllocate(std::size_t length) {
  const std::size_t grains = grainsFor(length);
  if (grains > kLargestPooled / kGrain) return allocateSingly(length);
  char*& head = pool.free[grains];
  if (head != nullptr) {
    char* bytes = head;
    std::memcpy(&head, bytes, sizeof(char*));
    return bytes;
  }
  const std::size_t size = grains * kGrain;
  if (pool.left < size) startChunk();
  char* bytes = pool.next;
  pool.next += size;
  pool.left -= size;
  return bytes;
}

void TextPoolRelease(char* bytes, std::size_t length) {
  const std::size_t grains = grainsFor(length);
  if (grains > kLargestPooled / kGrain) {
    std::free(bytes);
    return;
  }
  std::memcpy(bytes, &pool.free[grains], sizeof(char*));
  pool.free[grains] = bytes;
}

#endif

}  // namespace varlo
