#include "shell/tabs/form.h"

#include <string>

#include "core/forms/field_text.h"
#include "core/program/program.h"
#include "core/text/text_edit.h"
#include "shell/state/page_logic.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"

namespace varlo {

void loadForm(Shell& shell) {
  if (shell.formBusy) return;
  shell.formLoading = true;
  if (shell.tabPage != nullptr) {
    refreshCommandStates(shell);
    if (shell.tabPage != nullptr && shell.pageLogic != nullptr) shell.pageLogic->fill(*shell.tabPage);
  }
  shell.formLoading = false;
}

void readForm(Shell& shell) {
  if (shell.formBusy || shell.tabPage == nullptr || shell.pageLogic == nullptr) return;
  shell.pageLogic->read(*shell.tabPage);
}

// Deliberate: a change marks the project, whether or not the form then differs from the node.
bool onFieldCommand(Shell& shell, const ControlEvent& event) {
  if (event.notice == Notice::GotFocus) {
    shell.program.view.showHelp(event.control);
    return true;
  }
  if (event.notice != Notice::Changed || shell.formLoading) return false;
  readForm(shell);
  SetDirty(shell.program, 1);
  return true;
}

void digitsOnly(Dialog& page, ControlId control) {
  std::string text(FieldText(page, control, kFieldText).view());
  if (std::erase_if(text, [](char c) { return !IsDigit(c) && c != '.'; }) == 0) return;
  page.setText(control, text);
  page.caretToEnd(control);
}

}  // namespace varlo
