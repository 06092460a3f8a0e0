// The shapes of all windows, for tests that go over them: a new window adds its row.
#pragma once

#include <vector>

#include "commerce/cards/accepted_cards_dialog.h"
#include "commerce/tax/tax_options_dialog.h"
#include "commerce/wizard/wizard_shapes.h"
#include "generator/build/first_build_dialog.h"
#include "generator/build/store_build_dialog.h"
#include "import/import_window.h"
#include "import/keyword_manager.h"
#include "persist/dialogs/preferences_dialog.h"
#include "persist/dialogs/restore_dialog.h"
#include "persist/dialogs/save_as_dialog.h"
#include "shell/tabs/freight_page.h"
#include "shell/tabs/inventory_page.h"

namespace varlo::test {

inline const std::vector<const DialogShape*> kAllShapes = [] {
  std::vector<const DialogShape*> all{
      &PreferencesDialog::kShape, &SaveAsDialog::kShape,  &RestoreDialog::kShape,  &StoreBuildDialog::kShape,
      &FirstBuildDialog::kShape,  &InventoryPage::kShape, &FreightPage::kShape,    &AcceptedCardsDialog::kShape,
      &TaxOptionsDialog::kShape,  &ImportWindow::kShape,  &KeywordManager::kShape,
  };
  for (const DialogShape& page : WizardShapes()) all.push_back(&page);
  return all;
}();

}  // namespace varlo::test
