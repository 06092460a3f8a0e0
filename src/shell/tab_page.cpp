#include "shell/tab_page.h"

#include "shell/commands.h"
#include "shell/form.h"
#include "shell/shell.h"

namespace varlo {

void TabPage::opened(Dialog& page) {
  shell_.tabPage = &page;
  prepare(page);
  loadForm(shell_);
}

void TabPage::notified(Dialog& /*page*/, const ControlEvent& event) { onFieldCommand(shell_, event); }

void TabPage::closeRequested(Dialog& /*page*/) { dispatchCommand(shell_, Command::Quit); }

void TabPage::closed() { shell_.tabPage = nullptr; }

}  // namespace varlo
