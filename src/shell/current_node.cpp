#include "core/program/program.h"
#include "platform/control_ids.h"
#include "shell/commands.h"
#include "shell/form.h"
#include "shell/item_list.h"
#include "shell/shell.h"
#include "shell/tree_items.h"

namespace varlo {

void selectCurrent(Shell& shell, StoreNode* node) {
  if (node == nullptr) {
    if (shell.mainWindow != nullptr) shell.mainWindow->controls().enable(control::main::kPreview, false);
    return;
  }
  StoreProject& project = shell.program.project;
  project.currentNode = project.treeNode = node;
  shell.fromList = false;
  followTreeNode(shell);
  loadItemList(shell, node);
  loadForm(shell);
}

}  // namespace varlo
