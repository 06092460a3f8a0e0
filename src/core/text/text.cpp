#include "core/text/text.h"

#include <cstring>
#include <utility>

namespace varlo {

Text& Text::operator=(const Text& other) {
  if (other.isNull()) {
    release();
  } else if (this != &other) {
    assignLine(other.view());
  }
  return *this;
}

Text& Text::operator=(Text&& other) noexcept {
  std::swap(handle_, other.handle_);
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
  const TextHandle made = TextPoolAllocate(bytes.size());
  char* copy = TextPoolBytes(made);
  // The old text goes last: `bytes` may be a part of it.
  if (!bytes.empty()) std::memcpy(copy, bytes.data(), bytes.size());
  copy[bytes.size()] = '\0';
  release();
  handle_ = made;
}

void Text::release() {
  if (isNull()) return;
  TextPoolRelease(handle_);
  handle_ = kNoText;
}

bool operator==(const Text& left, const Text& right) {
  if (left.isNull() || right.isNull()) return left.isNull() == right.isNull();
  return left.view() == right.view();
}

}  // namespace varlo
