#include "layout/colour_value.h"

#include <array>

#include "core/text/number_text.h"
#include "core/text/text_edit.h"

namespace varlo {
namespace {

constexpr bool isHexDigit(char c) {
  const char lower = LowerChar(c);
  return IsDigit(c) || (lower >= 'a' && lower <= 'f');
}

}  // namespace

RgbValue ParseColourValue(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  if (text.starts_with('#')) text.remove_prefix(1);
  std::array<std::uint8_t, 3> part{};
  for (std::uint8_t& byte : part) {
    // Deliberate: the second character of a pair may be anything.
    if (text.empty() || !isHexDigit(text.front())) return 0;
    byte = HexPairValue(text);
    if (text.size() < 2) break;  // what follows a pair cut short counts as 0
    text.remove_prefix(2);
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
