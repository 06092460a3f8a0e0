#include "core/text/number_text.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "core/text/text_edit.h"

namespace varlo {

std::string IntToText(std::int32_t number) { return std::to_string(number); }

std::int32_t LeadingInt(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && IsSpace(text[at])) ++at;
  const bool negative = at < text.size() && text[at] == '-';
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
  std::uint32_t value = 0;
  for (; at < text.size() && IsDigit(text[at]); ++at) {
    value = value * 10 + static_cast<std::uint32_t>(text[at] - '0');
  }
  return static_cast<std::int32_t>(negative ? 0U - value : value);
}

// Only the signs of a decimal number are handed on: the library knows infinities and hexadecimal numbers as well.
double LeadingDouble(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  const std::string number(text.substr(0, text.find_first_not_of("0123456789.eE+-")));
  return std::strtod(number.c_str(), nullptr);
}

std::uint8_t HexPairValue(std::string_view pair) {
  unsigned value = 0;
  for (std::size_t i = 0; i < 2; ++i) {
    const char c = i < pair.size() ? pair[i] : '0';
    const char upper = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    value = value * 16 + static_cast<unsigned>(IsDigit(upper) ? upper - '0' : upper - 55);
  }
  return static_cast<std::uint8_t>(value);
}

std::string DateToText(Clock& clock, std::int64_t time, bool dayLast) {
  CalendarTime local;
  if (!clock.localTime(time, local)) return {};
  const int year = local.year - 1900 > 99 ? local.year - 2000 : local.year - 1900;
  const int first = dayLast ? local.month : local.day;
  const int second = dayLast ? local.day : local.month;
  std::array<char, 80> text;
  const int length = std::snprintf(text.data(), text.size(), "%02i/%02i/%02i %02i:%02i:%02i", first, second, year,
                                   local.hour, local.minute, local.second);
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace varlo
