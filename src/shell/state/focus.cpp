#include "shell/state/focus.h"

#include "shell/state/page_logic.h"
#include "shell/state/shell.h"

namespace varlo {

FocusPlace focusPlace(const Shell& shell) {
  if (shell.mainWindow == nullptr) return FocusPlace::Elsewhere;
  const Focus focus = shell.mainWindow->focus();
  switch (focus.place) {
    case Focus::Place::Tree:
      return FocusPlace::Tree;
    case Focus::Place::ItemList:
      return FocusPlace::ItemList;
    case Focus::Place::Page:
      return shell.pageLogic == nullptr ? FocusPlace::Elsewhere : shell.pageLogic->focusPlaceOf(focus.control);
    case Focus::Place::Elsewhere:
      break;
  }
  return FocusPlace::Elsewhere;
}

}  // namespace varlo
