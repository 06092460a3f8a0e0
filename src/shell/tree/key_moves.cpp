#include "shell/tree/key_moves.h"

#include "core/program/program.h"
#include "core/program/work.h"
#include "core/tree/store_tree.h"
#include "shell/state/guards.h"
#include "shell/state/shell.h"
#include "shell/tree/node_selection.h"
#include "shell/tree/tree_items.h"

namespace varlo {
namespace {

// Deliberate: only the one item is made anew. A branch has its button to expand it, and nothing below until the
// tree is filled again.
void reinsertBehind(Shell& shell, StoreNode& node, const StoreNode& sibling) {
  if (node.treeItem == kNoTreeItem) return;
  removeTreeItem(shell, node);
  const std::optional<TreeItem> parent = parentItemOf(shell, node);
  if (!parent.has_value()) return;
  // The sibling need not be shown itself, after an earlier move of the branch.
  const TreeItem behind = sibling.treeItem == kNoTreeItem ? itemBefore(shell, node, *parent) : sibling.treeItem;
  insertTreeItem(shell, node, *parent, behind);
}

void moveDown(Shell& shell) {
  const Work work(shell.program);
  StoreNode* node = shell.program.project.treeNode;
  if (node == nullptr) return;
  const StoreNode* sibling = node->next;
  const Raised frozen(shell.listFrozen);
  if (StoreNodeSwapWithNext(shell.program.project, *node) == 0) return;
  reinsertBehind(shell, *node, *sibling);
  selectInTree(shell, *node);
}

bool hasPrev(const StoreNode& node) { return node.prev != nullptr && !node.prev->released; }

void moveUp(Shell& shell) {
  const Work work(shell.program);
  StoreNode* node = shell.program.project.treeNode;
  if (node == nullptr || !hasPrev(*node)) return;
  StoreNode* sibling = node->prev;
  if (sibling->next != node || !hasPrev(*sibling)) return;
  if (StoreNodeSwapWithNext(shell.program.project, *sibling) == 0) return;
  reinsertBehind(shell, *sibling, *node);
  if (shell.mainWindow != nullptr && node->treeItem != kNoTreeItem) {
    shell.mainWindow->tree().ensureVisible(node->treeItem);
  }
}

}  // namespace

// Deliberate: the release of Ctrl is not told, so after it the arrow keys move nodes, and other keys do nothing,
// until a move up.
bool onTreeKey(Shell& shell, Key key) {
  if (key == Key::Control) shell.ctrlSeen = true;
  if (key == Key::Delete) shell.program.screen.postCommand(Command::TreeDelete);
  const bool keypad = key == Key::KeypadPlus || key == Key::KeypadMinus;
  if (!shell.ctrlSeen && !keypad) return false;
  if (key == Key::KeypadPlus || key == Key::Down) moveDown(shell);
  if (key == Key::KeypadMinus || key == Key::Up) {
    moveUp(shell);
    shell.ctrlSeen = false;
  }
  return true;
}

}  // namespace varlo
