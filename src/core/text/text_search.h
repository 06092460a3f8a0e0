// Searches in byte strings; where case is ignored, by the ASCII rule.
#pragma once

#include <cstddef>
#include <string_view>

namespace varlo {

// Equal bytes, ignoring case.
[[nodiscard]] bool EqualsNoCase(std::string_view left, std::string_view right);

// Less than, equal to or greater than 0 as `left` stands before, at or behind `right`, ignoring case.
[[nodiscard]] int CompareNoCase(std::string_view left, std::string_view right);

// Position of the first `part` at or behind `start`, ignoring case; npos when there is none.
[[nodiscard]] std::size_t FindNoCase(std::string_view text, std::string_view part, std::size_t start = 0);

// The first match of `needle`, ignoring case; null when there is none or an argument is null.
[[nodiscard]] const char* TextFindNoCase(const char* haystack, const char* needle);

// How often the byte occurs.
[[nodiscard]] std::size_t TextCountChar(std::string_view text, char c);

// How often the byte occurs outside pairs of double or of single quotes. A quoted part ends at its
// partner or at CR or LF, whichever comes first, or with the text.
[[nodiscard]] std::size_t TextCountOutsideQuotes(std::string_view text, char c);

// The first position of the byte outside such quotes; npos when there is none.
[[nodiscard]] std::size_t TextFindOutsideQuotes(std::string_view text, char c);

// What stands behind the first `c`, empty when there is none.
[[nodiscard]] constexpr std::string_view TextBehind(std::string_view text, char c) {
  const std::size_t at = text.find(c);
  return at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
}

}  // namespace varlo
