// Colours as numbers, and as the text with a hash and six digits that pages and schemes hold.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varlo {

// Red in the lowest byte, then green, then blue; the top byte is 0.
using RgbValue = std::uint32_t;

[[nodiscard]] constexpr RgbValue RgbOf(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return red | static_cast<RgbValue>(green) << 8U | static_cast<RgbValue>(blue) << 16U;
}

// The colour of six digits behind an optional hash and white space in front of it. 0, which is black,
// when one of the three pairs does not start with a hexadecimal digit. A text that ends within a pair reads
// the missing digit, and all behind it, as 0.
[[nodiscard]] RgbValue ParseColourValue(std::string_view text);

// A hash and six upper-case digits; the top byte is left out.
[[nodiscard]] std::string FormatColourValue(RgbValue rgb);

}  // namespace varlo
