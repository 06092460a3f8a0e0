#include "shell/tree/node_selection.h"

#include "core/program/program.h"
#include "platform/main_window.h"
#include "shell/state/command_states.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"
#include "shell/tabs/form.h"
#include "shell/tree/item_list.h"
#include "shell/tree/popup_menus.h"
#include "shell/tree/tree_items.h"

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
  shell.program.view.showHelp(main_window::kItemList);
}

void showTreeHelp(Shell& shell) { shell.program.view.showHelp(main_window::kTree); }

}  // namespace

void selectCurrent(Shell& shell, StoreNode* node) {
  if (node == nullptr) {
    if (shell.mainWindow != nullptr) shell.mainWindow->controls().enable(main_window::kPreview, false);
    return;
  }
  StoreProject& project = shell.program.project;
  project.currentNode = project.treeNode = node;
  shell.fromList = false;
  followTreeNode(shell);
  loadItemList(shell, node);
  loadForm(shell);
}

void selectInTree(Shell& shell, StoreNode& node) {
  const bool shown = shell.mainWindow != nullptr && node.treeItem != kNoTreeItem;
  const bool moves = shown && shell.mainWindow->tree().selected() != node.treeItem;
  selectCurrent(shell, &node);
  if (shown) shell.mainWindow->tree().ensureVisible(node.treeItem);
  if (moves) showTreeHelp(shell);
}

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

bool onTreeRightClicked(Shell& shell, Point point) {
  if (ignoresRows(shell) || shell.mainWindow == nullptr) return false;
  StoreNode* node = nodeOfItem(shell, shell.mainWindow->tree().itemAt(point));
  shell.hitItem = node != nullptr;
  if (node != nullptr) selectCurrent(shell, node);
  refreshCommandStates(shell);
  return true;
}

bool onListRightClicked(Shell& shell, Point point) {
  if (ignoresRows(shell) || shell.mainWindow == nullptr) return false;
  StoreNode* node = nodeOfRow(shell, shell.mainWindow->list().rowAt(point));
  shell.hitItem = node != nullptr;
  if (node != nullptr) takeRow(shell, *node);
  return true;
}

}  // namespace varlo
