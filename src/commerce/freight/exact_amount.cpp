#include "commerce/freight/exact_amount.h"

#include <cstddef>

namespace varlo {
namespace {

constexpr std::size_t kWholeDigits = 9;
constexpr std::size_t kDecimals = 4;
constexpr std::int64_t kNumbersInCent = kNumberUnit / 100;
constexpr std::int64_t kRateBase = 100 * kNumberUnit;  // a hundredth, in ten thousandths

bool isDigits(std::string_view text) { return text.find_first_not_of("0123456789") == text.npos; }

std::int64_t digitsValue(std::string_view digits) {
  std::int64_t value = 0;
  for (const char digit : digits) value = value * 10 + (digit - '0');
  return value;
}

std::int64_t dividedHalfUp(std::int64_t number, std::int64_t by) { return (number + by / 2) / by; }

// `number` in decimal, filled up with zeros in front.
std::string paddedDigits(std::int64_t number, std::size_t width) {
  std::string text = std::to_string(number);
  return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

}  // namespace

std::optional<std::int64_t> NumberFromText(std::string_view text) {
  const std::size_t point = text.find('.');
  const std::string_view whole = text.substr(0, point);
  const std::string_view decimals = point == text.npos ? std::string_view() : text.substr(point + 1);
  if (whole.empty() && decimals.empty()) return std::nullopt;
  if (whole.size() > kWholeDigits || decimals.size() > kDecimals) return std::nullopt;
  if (!isDigits(whole) || !isDigits(decimals)) return std::nullopt;
  std::string filled(decimals);
  filled.resize(kDecimals, '0');
  return digitsValue(whole) * kNumberUnit + digitsValue(filled);
}

std::string NumberToText(std::int64_t number) {
  std::string text = std::to_string(number / kNumberUnit);
  std::string decimals = paddedDigits(number % kNumberUnit, kDecimals);
  decimals.erase(decimals.find_last_not_of('0') + 1);
  if (!decimals.empty()) text += "." + decimals;
  return text;
}

std::int64_t CentsOf(std::int64_t number) { return dividedHalfUp(number, kNumbersInCent); }

std::int64_t TaxCents(std::int64_t scaled) { return dividedHalfUp(scaled, kRateBase); }

std::string MoneyToText(std::int64_t cents) {
  return std::to_string(cents / 100) + "." + paddedDigits(cents % 100, 2);
}

}  // namespace varlo
