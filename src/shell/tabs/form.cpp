#include "shell/tabs/form.h"

#include <string>

#include "core/forms/field_text.h"
#include "core/program/program.h"
#include "core/text/text_edit.h"
#include "shell/state/page_logic.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"

namespace varlo {
namespace {

// Deliberate: a change marks the project, whether or not the form then differs from the node.
void takeEdit(Shell& shell) {
  readForm(shell);
  SetDirty(shell.program, 1);
}

}  // namespace

void loadForm(Shell& shell) {
  if (shell.formBusy) return;
  shell.formLoading = true;
  shell.editWaits = false;
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

void readWaitingEdit(Shell& shell) {
  if (!shell.editWaits || shell.program.atWork) return;
  shell.editWaits = false;
  takeEdit(shell);
}

bool onFieldCommand(Shell& shell, const ControlEvent& event) {
  if (event.notice == Notice::GotFocus) {
    shell.program.view.showHelp(event.control);
    return true;
  }
  if (event.notice != Notice::Changed || shell.formLoading) return false;
  shell.editWaits = shell.program.atWork;
  if (!shell.editWaits) takeEdit(shell);
  return true;
}

void digitsOnly(Dialog& page, ControlId control) {
  std::string text(FieldText(page, control, kFieldText).view());
  if (std::erase_if(text, [](char c) { return !IsDigit(c) && c != '.'; }) == 0) return;
  page.setText(control, text);
  page.caretToEnd(control);
}

}  // namespace varlo
