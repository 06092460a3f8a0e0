#include "shell/tree/drag_drop.h"

#include "core/program/program.h"
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

bool isDragging(const Shell& shell) { return shell.treeDragging || shell.listDragging; }

// Marks the selected rows and nothing else that the drop would look at.
void markRows(Shell& shell) {
  const StoreProject& project = shell.program.project;
  if (project.treeNode != nullptr) {
    for (StoreNode* node = project.treeNode->child; node != nullptr; node = node->next) node->dragMark = 0;
  }
  const ListWindow& list = shell.mainWindow->list();
  for (int row = 0; row < list.count(); ++row) nodeOfRow(shell, row)->dragMark = list.isSelected(row) ? 1 : 0;
}

// Marks can be anywhere in the tree by now.
void forgetDrag(Shell& shell) {
  StoreProject& project = shell.program.project;
  project.dragNode = project.dragList = nullptr;
  TreeWalk walk(project.root, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node) walk.node()->dragMark = 0;
  }
}

void highlightRow(Shell& shell, int row) {
  if (row == shell.dragRow) return;
  ListWindow& list = shell.mainWindow->list();
  if (shell.dragRow >= 0 && shell.dragRow < list.count()) list.setSelected(shell.dragRow, false);
  shell.dragRow = row;
  if (row != kNoRow) list.setSelected(row, true);
}

void highlightItem(Shell& shell, TreeItem item) {
  if (item == shell.dropHighlight) return;
  shell.dropHighlight = item;
  shell.mainWindow->tree().setDropHighlight(item);
}

void dropRows(Shell& shell, StoreNode& target) {
  StoreProject& project = shell.program.project;
  {
    const Raised frozen(shell.listFrozen);
    const HeldPainting held(shell.mainWindow->tree());
    StoreNode* next = nullptr;
    for (StoreNode* node = project.dragList; node != nullptr; node = next) {
      next = node->next;
      if (node->dragMark == 0) continue;
      node->dragMark = 0;
      StoreNodeInsert(shell.program, node, &target);
    }
  }
  selectInTree(shell, target);
  loadItemList(shell, &target);
  loadForm(shell);
}

// Deliberate: a drop does not mark the project as changed.
void dropOn(Shell& shell, StoreNode* target, bool rows) {
  const StoreProject& project = shell.program.project;
  selectCurrent(shell, target);
  if (target == project.dragNode) return;
  if (IsProduct(*target)) {
    target = LiveParent(*target);
    if (target == nullptr) return;
    selectCurrent(shell, target);
  }
  if (rows) {
    dropRows(shell, *target);
    return;
  }
  StoreNodeInsert(shell.program, project.dragNode, target);
  followTreeNode(shell);
}

}  // namespace

void onTreeDragBegun(Shell& shell, TreeItem item) {
  StoreProject& project = shell.program.project;
  StoreNode* node = nodeOfItem(shell, item);
  if (node == nullptr || node == project.root || isDragging(shell)) return;
  project.dragNode = node;
  shell.mainWindow->tree().collapse(item);
  shell.treeDragging = shell.mainWindow->beginTreeDrag(item);
  if (!shell.treeDragging) project.dragNode = nullptr;
}

void onListDragBegun(Shell& shell, int row) {
  StoreProject& project = shell.program.project;
  StoreNode* node = nodeOfRow(shell, row);
  if (node == nullptr || shell.listBusy || isDragging(shell)) return;
  if (project.treeNode == nullptr) return;
  markRows(shell);
  project.dragList = project.treeNode->child;
  project.dragNode = node;
  shell.listDragging = shell.mainWindow->beginListDrag(row);
  if (!shell.listDragging) forgetDrag(shell);
}

void onDragMoved(Shell& shell, Point point) {
  if (!isDragging(shell) || shell.mainWindow == nullptr) return;
  const int row = shell.mainWindow->list().rowAt(point);
  highlightRow(shell, row);
  TreeWindow& tree = shell.mainWindow->tree();
  if (row == kNoRow) highlightItem(shell, tree.itemAt(point));
  shell.mainWindow->moveDrag(point);
  if (row != kNoRow) return;
  const Edge edge = tree.edgeAt(point);
  if (edge != Edge::Inside) tree.scroll(edge);
}

void onDragReleased(Shell& shell, Point point, bool mayDrop) {
  if (!isDragging(shell) || shell.mainWindow == nullptr) return;
  const bool rows = shell.listDragging;
  // Down at once: giving the mouse back tells of a release again.
  shell.treeDragging = shell.listDragging = false;
  // Deliberate: a highlighted row stays so until the next selection.
  shell.dragRow = kNoRow;
  StoreNode* target = nodeOfItem(shell, shell.mainWindow->tree().itemAt(point));
  shell.mainWindow->endDrag();
  highlightItem(shell, kNoTreeItem);
  if (mayDrop && target != nullptr) dropOn(shell, target, rows);
  forgetDrag(shell);
  refreshCommandStates(shell);
}

}  // namespace varlo
