#include "layout/colour_value.h"

#include <algorithm>
#include <array>

#include "core/text_edit.h"

namespace varlo {
namespace {

constexpr char upperChar(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

constexpr bool isHexDigit(char c) { return IsDigit(c) || (upperChar(c) >= 'A' && upperChar(c) <= 'F'); }

// 0 to 15 for a digit. Other characters wrap around, which is defined for unsigned numbers only.
constexpr std::uint32_t digitValue(char c) {
  const auto code = static_cast<unsigned char>(upperChar(c));
  return IsDigit(c) ? code - std::uint32_t{'0'} : code - std::uint32_t{55};
}

std::uint32_t digitAt(std::string_view text, std::size_t position) {
  return position < text.size() ? digitValue(text[position]) : 0;
}

}  // namespace

std::uint8_t HexPairValue(std::string_view text) {
  return static_cast<std::uint8_t>(digitAt(text, 0) * 16 + digitAt(text, 1));
}

RgbValue ParseColourValue(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  if (text.starts_with('#')) text.remove_prefix(1);
  std::array<std::uint8_t, 3> part{};
  for (std::uint8_t& byte : part) {
    // Deliberate: the second character of a pair may be anything.
    if (text.empty() || !isHexDigit(text.front())) return 0;
    byte = HexPairValue(text);
    text.remove_prefix(std::min<std::size_t>(2, text.size()));
  }
  return RgbOf(part[0], part[1], part[2]);
}

std::string FormatColourValue(RgbValue rgb) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text = "#";
  for (int part = 0; part < 3; ++part, rgb >>= 8U) {
    text += digits[rgb >> 4U & 15U];
    text += digits[rgb & 15U];
  }
  return text;
}

}  // namespace varlo
