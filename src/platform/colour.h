// Colours of the screen.
#pragma once

#include <cstdint>

namespace varlo {

// A colour, red in the lowest byte, then green, then blue.
using Colour = std::uint32_t;

[[nodiscard]] constexpr Colour ColourOf(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8 | blue << 16;
}

}  // namespace varlo
