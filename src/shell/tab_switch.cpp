#include "shell/tab_switch.h"

#include "core/program/program.h"
#include "shell/command_states.h"
#include "shell/main_layout.h"
#include "shell/pages.h"

namespace varlo {

void switchTab(Shell& shell, Tab tab) {
  const int number = static_cast<int>(tab);
  if (shell.mainWindow == nullptr || tab == shell.currentTab || number < 0 || number >= kTabs) return;
  closeTabPage(shell);
  shell.currentTab = tab;
  shell.focusedField = shell.linkedField = 0;
  shell.program.view.showHelp(kHelpOfTab);
  shell.descriptionCache.reset();
  openTabPage(shell);
  refreshCommandStates(shell);
}

// The page fills itself while it opens, so it makes itself known to the shell.
void openTabPage(Shell& shell) {
  if (shell.mainWindow == nullptr) return;
  shell.pageLogic = makePage(shell, shell.currentTab);
  if (shell.pageLogic == nullptr) return;
  shell.tabPage = shell.mainWindow->openPage(traitsOf(shell.currentTab).dialogId, *shell.pageLogic);
  if (shell.tabPage != nullptr) shell.mainWindow->placePage(layOutMainWindow(layoutFactsOf(shell)).page);
}

// While the page goes, its last notices find none.
void closeTabPage(Shell& shell) {
  shell.tabPage = nullptr;
  if (shell.mainWindow != nullptr) shell.mainWindow->closePage();
  shell.pageLogic.reset();
}

}  // namespace varlo
