// Numbers and dates as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace varlo {

// Decimal text with a minus sign when negative.
[[nodiscard]] std::string IntToText(std::int32_t number);

// The leading decimal number of the text, behind white space and with an optional sign; 0 when there
// is none. Wraps at 32 bits.
[[nodiscard]] std::int32_t LeadingInt(std::string_view text);

// The leading decimal number of the text, with a fraction and an exponent where it has them; 0 when there is
// none. What is too large is infinite, what is too small 0.
[[nodiscard]] double LeadingDouble(std::string_view text);

// The byte of two hexadecimal characters; a missing one counts as 0. A decimal digit counts as its
// value, any other character as its upper-case code less 55, whatever it is.
[[nodiscard]] std::uint8_t HexPairValue(std::string_view pair);

// Local time as "day/month/year hour:minute:second", two digits each; with `dayLast` the month comes
// first. The empty text for a time that can't be told.
[[nodiscard]] std::string DateToText(Clock& clock, std::int64_t time, bool dayLast);

}  // namespace varlo
