// Memory for texts. A store is mostly many short texts: a general allocator spends 16 to 24 bytes on
// each beyond its own and a pointer 8 more, this one about 4 and a handle of 4, and it hands one out in
// a few instructions. One pool serves the program, in the way of the C library's; like all of the engine
// it is for one thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VARLO_CHECKED_TEXTS 1
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define VARLO_CHECKED_TEXTS 1
#endif

namespace varlo {

#ifdef VARLO_CHECKED_TEXTS
// Under the address sanitizer every text is a block of its own, so that a stale one is caught.
using TextHandle = char*;
#else
// The number of a chunk, and in the lower bits the place in it in grains.
using TextHandle = std::uint32_t;
#endif

// What names no text.
inline constexpr TextHandle kNoText{};

// Room for a text of `length` bytes and a terminator, never kNoText. What the bytes hold is not defined.
[[nodiscard]] TextHandle TextPoolAllocate(std::size_t length);

// Takes back what was allocated; its bytes hold a text of that length.
void TextPoolRelease(TextHandle text);

#ifdef VARLO_CHECKED_TEXTS

inline char* TextPoolBytes(TextHandle text) { return text; }
inline std::size_t TextPoolLength(TextHandle text) { return std::strlen(text); }

#else

namespace text_pool {

inline constexpr std::size_t kGrain = 4;
inline constexpr unsigned kPlaceBits = 14;
inline constexpr unsigned kChunkBits = 32 - kPlaceBits;
inline constexpr std::uint32_t kPlaceMask = (1U << kPlaceBits) - 1;

// A text stands behind its length, in two bytes; a longer one has this there.
using Length = std::uint16_t;
inline constexpr Length kLongText = 0xFFFF;

extern char* chunks[1U << kChunkBits];

inline char* block(TextHandle text) { return chunks[text >> kPlaceBits] + (text & kPlaceMask) * kGrain; }

}  // namespace text_pool

// Where the bytes of a text stand, as long as it lives.
inline char* TextPoolBytes(TextHandle text) { return text_pool::block(text) + sizeof(text_pool::Length); }

// The length of a text.
inline std::size_t TextPoolLength(TextHandle text) {
  text_pool::Length length = 0;
  std::memcpy(&length, text_pool::block(text), sizeof length);
  return length == text_pool::kLongText ? std::strlen(TextPoolBytes(text)) : length;
}

#endif

}  // namespace varlo
