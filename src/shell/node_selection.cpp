#include "shell/node_selection.h"

#include "core/program/program.h"
#include "platform/control_ids.h"
#include "shell/command_states.h"
#include "shell/commands.h"
#include "shell/form.h"
#include "shell/item_list.h"
#include "shell/popup_menus.h"
#include "shell/shell.h"
#include "shell/tree_items.h"

namespace varlo {
namespace {

bool ignoresRows(const Shell& shell) {
  return shell.notificationsMuted || shell.listBusy || shell.treeDragging || shell.listDragging;
}

void takeTreeNode(Shell& shell, StoreNode& node) {
  shell.program.project.currentNode = shell.program.project.treeNode = &node;
  shell.fromList = false;
}

void takeRow(Shell& shell, StoreNode& node) {
  shell.program.project.currentNode = &node;
  shell.fromList = true;
  loadForm(shell);
  shell.program.view.showHelp(control::main::kItemList);
}

void showTreeHelp(Shell& shell) { shell.program.view.showHelp(control::main::kTree); }

}  // namespace

void onTreeSelection(Shell& shell, TreeItem item) {
  StoreNode* node = nodeOfItem(shell, item);
  if (shell.notificationsMuted || node == nullptr) return;
  takeTreeNode(shell, *node);
  loadItemList(shell, node);
  loadForm(shell);
  showTreeHelp(shell);
}

void onTreeExpanding(Shell& shell, TreeItem item) {
  StoreNode* node = nodeOfItem(shell, item);
  if (shell.notificationsMuted || node == nullptr) return;
  takeTreeNode(shell, *node);
  loadForm(shell);
  showTreeHelp(shell);
}

void onRowClicked(Shell& shell, int row) {
  if (ignoresRows(shell)) return;
  shell.listKeyCountdown = 0;
  StoreNode* node = nodeOfRow(shell, row);
  if (node != nullptr) takeRow(shell, *node);
}

void onRowDoubleClicked(Shell& shell, int row) {
  if (ignoresRows(shell)) return;
  StoreNode* node = nodeOfRow(shell, row);
  if (node == nullptr) return;
  shell.program.project.currentNode = node;
  selectInTree(shell, *node);
}

void onRowChanged(Shell& shell, int row) {
  if (ignoresRows(shell) || shell.listKeyCountdown == 0) return;
  if (--shell.listKeyCountdown > 0) return;
  StoreNode* node = nodeOfRow(shell, row);
  if (node != nullptr) takeRow(shell, *node);
}

void onListKey(Shell& shell, Key key, bool control) {
  shell.listKeyCountdown = kChangesOfAKey;
  if (key == Key::Delete) shell.program.screen.postCommand(Command::ListDelete);
  if (key == Key::A && control) shell.program.screen.postCommand(Command::ListSelectAll);
}

void onTreeRightClicked(Shell& shell, Point point) {
  if (ignoresRows(shell) || shell.mainWindow == nullptr) return;
  StoreNode* node = nodeOfItem(shell, shell.mainWindow->tree().itemAt(point));
  shell.hitItem = node != nullptr;
  if (node != nullptr) selectCurrent(shell, node);
  refreshCommandStates(shell);
  showPopup(shell, treePopup(shell));
}

void onListRightClicked(Shell& shell, Point point) {
  if (ignoresRows(shell) || shell.mainWindow == nullptr) return;
  StoreNode* node = nodeOfRow(shell, shell.mainWindow->list().rowAt(point));
  shell.hitItem = node != nullptr;
  if (node != nullptr) takeRow(shell, *node);
  showPopup(shell, listPopup(shell));
}

}  // namespace varlo
