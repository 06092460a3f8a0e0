// Going from one tab to another.
#pragma once

#include "shell/shell.h"

namespace varlo {

// Closes the page and opens that of `tab`; nothing for the tab that is open.
void switchTab(Shell& shell, Tab tab);

// Opens the page of the current tab.
void openTabPage(Shell& shell);
void closeTabPage(Shell& shell);

}  // namespace varlo
