#include "core/text/text_search.h"

#include <algorithm>
#include <string>

#include "core/text/text_edit.h"

namespace varlo {
namespace {

bool sameLetter(char left, char right) { return LowerChar(left) == LowerChar(right); }

// Position of the byte at or behind `at`, outside quotes; `at` itself is outside.
std::size_t findOutside(std::string_view text, char c, std::size_t at) {
  while (at < text.size() && text[at] != c) {
    if (text[at] != '"' && text[at] != '\'') {
      ++at;
      continue;
    }
    const char stops[] = {text[at], '\r', '\n'};
    const std::size_t end = text.find_first_of(std::string_view(stops, sizeof stops), at + 1);
    if (end == std::string_view::npos) return end;
    at = text[end] == text[at] ? end + 1 : end;
  }
  return at < text.size() ? at : std::string_view::npos;
}

}  // namespace

bool EqualsNoCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), sameLetter);
}

int CompareNoCase(std::string_view left, std::string_view right) {
  const std::size_t shared = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < shared; ++i) {
    const int difference =
        static_cast<unsigned char>(LowerChar(left[i])) - static_cast<unsigned char>(LowerChar(right[i]));
    if (difference != 0) return difference;
  }
  return static_cast<int>(left.size() > right.size()) - static_cast<int>(left.size() < right.size());
}

std::size_t FindNoCase(std::string_view text, std::string_view part, std::size_t start) {
  if (start > text.size()) return std::string_view::npos;
  const auto first = text.begin() + static_cast<std::ptrdiff_t>(start);
  const auto found = std::search(first, text.end(), part.begin(), part.end(), sameLetter);
  if (found == text.end() && !part.empty()) return std::string_view::npos;
  return static_cast<std::size_t>(found - text.begin());
}

const char* TextFindNoCase(const char* haystack, const char* needle) {
  if (haystack == nullptr || needle == nullptr) return nullptr;
  const std::size_t found = FindNoCase(haystack, needle);
  return found == std::string_view::npos ? nullptr : haystack + found;
}

std::size_t TextCountChar(std::string_view text, char c) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), c));
}

std::size_t TextCountOutsideQuotes(std::string_view text, char c) {
  std::size_t count = 0;
  for (std::size_t at = 0; (at = findOutside(text, c, at)) != std::string_view::npos; ++at) ++count;
  return count;
}

std::size_t TextFindOutsideQuotes(std::string_view text, char c) { return findOutside(text, c, 0); }

}  // namespace varlo
