// The layout of the Inventory page.
#pragma once

#include <vector>

#include "platform/dialog.h"
#include "platform/geometry.h"

namespace varlo {

// The label of a field has the number of the field and this much more.
inline constexpr ControlId kLabelOffset = 50;

// The smallest page, in pixels of an ordinary screen, on which every field can be used.
inline constexpr Size kSmallestInventoryPage{430, 480};

// Where the controls belong on a page of a size. `scale` is pixels for each pixel of an ordinary screen in percent.
// The description takes the height that the other fields leave; on a page that is too small nothing gets a
// negative size.
[[nodiscard]] std::vector<Placement> layOutInventoryPage(Size size, int scale);

}  // namespace varlo
