// PageLogic: what the page of a tab answers for itself.
#pragma once

#include "platform/dialog.h"
#include "shell/state/command_states.h"
#include "shell/state/focus.h"

namespace varlo {

// Lists on pages, which the model can ask to show anew.
enum class PageList { Freight, Variables, Cards, Schemes };

struct PageLogic : DialogLogic {
  // From the model to the page, and back. Changes that filling causes are muted.
  virtual void fill(Dialog& /*page*/) {}
  virtual void read(Dialog& /*page*/) {}
  // Enables the controls of the page.
  virtual void showStates(Dialog& /*page*/, const CommandStates::Page& /*states*/) {}
  // The rich edit to which Copy, Paste, Find and the like go; 0 for none.
  [[nodiscard]] virtual ControlId richEdit() const { return 0; }
  // Fills a list of the page anew; nothing for that of another page.
  virtual void refillList(Dialog& /*page*/, PageList /*list*/) {}
  // Commands of the Edit menu where neither tree, item list nor a rich edit has the focus. The last is false where
  // the page has no rows of its own.
  virtual void copy(Dialog& /*page*/) {}
  virtual void paste(Dialog& /*page*/) {}
  virtual void remove(Dialog& /*page*/) {}
  virtual bool selectAll(Dialog& /*page*/) { return false; }
  // What the focus in a control of the page means to the commands.
  [[nodiscard]] virtual FocusPlace focusPlaceOf(ControlId control) const {
    return control != 0 && control == richEdit() ? FocusPlace::RichEdit : FocusPlace::Elsewhere;
  }
};

}  // namespace varlo
