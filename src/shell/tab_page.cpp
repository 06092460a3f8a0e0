#include "shell/tab_page.h"

#include "shell/commands.h"
#include "shell/form.h"
#include "shell/shell.h"

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

void TabPage::closeRequested(Dialog& /*page*/) { dispatchCommand(shell_, Command::Quit); }

void TabPage::closed() { shell_.tabPage = nullptr; }

}  // namespace varlo
