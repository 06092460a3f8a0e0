// Where the controls of a dialog belong: the rows of its shape laid out in a window of some size.
#pragma once

#include <vector>

#include "platform/dialog_shape.h"

namespace varlo {

enum class Part : std::uint8_t { Field, Label, SmallButton };

// One control, in the order in which it is made.
struct PlacedControl {
  ControlId id = 0;
  Kind kind = Kind::None;
  Part part = Part::Field;
  std::string_view text{};
  Option options = Option::None;
  const Cell* cell = nullptr;  // null at the foot of the window
  Rectangle place{};           // pixels of the screen
};

// All controls of a shape, laid out inside `size`, which is in pixels of the screen; `scale` is such pixels for
// 100 of an ordinary screen. Cells that would get too narrow go below each other. Where the height does not do, what
// fills keeps its smallest height and the lowest controls lie outside (see LaidOutHeight).
[[nodiscard]] std::vector<PlacedControl> LayOut(const DialogShape& shape, Size size, int scale);

// The height in which everything has room at a width: what a window opens with that names no height, and what a page
// scrolls over when it has less.
[[nodiscard]] int LaidOutHeight(const DialogShape& shape, int width, int scale);

}  // namespace varlo
