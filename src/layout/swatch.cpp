#include "layout/swatch.h"

#include <algorithm>

#include "core/text/number_text.h"
#include "layout/named_colours.h"

namespace varlo {

std::optional<RgbValue> SwatchColour(const Text& slot) {
  if (slot.isNull()) return std::nullopt;
  const std::string_view text = slot.isSet() ? slot.view() : "BLACK";
  std::string_view digits = ColourByName(text).value_or(text);
  if (digits.starts_with('#')) digits.remove_prefix(1);
  // Deliberate: any six characters make a colour, and white space in front is not skipped.
  const auto part = [&](std::size_t at) { return HexPairValue(digits.substr(std::min(at, digits.size()))); };
  return RgbOf(part(0), part(2), part(4));
}

std::optional<RgbValue> SwatchCache::colour(const Scheme& scheme, std::size_t slot) {
  if (scheme.slot[slot].isNull()) return std::nullopt;
  std::optional<RgbValue>& cached = colours_[slot];
  if (!cached) cached = SwatchColour(scheme.slot[slot]);
  return cached;
}

}  // namespace varlo
