// The tabs, their pages, and going from one to another.
#pragma once

#include <memory>
#include <string_view>

#include "shell/state/shell.h"
#include "shell/tabs/tab_page.h"

namespace varlo {

struct TabTraits {
  std::string_view label;
  std::shared_ptr<TabPage> (*makePage)(Shell& shell) = nullptr;
};

[[nodiscard]] const TabTraits& traitsOf(Tab tab);

// Closes the page and opens that of `tab`; nothing for the tab that is open.
void switchTab(Shell& shell, Tab tab);

// Opens the page of the current tab.
void openTabPage(Shell& shell);
void closeTabPage(Shell& shell);

}  // namespace varlo
