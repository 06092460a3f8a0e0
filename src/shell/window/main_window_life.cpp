#include "shell/window/main_window_life.h"

#include <array>

#include "core/program/program.h"
#include "core/program/work.h"
#include "persist/life/start_up.h"
#include "persist/project/project_load.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"
#include "shell/tabs/form.h"
#include "shell/tabs/tab_switch.h"
#include "shell/tree/item_list.h"
#include "shell/window/toolbar.h"

namespace varlo {
namespace {

void tickViews(Shell& shell) {
  const std::int32_t flags = shell.program.config.viewFlags;
  shell.mainWindow->checkEntry(Command::ToggleToolbar, (flags & kViewToolbar) != 0);
  shell.mainWindow->checkEntry(Command::ToggleButtons, (flags & kViewButtons) != 0);
}

void setTabLabels(MainWindow& window) {
  std::array<std::string_view, kTabs> labels;
  for (std::size_t i = 0; i < labels.size(); ++i) labels[i] = traitsOf(static_cast<Tab>(i)).label;
  window.setTabs(labels);
}

void setStatusParts(MainWindow& window) {
  const int parts[] = {window.scaled(100), window.clientSize().width - window.scaled(60), -1};
  window.setStatusParts(parts);
}

// The tree is filled, and the window laid out, once it is up.
void showRest(Shell& shell) {
  shell.program.screen.postCommand(Command::RefillTree);
  shell.program.screen.postCommand(Command::ResizeMainWindow);
  loadForm(shell);
  shell.program.view.showHelp(kHelpOfTab);
  shell.mainWindow->createToolbar(toolbarButtons());
  refreshCommandStates(shell);
}

}  // namespace

void setUpMainWindow(Shell& shell, MainWindow& window) {
  shell.mainWindow = &window;
  const Work work(shell.program);
  tickViews(shell);
  setTabLabels(window);
  setStatusParts(window);
  window.list().setColumns(itemListColumns());
  WaitCursorOn(shell.program);
  ProjectLoad(shell.program);
  openTabPage(shell);
  WaitCursorOff(shell.program);
  showRest(shell);
  PostFirstCommand(shell.program);
}

void closeMainWindow(Shell& shell) {
  const Work work(shell.program);
  shell.generator.log.stopRequested = true;
  ShutDownWindow(shell.program);
  closeTabPage(shell);
  shell.mainWindow = nullptr;
}

void quit(Shell& shell) {
  ShutDown(shell.program);
  if (shell.mainWindow != nullptr) shell.mainWindow->end();
}

}  // namespace varlo
