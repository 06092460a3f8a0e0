#include "shell/tree/node_changes.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/tree/node_commands.h"
#include "core/tree/store_tree.h"
#include "shell/state/guards.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"
#include "shell/tabs/form.h"
#include "shell/tree/item_list.h"
#include "shell/tree/node_selection.h"
#include "shell/tree/tree_items.h"

namespace varlo {
namespace {

// Deliberate: of several rows only the current node's kind is asked about.
bool mayDelete(Shell& shell, const StoreNode& node) {
  if (IsProduct(node)) return true;
  const Answer answer = shell.program.screen.messageBox({.text = message::kDeleteCategory,
                                                         .title = message::kConfirmation,
                                                         .buttons = Buttons::YesNo,
                                                         .icon = Icon::Question});
  return answer == Answer::Yes;
}

// Selects what is current after a deletion, or nothing when no node remains.
void selectRemaining(Shell& shell) {
  StoreProject& project = shell.program.project;
  if (project.currentNode != nullptr) {
    selectInTree(shell, *project.currentNode);
    return;
  }
  project.treeNode = nullptr;
  shell.fromList = false;
  followTreeNode(shell);
  loadItemList(shell, nullptr);
}

template <typename Change>
void forSelectedRows(Shell& shell, const Change& change) {
  if (shell.mainWindow == nullptr) return;
  ListWindow& list = shell.mainWindow->list();
  for (int row = 0; row < list.count(); ++row) {
    if (!list.isSelected(row)) continue;
    change(*nodeOfRow(shell, row));
    list.repaint(row);
  }
}

bool hasSelectedRow(const Shell& shell) {
  if (shell.mainWindow == nullptr) return false;
  const ListWindow& list = shell.mainWindow->list();
  int row = 0;
  while (row < list.count() && !list.isSelected(row)) ++row;
  return row < list.count();
}

// The rows stay as they are meanwhile, so that each that is selected has its turn.
void deleteSelectedRows(Shell& shell) {
  const Raised frozen(shell.listFrozen);
  ListWindow& list = shell.mainWindow->list();
  const HeldPainting heldList(list);
  const HeldPainting heldTree(shell.mainWindow->tree());
  shell.dragRow = kNoRow;
  for (int row = 0; row < list.count();) {
    if (!list.isSelected(row)) {
      ++row;
      continue;
    }
    StoreNode* node = nodeOfRow(shell, row);
    list.remove(row);
    StoreNodeDelete(shell.program, node);
  }
}

void disable(StoreNode& node) { node.status = kStatusDisabled; }

void enable(StoreNode& node) {
  if (node.status == kStatusDisabled) node.status = kStatusEnabled;
}

}  // namespace

void newNode(Shell& shell, NodeKind kind) { NewNode(shell.program, kind); }

void newProduct(Shell& shell) {
  if (NewProduct(shell.program, TraitsOf(NodeKind::Product).newTitle.data()) == 0) return;
  StoreNode& product = *shell.program.project.currentNode;
  selectInTree(shell, product);
  loadItemList(shell, LiveParent(product));
  SetDirty(shell.program, 1);
}

void newTopCategory(Shell& shell) { NewTopCategory(shell.program); }

void copyNode(Shell& shell) {
  if (shell.program.project.currentNode == nullptr) return;
  CopyNode(shell.program);
  if (shell.mainWindow != nullptr) shell.mainWindow->enableEntry(Command::Paste, true);
}

void pasteNode(Shell& shell) {
  if (shell.program.project.clipboardNode == nullptr) return;
  shell.fromList = false;
  PasteNode(shell.program);
  followTreeNode(shell);
}

void deleteTreeNode(Shell& shell) {
  StoreProject& project = shell.program.project;
  StoreNode* node = project.treeNode;
  if (node == nullptr) return;
  shell.fromList = false;
  if (project.currentNode != node) {
    project.currentNode = node;
    loadForm(shell);
  }
  if (!mayDelete(shell, *node)) return;
  StoreNodeMarkSiblings(project, *node);
  StoreNodeDelete(shell.program, node);
  selectRemaining(shell);
  loadItemList(shell, project.currentNode);
  if (project.currentNode != nullptr) {
    refreshIcon(shell, *project.currentNode);
    refreshChildrenFlag(shell, *project.currentNode);
  }
  loadForm(shell);
  SetDirty(shell.program, 1);
}

void deleteRows(Shell& shell) {
  StoreProject& project = shell.program.project;
  if (project.currentNode == nullptr || !hasSelectedRow(shell)) return;
  if (!mayDelete(shell, *project.currentNode)) return;
  StoreNodeMarkSiblings(project, *project.currentNode);
  const Raised busy(shell.listBusy);
  deleteSelectedRows(shell);
  selectRemaining(shell);
  SetDirty(shell.program, 1);
  if (project.currentNode != nullptr) refreshChildrenFlag(shell, *project.currentNode);
  loadForm(shell);
}

void disableNode(Shell& shell) {
  StoreNode* node = shell.program.project.currentNode;
  if (node == nullptr) return;
  disable(*node);
  refreshIcon(shell, *node);
}

void enableNode(Shell& shell) {
  StoreNode* node = shell.program.project.currentNode;
  if (node == nullptr) return;
  enable(*node);
  refreshIcon(shell, *node);
}

// Deliberate: the tree keeps its icons until it is filled again.
void disableRows(Shell& shell) { forSelectedRows(shell, disable); }

void enableRows(Shell& shell) {
  forSelectedRows(shell, enable);
  StoreNode* current = shell.program.project.currentNode;
  if (current != nullptr) refreshIcon(shell, *current);
}

}  // namespace varlo
