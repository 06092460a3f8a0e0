// The window of the Inventory page as it stands there, for tests of what goes on around pages: it tells nobody.
#pragma once

#include <memory>

#include "shell/state/shell.h"
#include "shell/tabs/inventory_page.h"
#include "tests/support/fake_window.h"

namespace varlo::test {

struct PageStandIn {
  FakeWindow window{InventoryPage::kShape};

  void openIn(Shell& shell) {
    shell.tabPage = &window;
    shell.pageLogic = std::make_shared<InventoryPage>(shell);
  }
};

}  // namespace varlo::test
