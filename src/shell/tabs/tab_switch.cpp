#include "shell/tabs/tab_switch.h"

#include <array>

#include "core/program/program.h"
#include "platform/control_ids.h"
#include "shell/state/state_display.h"
#include "shell/tabs/inventory_page.h"

namespace varlo {

const TabTraits& traitsOf(Tab tab) {
  static constexpr std::array<TabTraits, kTabs> kTraits{{
      {"Inventory", dialog::kInventoryPage},
      {"Template", dialog::kTemplatePage},
      {"Freight", dialog::kFreightPage},
      {"Order Form", dialog::kOrderFormPage},
      {"Confirmation", dialog::kConfirmationPage},
      {"Layout", dialog::kLayoutPage},
      {"Variables", dialog::kVariablesPage},
  }};
  return kTraits[static_cast<std::size_t>(tab)];
}

std::unique_ptr<DialogLogic> makePage(Shell& shell, Tab tab) {
  if (tab == Tab::Inventory) return std::make_unique<InventoryPage>(shell);
  return std::make_unique<TabPage>(shell);
}

void switchTab(Shell& shell, Tab tab) {
  const int number = static_cast<int>(tab);
  if (shell.mainWindow == nullptr || tab == shell.currentTab || number < 0 || number >= kTabs) return;
  closeTabPage(shell);
  shell.currentTab = tab;
  shell.focusedField = shell.linkedField = 0;
  shell.program.view.showHelp(kHelpOfTab);
  shell.descriptionCache.reset();
  openTabPage(shell);
  refreshCommandStates(shell);
}

// The page fills itself while it opens, so it makes itself known to the shell.
void openTabPage(Shell& shell) {
  if (shell.mainWindow == nullptr) return;
  shell.pageLogic = makePage(shell, shell.currentTab);
  if (shell.pageLogic == nullptr) return;
  shell.tabPage = shell.mainWindow->openPage(traitsOf(shell.currentTab).dialogId, *shell.pageLogic);
}

// While the page goes, its last notices find none.
void closeTabPage(Shell& shell) {
  shell.tabPage = nullptr;
  if (shell.mainWindow != nullptr) shell.mainWindow->closePage();
  shell.pageLogic.reset();
}

}  // namespace varlo
