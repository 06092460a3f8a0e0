// A person who goes through the store wizard, on a fake window.
#pragma once

#include <functional>
#include <string>

#include "commerce/wizard/wizard_dialog.h"
#include "commerce/wizard/wizard_shapes.h"
#include "tests/support/fake_screen.h"
#include "tests/support/fake_window.h"

namespace varlo::test {

using WizardUser = std::function<void(FakeWindow&)>;

// The next dialogs are run with this user, who closes them or lets them be cancelled.
inline void PlayUser(FakeScreen& screen, WizardUser user) {
  screen.onDialog = [user = std::move(user)](DialogLogic& logic) {
    FakeWindow window(logic);
    window.open();
    user(window);
    return window.result();
  };
}

inline void GoOn(FakeWindow& window, int pages = 1) {
  for (int i = 0; i < pages; ++i) window.press(wizard::kNext);
}
inline void GoBack(FakeWindow& window) { window.press(wizard::kBack); }

}  // namespace varlo::test
