// The swatch beside a colour field: a box painted in the colour of the slot.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "core/program/scheme.h"
#include "layout/colour_value.h"

namespace varlo {

// The colour of the swatch for a slot's text; none for a null slot, whose box keeps its plain background.
// An empty text counts as black; a text that is no colour gives some colour.
[[nodiscard]] std::optional<RgbValue> SwatchColour(const Text& slot);

// The swatch colours of the scheme on show, each worked out when it is first painted. Whoever changes the
// text of a slot drops its colour, whoever shows another scheme drops all of them.
class SwatchCache {
 public:
  // The colour to paint for slot number `slot` of the scheme; none for a null slot.
  std::optional<RgbValue> colour(const Scheme& scheme, std::size_t slot);
  void drop(std::size_t slot) { colours_[slot].reset(); }
  void dropAll() { colours_ = {}; }

 private:
  std::array<std::optional<RgbValue>, kSchemeSlots> colours_;
};

}  // namespace varlo
