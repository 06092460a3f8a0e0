#include "shell/pages.h"

#include <array>

#include "platform/control_ids.h"
#include "shell/inventory_page.h"

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

}  // namespace varlo
