#include "shell/tabs/tab_page.h"

#include "core/program/program.h"
#include "shell/state/shell.h"
#include "shell/tabs/form.h"

namespace varlo {

// What preparing the controls makes them tell is no doing of the user's: read now, the empty form would empty the
// node.
void TabPage::opened(Dialog& page) {
  shell_.tabPage = &page;
  shell_.formLoading = true;
  prepare(page);
  shell_.formLoading = false;
  loadForm(shell_);
}

void TabPage::notified(Dialog& /*page*/, const ControlEvent& event) { onFieldCommand(shell_, event); }

void TabPage::closeRequested(Dialog& /*page*/) { shell_.program.screen.postCommand(Command::Quit); }

void TabPage::closed() { shell_.tabPage = nullptr; }

}  // namespace varlo
