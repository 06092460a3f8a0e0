// Numbers of the owner and amounts of money as whole numbers, so that no binary fraction ever touches
// money: a number is held in ten thousandths, money in cents.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varlo {

inline constexpr std::int64_t kNumberUnit = 10'000;                       // ten thousandths in 1
inline constexpr std::int64_t kMostNumber = 1'000'000'000 * kNumberUnit;  // a sum of numbers at most
inline constexpr std::int64_t kMostCents = 99'999'999'999;                // an amount at most: 999,999,999.99
inline constexpr std::int64_t kMostRate = 1000 * kNumberUnit;             // a tax rate at most, in per cent

// A decimal number in ten thousandths: digits with an optional point, at most 9 before it and 4 behind
// it. Nothing for any other text, a sign or a blank included.
[[nodiscard]] std::optional<std::int64_t> NumberFromText(std::string_view text);

// The shortest decimal text of a number in ten thousandths, not negative: "12", "0.5".
[[nodiscard]] std::string NumberToText(std::int64_t number);

// A number in ten thousandths as cents, half a cent up.
[[nodiscard]] std::int64_t CentsOf(std::int64_t number);

// The tax on an amount in cents by a rate in ten thousandths of a per cent, half a cent up. `scaled` is
// amount times rate, or the sum of such products.
[[nodiscard]] std::int64_t TaxCents(std::int64_t scaled);

// Cents as text with two decimals: "12.50".
[[nodiscard]] std::string MoneyToText(std::int64_t cents);

}  // namespace varlo
