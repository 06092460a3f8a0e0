// Text: a nullable, owned byte string, as every record holds its texts. Null ("absent") and empty
// ("present, but nothing in it") are kept apart, though both count as "no value" wherever a value is
// tested. It is half a pointer wide; the bytes never change their length in place.
#pragma once

#include <cstddef>
#include <string_view>

#include "core/text/text_pool.h"

namespace varlo {

class Text {
 public:
  Text() = default;
  Text(const char* bytes) { assign(bytes); }                // null stays null
  explicit Text(std::string_view bytes) { assign(bytes); }  // never null
  Text(const Text& other) { *this = other; }
  Text(Text&& other) noexcept : handle_(other.handle_) { other.handle_ = kNoText; }
  ~Text() { release(); }

  Text& operator=(const Text& other);
  Text& operator=(Text&& other) noexcept;

  // Becomes a copy of the zero-terminated string, or null for null.
  void assign(const char* bytes);
  // Becomes a copy of `bytes` up to their first NUL.
  void assign(std::string_view bytes);
  // The same for bytes that are known to hold no NUL.
  void assignLine(std::string_view bytes);
  // Becomes null.
  void release();

  // The string, or null when absent.
  [[nodiscard]] const char* get() const { return isNull() ? nullptr : TextPoolBytes(handle_); }
  // The string, empty when absent.
  [[nodiscard]] const char* orEmpty() const { return isNull() ? "" : TextPoolBytes(handle_); }
  [[nodiscard]] std::string_view view() const {
    return isNull() ? std::string_view("") : std::string_view(TextPoolBytes(handle_), TextPoolLength(handle_));
  }
  [[nodiscard]] bool isNull() const { return handle_ == kNoText; }
  // Neither null nor empty.
  [[nodiscard]] bool isSet() const { return !isNull() && TextPoolBytes(handle_)[0] != '\0'; }
  // For edits that keep the length; null when absent.
  [[nodiscard]] char* data() { return isNull() ? nullptr : TextPoolBytes(handle_); }

 private:
  TextHandle handle_ = kNoText;
};

// Equal bytes, null apart from empty.
[[nodiscard]] bool operator==(const Text& left, const Text& right);

}  // namespace varlo
