// The toolbar's buttons and their tool tips.
#pragma once

#include <span>
#include <string_view>

#include "platform/main_window.h"

namespace varlo {

// All positions, separators included.
[[nodiscard]] std::span<const ToolbarButton> toolbarButtons();

// Empty for a command that has no button.
[[nodiscard]] std::string_view toolTipOf(Command command);

}  // namespace varlo
