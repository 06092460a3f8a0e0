#include "core/text.h"

#include <cstring>
#include <utility>

#include "core/text_pool.h"

namespace varlo {

Text& Text::operator=(const Text& other) {
  if (this != &other) assign(other.bytes_);
  return *this;
}

Text& Text::operator=(Text&& other) noexcept {
  std::swap(bytes_, other.bytes_);
  return *this;
}

void Text::assign(const char* bytes) {
  if (bytes == nullptr) {
    release();
  } else {
    assignLine(bytes);
  }
}

void Text::assign(std::string_view bytes) { assignLine(bytes.substr(0, bytes.find('\0'))); }

void Text::assignLine(std::string_view bytes) {
  char* copy = TextPoolAllocate(bytes.size());
  // The old text goes last: `bytes` may be a part of it.
  if (!bytes.empty()) std::memcpy(copy, bytes.data(), bytes.size());
  copy[bytes.size()] = '\0';
  release();
  bytes_ = copy;
}

void Text::release() {
  if (bytes_ == nullptr) return;
  TextPoolRelease(bytes_, std::strlen(bytes_));
  bytes_ = nullptr;
}

bool operator==(const Text& left, const Text& right) {
  if (left.isNull() || right.isNull()) return left.isNull() == right.isNull();
  return std::strcmp(left.get(), right.get()) == 0;
}

}  // namespace varlo
