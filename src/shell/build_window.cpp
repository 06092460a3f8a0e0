#include "shell/build_window.h"

#include "core/program/program.h"
#include "generator/build/store_build_dialog.h"
#include "platform/control_ids.h"
#include "shell/commands.h"
#include "shell/shell.h"

namespace varlo {

void openBuildWindow(Shell& shell) {
  if (shell.program.project.currentNode == nullptr || !requireServer(shell)) return;
  const bool isOpen = shell.buildDialog != nullptr && shell.generator.log.buildWindow == shell.buildDialog.get();
  if (isOpen && shell.buildWindow != nullptr) {
    shell.buildWindow->bringToFront();
    return;
  }
  shell.buildDialog = std::make_unique<StoreBuildDialog>(shell.generator);
  shell.buildWindow = shell.program.screen.openDialog(dialog::kStoreBuild, *shell.buildDialog);
}

}  // namespace varlo
