#include "shell/state/focus.h"

#include "platform/control_ids.h"
#include "shell/state/shell.h"

namespace varlo {

ControlId richEditOf(Tab tab) { return tab == Tab::Inventory ? control::inventory::kDescription : 0; }

FocusPlace focusPlace(const Shell& shell) {
  if (shell.mainWindow == nullptr) return FocusPlace::Elsewhere;
  const Focus focus = shell.mainWindow->focus();
  switch (focus.place) {
    case Focus::Place::Tree:
      return FocusPlace::Tree;
    case Focus::Place::ItemList:
      return FocusPlace::ItemList;
    case Focus::Place::Page:
      return focus.control != 0 && focus.control == richEditOf(shell.currentTab) ? FocusPlace::RichEdit
                                                                                 : FocusPlace::Elsewhere;
    case Focus::Place::Elsewhere:
      break;
  }
  return FocusPlace::Elsewhere;
}

}  // namespace varlo
