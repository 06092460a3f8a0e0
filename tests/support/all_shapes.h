// The shapes of all windows, for tests that go over them: a new window adds its row.
#pragma once

#include <array>

#include "generator/build/first_build_dialog.h"
#include "generator/build/store_build_dialog.h"
#include "import/import_window.h"
#include "import/keyword_manager.h"
#include "persist/dialogs/preferences_dialog.h"
#include "persist/dialogs/restore_dialog.h"
#include "persist/dialogs/save_as_dialog.h"
#include "shell/tabs/inventory_page.h"

namespace varlo::test {

inline constexpr std::array kAllShapes{
    &PreferencesDialog::kShape, &SaveAsDialog::kShape,  &RestoreDialog::kShape, &StoreBuildDialog::kShape,
    &FirstBuildDialog::kShape,  &InventoryPage::kShape, &ImportWindow::kShape,  &KeywordManager::kShape,
};

}  // namespace varlo::test
