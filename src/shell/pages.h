// The pages of the tabs.
#pragma once

#include <memory>
#include <string_view>

#include "shell/shell.h"

namespace varlo {

struct TabTraits {
  std::string_view label;
  int dialogId = 0;
};

[[nodiscard]] const TabTraits& traitsOf(Tab tab);

// The logic of a tab's page.
[[nodiscard]] std::unique_ptr<DialogLogic> makePage(Shell& shell, Tab tab);

}  // namespace varlo
