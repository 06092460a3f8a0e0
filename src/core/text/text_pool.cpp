#include "core/text/text_pool.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <new>

namespace varlo {
namespace {

char* allocateSingly(std::size_t size) {
  auto* bytes = static_cast<char*>(std::malloc(size));
  if (bytes == nullptr) throw std::bad_alloc();
  return bytes;
}

}  // namespace

#ifdef VARLO_CHECKED_TEXTS

TextHandle TextPoolAllocate(std::size_t length) { return allocateSingly(length + 1); }
void TextPoolRelease(TextHandle text) { std::free(text); }

#else

namespace text_pool {

char* chunks[1U << kChunkBits];

namespace {

constexpr std::size_t kChunk = kGrain << kPlaceBits;

// Blocks go by classes of size: in grains as far as short texts go, then in steps, up to the longest
// line. A free block holds the handle of the next one of its class.
constexpr std::size_t kFine = 512;
constexpr std::size_t kMiddle = 4096;
constexpr std::size_t kMiddleStep = 64;
constexpr std::size_t kLargestPooled = 20 * 1024;
constexpr std::size_t kCoarseStep = 1024;
constexpr std::size_t kFineClasses = kFine / kGrain;
constexpr std::size_t kMiddleClasses = (kMiddle - kFine) / kMiddleStep;
constexpr std::size_t kClasses = kFineClasses + kMiddleClasses + (kLargestPooled - kMiddle) / kCoarseStep + 1;

struct Pool {
  std::array<TextHandle, kClasses> free{};
  TextHandle next = kNoText;  // what is left of the running chunk
  std::size_t left = 0;
  std::uint32_t chunkCount = 1;  // no text is in the first
  std::uint32_t freeChunk = 0;
};

Pool pool;

// The class of the largest block that fits into `size` bytes.
std::size_t classWithin(std::size_t size) {
  if (size <= kFine) return size / kGrain;
  if (size <= kMiddle) return kFineClasses + (size - kFine) / kMiddleStep;
  return kFineClasses + kMiddleClasses + (std::min(size, kLargestPooled) - kMiddle) / kCoarseStep;
}

// The class of the smallest block that takes `size` bytes.
std::size_t classFor(std::size_t size) {
  return classWithin(size + (size <= kFine ? kGrain : size <= kMiddle ? kMiddleStep : kCoarseStep) - 1);
}

std::size_t blockSize(std::size_t sizeClass) {
  if (sizeClass <= kFineClasses) return sizeClass * kGrain;
  sizeClass -= kFineClasses;
  if (sizeClass <= kMiddleClasses) return kFine + sizeClass * kMiddleStep;
  return kMiddle + (sizeClass - kMiddleClasses) * kCoarseStep;
}

// Puts memory under a free number of the table and gives that number, as a handle. The slots of numbers
// that came back hold the next such number.
TextHandle addChunk(char* bytes) {
  std::uint32_t number = pool.freeChunk;
  if (number != 0) {
    pool.freeChunk = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(chunks[number]));
  } else if (pool.chunkCount < std::size(chunks)) {
    number = pool.chunkCount++;
  } else {
    std::free(bytes);
    throw std::bad_alloc();
  }
  chunks[number] = bytes;
  return number << kPlaceBits;
}

void removeChunk(TextHandle text) {
  const std::uint32_t number = text >> kPlaceBits;
  std::free(chunks[number]);
  chunks[number] = reinterpret_cast<char*>(static_cast<std::uintptr_t>(pool.freeChunk));
  pool.freeChunk = number;
}

void putFree(TextHandle text, std::size_t sizeClass) {
  std::memcpy(block(text), &pool.free[sizeClass], sizeof(TextHandle));
  pool.free[sizeClass] = text;
}

// Puts what is left of the running chunk on a free list and starts another. Chunks are kept until the
// process ends; the free lists serve the next project.
void startChunk() {
  const TextHandle made = addChunk(allocateSingly(kChunk));
  if (pool.left >= kGrain) putFree(pool.next, classWithin(pool.left));
  pool.next = made;
  pool.left = kChunk;
}

TextHandle takeBlock(std::size_t sizeClass) {
  TextHandle& head = pool.free[sizeClass];
  const TextHandle found = head;
  if (found != kNoText) {
    std::memcpy(&head, block(found), sizeof head);
    return found;
  }
  const std::size_t size = blockSize(sizeClass);
  if (pool.left < size) startChunk();
  const TextHandle made = pool.next;
  pool.next += static_cast<TextHandle>(size / kGrain);
  pool.left -= size;
  return made;
}

// What a text takes with its length and its terminator.
std::size_t sizeFor(std::size_t length) { return sizeof(Length) + length + 1; }

}  // namespace
}  // namespace text_pool

using namespace text_pool;

TextHandle TextPoolAllocate(std::size_t length) {
  const std::size_t size = sizeFor(length);
  const TextHandle text = size <= kLargestPooled ? takeBlock(classFor(size)) : addChunk(allocateSingly(size));
  const auto told = static_cast<Length>(std::min<std::size_t>(length, kLongText));
  std::memcpy(block(text), &told, sizeof told);
  return text;
}

void TextPoolRelease(TextHandle text) {
  const std::size_t size = sizeFor(TextPoolLength(text));
  if (size <= kLargestPooled) {
    putFree(text, classFor(size));
  } else {
    removeChunk(text);
  }
}

#endif

}  // namespace varlo
