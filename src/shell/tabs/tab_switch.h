// The tabs, their pages, and going from one to another.
#pragma once

#include <memory>
#include <string_view>

#include "shell/state/shell.h"

namespace varlo {

struct TabTraits {
  std::string_view label;
  int dialogId = 0;
};

[[nodiscard]] const TabTraits& traitsOf(Tab tab);

// The logic of a tab's page.
[[nodiscard]] std::unique_ptr<DialogLogic> makePage(Shell& shell, Tab tab);

// Closes the page and opens that of `tab`; nothing for the tab that is open.
void switchTab(Shell& shell, Tab tab);

// Opens the page of the current tab.
void openTabPage(Shell& shell);
void closeTabPage(Shell& shell);

}  // namespace varlo
