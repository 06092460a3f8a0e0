#include "shell/tabs/tab_switch.h"

#include <array>

#include "core/program/program.h"
#include "shell/state/state_display.h"
#include "shell/tabs/freight_page.h"
#include "shell/tabs/inventory_page.h"

namespace varlo {

namespace {

template <typename Page>
std::shared_ptr<TabPage> make(Shell& shell) {
  return std::make_shared<Page>(shell);
}

// The frame of a page that is still to come.
template <ControlId number>
class EmptyPage : public TabPage {
 public:
  using TabPage::TabPage;
  [[nodiscard]] const DialogShape& shape() const override {
    static constexpr DialogShape kShape{.id = number, .form = Form::Page};
    return kShape;
  }
};

}  // namespace

const TabTraits& traitsOf(Tab tab) {
  static constexpr std::array<TabTraits, kTabs> kTraits{{
      {"Inventory", make<InventoryPage>},
      {"Template", make<EmptyPage<2100>>},
      {"Freight", make<FreightPage>},
      {"Order Form", make<EmptyPage<2300>>},
      {"Confirmation", make<EmptyPage<2400>>},
      {"Layout", make<EmptyPage<2500>>},
      {"Variables", make<EmptyPage<2600>>},
  }};
  return kTraits[static_cast<std::size_t>(tab)];
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
  shell.pageLogic = traitsOf(shell.currentTab).makePage(shell);
  shell.tabPage = shell.mainWindow->openPage(shell.pageLogic);
}

// While the page goes, its last notices find none.
void closeTabPage(Shell& shell) {
  shell.tabPage = nullptr;
  if (shell.mainWindow != nullptr) shell.mainWindow->closePage();
  shell.pageLogic.reset();
}

}  // namespace varlo
